// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialTable.h>

#include <materials/MaterialMembers.h>
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
    if (role == IdentifierRole) {
        return m_materials.at(index.row())->id;
    }
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? text(index.row(), index.column()) : QVariant();
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
    default:
        return tr("Properties");
    }
}

} // namespace Workbench
