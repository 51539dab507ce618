// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialPropertyText.h>

#include <datamodel/MaterialPropertyData.h>

#include <QStringList>

namespace DataManager {

namespace {

constexpr int fieldCount = 5;
constexpr int componentCount = 9;
constexpr int significantDigits = 16;

bool readComponents(const QString& text, QList<double>& components)
{
    const QStringList pieces = text.split(QLatin1Char('|'));
    if (pieces.size() != componentCount) {
        return false;
    }
    for (const QString& piece : pieces) {
        bool isNumber = false;
        components.append(piece.toDouble(&isNumber));
        if (!isNumber) {
            return false;
        }
    }
    return true;
}

} // namespace

QString MaterialPropertyText::write(const DataModel::MaterialPropertyData& property)
{
    if (property.components.size() != componentCount) {
        return {};
    }
    // One argument a call: a label such as "%5" is filled by the calls that follow it.
    QString text = QStringLiteral("%1,%2,%3|%4|%5|%6|%7|%8|%9|%10|%11,%12,%13");
    text = text.arg(property.label).arg(property.kind);
    for (const double component : property.components) {
        text = text.arg(QString::number(component, 'g', significantDigits));
    }
    return text.arg(property.remark).arg(property.flag ? 1 : 0);
}

QSharedPointer<DataModel::MaterialPropertyData> MaterialPropertyText::read(const QString& text)
{
    const QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() != fieldCount) {
        return {};
    }
    bool isKind = false;
    bool isFlag = false;
    const int kind = fields.at(1).toInt(&isKind);
    const int flag = fields.at(4).toInt(&isFlag);
    QList<double> components;
    if (!isKind || !isFlag || !readComponents(fields.at(2), components)) {
        return {};
    }
    auto property = QSharedPointer<DataModel::MaterialPropertyData>::create();
    property->label = fields.at(0);
    property->kind = kind;
    property->components = components;
    property->remark = fields.at(3);
    property->flag = flag > 0;
    return property;
}

} // namespace DataManager
