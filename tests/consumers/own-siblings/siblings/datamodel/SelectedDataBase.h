// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/SelectModel.h>

#include <QObject>

namespace DataModel {

class SelectedDataBase : public QObject
{
    Q_OBJECT

public:
    int getFirstID() const { return first; }
    void setFirstID(int id) { first = id; }
    int getSecondID() const { return second; }
    void setSecondID(int id) { second = id; }
    BaseModule::SelectModel getSelectModel() const { return model; }
    void setSelectModel(BaseModule::SelectModel value) { model = value; }

private:
    int first = -1;
    int second = -1;
    BaseModule::SelectModel model = BaseModule::FirstModel;
};

} // namespace DataModel
