// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialFilter.h>

#include <workbench/material/MaterialTable.h>

namespace Workbench {

MaterialFilter::MaterialFilter(QObject* parent) : QSortFilterProxyModel(parent)
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setFilterKeyColumn(-1);
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

void MaterialFilter::showOnlyFavourites(bool areOnlyFavourites)
{
    m_areOnlyFavourites = areOnlyFavourites;
    invalidateFilter();
}

bool MaterialFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    return (!m_areOnlyFavourites || index.data(MaterialTable::FavouriteRole).toBool()) &&
           QSortFilterProxyModel::filterAcceptsRow(row, parent);
}

} // namespace Workbench
