// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <materials/MaterialCsv.h>

#include <materials/CsvText.h>
#include <materials/MaterialMembers.h>
#include <materials/NumberText.h>

#include <datamodel/MaterialData.h>

#include <QCoreApplication>

namespace Materials {

namespace {

constexpr int componentCount = 9;
constexpr int firstComponent = 6;

const QStringList& head()
{
    static const QStringList names =
        QStringLiteral("id,chineseName,englishName,property,label,kind,xx,xy,xz,yx,yy,yz,zx,zy,zz,remark,flag")
            .split(QLatin1Char(','));
    return names;
}

QStringList cellsOf(const DataModel::MaterialData& material, int number)
{
    QStringList cells = {QString::number(material.id), material.chineseName, material.englishName,
                         QString::number(number)};
    if (number == 0) {
        while (cells.size() < head().size()) {
            cells.append(QString());
        }
        return cells;
    }
    const DataModel::MaterialPropertyData& property = *(material.*propertyMembers.at(number - 1));
    cells += {property.label, QString::number(property.kind)};
    for (const double component : property.components) {
        cells.append(shortestText(component));
    }
    cells += {property.remark, property.flag ? QStringLiteral("1") : QStringLiteral("0")};
    return cells;
}

/// Empty when the cells are a property.
QString readProperty(const QStringList& cells, DataModel::MaterialPropertyData& property)
{
    bool isNumber = false;
    property.label = cells.at(4);
    property.kind = cells.at(5).toInt(&isNumber);
    if (!isNumber) {
        return QCoreApplication::translate("materials", "kind '%1' is no whole number").arg(cells.at(5));
    }
    for (int i = firstComponent; i < firstComponent + componentCount; ++i) {
        property.components.append(cells.at(i).toDouble(&isNumber));
        if (!isNumber) {
            return QCoreApplication::translate("materials", "%1 '%2' is no number").arg(head().at(i), cells.at(i));
        }
    }
    property.remark = cells.at(15);
    property.flag = cells.at(16) == QLatin1String("1");
    const bool isFlag = property.flag || cells.at(16) == QLatin1String("0");
    return isFlag ? QString()
                  : QCoreApplication::translate("materials", "flag '%1' is neither 0 nor 1").arg(cells.at(16));
}

/// Empty when the row belongs to a material, which is then the last of the list.
QString readRow(const QStringList& cells, QList<Material>& materials)
{
    if (cells.size() != head().size()) {
        return QCoreApplication::translate("materials", "%1 cells, expected %2").arg(cells.size()).arg(head().size());
    }
    bool isIdentifier = false;
    bool isNumber = false;
    const int id = cells.at(0).toInt(&isIdentifier);
    const int number = cells.at(3).toInt(&isNumber);
    if (!isIdentifier) {
        return QCoreApplication::translate("materials", "id '%1' is no whole number").arg(cells.at(0));
    }
    if (!isNumber || number < 0 || number > propertyMembers.size()) {
        return QCoreApplication::translate("materials", "property '%1' is not 0 to 5").arg(cells.at(3));
    }
    if (materials.isEmpty() || materials.last()->id != id) {
        materials.append(Material::create(id, cells.at(1), cells.at(2), nullptr, nullptr, nullptr, nullptr, nullptr));
    }
    if (number == 0) {
        return {};
    }
    const auto property = QSharedPointer<DataModel::MaterialPropertyData>::create();
    (*materials.last()).*propertyMembers.at(number - 1) = property;
    return readProperty(cells, *property);
}

} // namespace

QString writeMaterialCsv(const QList<Material>& materials, QString& fault)
{
    QString text = csvLine(head());
    for (const Material& material : materials) {
        bool isBare = true;
        for (int number = 1; number <= propertyMembers.size(); ++number) {
            const auto& property = (*material).*propertyMembers.at(number - 1);
            if (property.isNull()) {
                continue;
            }
            if (property->components.size() != componentCount) {
                fault = QCoreApplication::translate(
                            "materials", "material %1, property %2: %3 components do not fit the nine columns of CSV")
                            .arg(material->id)
                            .arg(number)
                            .arg(property->components.size());
                return {};
            }
            isBare = false;
            text += csvLine(cellsOf(*material, number));
        }
        text += isBare ? csvLine(cellsOf(*material, 0)) : QString();
    }
    return text;
}

QList<Material> readMaterialCsv(const QString& path, const QString& text, QString& fault)
{
    QList<Material> materials;
    const QList<CsvRow> rows = parseCsv(text);
    if (rows.isEmpty() || rows.first().cells != head()) {
        fault = QCoreApplication::translate("materials", "%1:1: the head line is not '%2'")
                    .arg(path, head().join(QLatin1Char(',')));
        return {};
    }
    for (int i = 1; i < rows.size(); ++i) {
        const QString what = readRow(rows.at(i).cells, materials);
        if (!what.isEmpty()) {
            fault = QStringLiteral("%1:%2: %3").arg(path).arg(rows.at(i).line).arg(what);
            return {};
        }
    }
    return materials;
}

} // namespace Materials
