// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/PropertyKind.h>

#include <QCoreApplication>

#include <algorithm>

namespace Workbench {

namespace {

const char* const titles[] = {
    QT_TRANSLATE_NOOP("Workbench::PropertyKind", "relative permittivity"),
    QT_TRANSLATE_NOOP("Workbench::PropertyKind", "relative permeability"),
    QT_TRANSLATE_NOOP("Workbench::PropertyKind", "electric conductivity"),
    QT_TRANSLATE_NOOP("Workbench::PropertyKind", "thermal conductivity"),
    QT_TRANSLATE_NOOP("Workbench::PropertyKind", "mass density"),
};

const PropertyKind* findKind(int number)
{
    const QVector<PropertyKind>& kinds = propertyKinds();
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [number](const PropertyKind& kind) { return kind.number == number; });
    return found == kinds.end() ? nullptr : &*found;
}

} // namespace

const QVector<PropertyKind>& propertyKinds()
{
    static const QVector<PropertyKind> kinds = {{1, QLatin1String(titles[0]), QStringLiteral("1")},
                                                {2, QLatin1String(titles[1]), QStringLiteral("1")},
                                                {3, QLatin1String(titles[2]), QStringLiteral("S/m")},
                                                {4, QLatin1String(titles[3]), QStringLiteral("W/(m K)")},
                                                {5, QLatin1String(titles[4]), QStringLiteral("kg/m3")}};
    return kinds;
}

QString propertyKindLabel(int number)
{
    const PropertyKind* const kind = findKind(number);
    return kind == nullptr ? QString() : kind->label;
}

QString propertyKindTitle(int number)
{
    const PropertyKind* const kind = findKind(number);
    return kind == nullptr ? QString()
                           : QCoreApplication::translate("Workbench::PropertyKind", qUtf8Printable(kind->label));
}

QString propertyUnit(int kind, const QString& remark)
{
    static const QString word = QStringLiteral("unit ");
    if (remark.startsWith(word)) {
        return remark.mid(word.size()).section(QLatin1Char(';'), 0, 0).trimmed();
    }
    const PropertyKind* const known = findKind(kind);
    return known == nullptr ? QString() : known->unit;
}

} // namespace Workbench
