// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamodel/datamodel_export.h>

#include <QString>
#include <QVector>

namespace DataModel {

/// A table of keys and values in the order in which its rows were appended, as a properties panel shows it. Keys may
/// repeat.
class DATAMODEL_EXPORT PropertyTableData
{
public:
    /// Removes every row.
    void removeAllRowData();
    /// Appends a row. `isEditable` tells the panel whether the value may be changed there.
    void appendRowKeyValue(QString key, QString value, bool isEditable);

    /// The number of rows.
    int getRowCount() const;
    /// The key of a row counted from 0; an empty text when there is no such row.
    QString getRowKey(int row) const;
    /// The value of a row counted from 0; an empty text when there is no such row.
    QString getRowValue(int row) const;
    /// Whether the value of a row counted from 0 may be changed in the panel; false when there is no such row.
    bool getRowIsEditable(int row) const;

private:
    struct Row
    {
        QString key;
        QString value;
        bool isEditable = false;
    };

    QVector<Row> m_rowList;
};

} // namespace DataModel
