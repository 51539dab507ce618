// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>
#include <materials/Material.h>

#include <QAbstractTableModel>
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
        ColumnCount
    };
    /// The identifier, for every column.
    static constexpr int IdentifierRole = Qt::UserRole;

    explicit MaterialTable(BaseModule::MaterialLibType type, QObject* parent);

    /// Takes the library's present state.
    void read();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant text(int row, int column) const;

    BaseModule::MaterialLibType m_type;
    QVector<Materials::Material> m_materials;
};

} // namespace Workbench
