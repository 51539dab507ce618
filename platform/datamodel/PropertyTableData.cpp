// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamodel/PropertyTableData.h>

#include <utility>

namespace DataModel {

void PropertyTableData::removeAllRowData()
{
    m_rowList.clear();
}

void PropertyTableData::appendRowKeyValue(QString key, QString value, bool isEditable)
{
    m_rowList.append({std::move(key), std::move(value), isEditable});
}

int PropertyTableData::getRowCount() const
{
    return m_rowList.size();
}

QString PropertyTableData::getRowKey(int row) const
{
    return m_rowList.value(row).key;
}

QString PropertyTableData::getRowValue(int row) const
{
    return m_rowList.value(row).value;
}

bool PropertyTableData::getRowIsEditable(int row) const
{
    return m_rowList.value(row).isEditable;
}

} // namespace DataModel
