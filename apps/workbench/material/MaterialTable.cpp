// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialTable.h>

#include <materials/MaterialMembers.h>
#include <workbench/material/MaterialFavourites.h>
#include <workbench/material/MaterialLibraries.h>

#include <datamodel/MaterialData.h>

namespace Workbench {

namespace {

QString propertyLabels(const DataModel::MaterialData& material)
{
    QStringList labels;
    for (const auto member : Materials::propertyMembers) {
        if (const auto& property = material.*member) {
            labels.append(property->label);
        }
    }
    return labels.join(QStringLiteral(", "));
}

QString originText(int id)
{
    using Origin = MaterialOrigins::Origin;
    const Origin origin = MaterialLibraries::instance()->origin(id);
    if (origin.source == Origin::Unknown) {
        return {};
    }
    if (origin.source == Origin::Created) {
        return MaterialTable::tr("this project");
    }
    return origin.isEdited
               ? MaterialTable::tr("software library, %1 (%2), edited").arg(origin.sourceName).arg(origin.sourceID)
               : MaterialTable::tr("software library, %1 (%2)").arg(origin.sourceName).arg(origin.sourceID);
}

} // namespace

MaterialTable::MaterialTable(BaseModule::MaterialLibType type, QObject* parent)
    : QAbstractTableModel(parent), m_type(type)
{
    read();
}

void MaterialTable::read()
{
    beginResetModel();
    m_materials = MaterialLibraries::materials(m_type).toVector();
    m_favourites = MaterialFavourites::names(m_type);
    endResetModel();
}

int MaterialTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_materials.size();
}

int MaterialTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MaterialTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case IdentifierRole:
        return m_materials.at(index.row())->id;
    case EnglishNameRole:
        return m_materials.at(index.row())->englishName;
    case FavouriteRole:
        return isFavourite(index.row());
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return hint(index.row(), index.column());
    default:
        return {};
    }
}

bool MaterialTable::isFavourite(int row) const
{
    return m_favourites.contains(m_materials.at(row)->englishName);
}

QVariant MaterialTable::hint(int row, int column) const
{
    if (column != FavouriteColumn) {
        return text(row, column);
    }
    return isFavourite(row) ? tr("a favourite") : tr("no favourite");
}

QVariant MaterialTable::text(int row, int column) const
{
    const DataModel::MaterialData& material = *m_materials.at(row);
    switch (column) {
    case IdentifierColumn:
        return material.id;
    case EnglishNameColumn:
        return material.englishName;
    case ChineseNameColumn:
        return material.chineseName;
    case OriginColumn:
        return m_type == BaseModule::ProjectLib ? originText(material.id) : QVariant();
    case FavouriteColumn:
        return QString(isFavourite(row) ? QChar(0x2605) : QChar(0x2606));
    default:
        return propertyLabels(material);
    }
}

QVariant MaterialTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case IdentifierColumn:
        return tr("ID");
    case EnglishNameColumn:
        return tr("English name");
    case ChineseNameColumn:
        return tr("Chinese name");
    case OriginColumn:
        return tr("Origin");
    case FavouriteColumn:
        return QString(QChar(0x2605));
    default:
        return tr("Properties");
    }
}

} // namespace Workbench
