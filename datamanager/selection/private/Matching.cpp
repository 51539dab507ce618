// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/selection/private/Matching.h>

#include <datamodel/SelectedDataBase.h>

namespace DataManager {

bool matches(const DataModel::SelectedDataBase& item, BaseModule::SelectModel model, int firstID, int secondID)
{
    return item.getSelectModel() == model && (firstID < 0 || item.getFirstID() == firstID) &&
           (secondID < 0 || item.getSecondID() == secondID);
}

int firstMatch(const RecordList& items, BaseModule::SelectModel model, int firstID, int secondID)
{
    for (int position = 0; position < items.size(); ++position) {
        if (matches(*items.at(position), model, firstID, secondID)) {
            return position;
        }
    }
    return -1;
}

QPair<int, int> identifiers(const DataModel::SelectedDataBase& item)
{
    return {item.getFirstID(), item.getSecondID()};
}

} // namespace DataManager
