// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Material.h>

#include <QAbstractTableModel>
#include <QSet>
#include <QVector>

namespace Workbench {

/// One library as a table: a row a live material, in ascending order of identifiers.
class MaterialTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column : int
    {
        IdentifierColumn,
        EnglishNameColumn,
        ChineseNameColumn,
        PropertiesColumn, ///< the labels of the properties
        OriginColumn,     ///< where a material of the project came from
        FavouriteColumn,  ///< a star
        ColumnCount
    };
    /// The identifier, the English name and whether it is a favourite, for every column.
    static constexpr int IdentifierRole = Qt::UserRole;
    static constexpr int EnglishNameRole = Qt::UserRole + 1;
    static constexpr int FavouriteRole = Qt::UserRole + 2;

    explicit MaterialTable(BaseModule::MaterialLibType type, QObject* parent);

    /// Takes the library's present state.
    void read();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant text(int row, int column) const;
    QVariant hint(int row, int column) const;
    bool isFavourite(int row) const;

    BaseModule::MaterialLibType m_type;
    QVector<Materials::Material> m_materials;
    QSet<QString> m_favourites;
};

} // namespace Workbench
