// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// The smallest application: it listens to the hub and selects. Prints "consumer: ok".

#include <basemodule/IBaseSignal.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    int refreshes = 0;
    QObject::connect(BaseModule::IBaseSignal::getInstance(),
                     &BaseModule::IBaseSignal::signal_refreshActionOnSelectDataChanged, [&refreshes] { ++refreshes; });
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    selection->init();
    selection->clickViewObject(3, -1);
    const bool isSelected = refreshes == 1 && selection->getGeometryIsHighLight(3);
    std::puts(isSelected ? "consumer: ok" : "consumer: failed");
    return isSelected ? 0 : 1;
}
