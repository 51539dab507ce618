// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/SelectModel.h>

#include <QList>
#include <QPair>

namespace DataModel {
class SelectedDataBase;
}

namespace DataManager {

using RecordList = QList<DataModel::SelectedDataBase*>;
using PairList = QList<QPair<int, int>>;

/// Whether the item has this model and these identifiers, of which a negative one stands for any.
bool matches(const DataModel::SelectedDataBase& item, BaseModule::SelectModel model, int firstID, int secondID);

/// The position of the first item that matches; -1 when none does.
int firstMatch(const RecordList& items, BaseModule::SelectModel model, int firstID, int secondID);

/// The item's identifiers.
QPair<int, int> identifiers(const DataModel::SelectedDataBase& item);

} // namespace DataManager
