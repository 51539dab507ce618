// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSortFilterProxyModel>

namespace Workbench {

/// The materials of a MaterialTable that hold a text in any column and, if so wanted, are favourites.
class MaterialFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit MaterialFilter(QObject* parent);

    void showOnlyFavourites(bool areOnlyFavourites);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool m_areOnlyFavourites = false;
};

} // namespace Workbench
