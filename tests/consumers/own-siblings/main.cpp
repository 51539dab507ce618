// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// An application whose own sibling libraries stand in place of the bundled ones: its files live in memory, its hub
// and records are its own. Prints "consumer: ok" when the library has used them.

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <configoption/TextCipher.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    int titles = 0;
    QObject::connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateWindowTitle,
                     [&titles] { ++titles; });
    DataManager::SelectedDataManager::getInstance()->init();
    DataManager::RelativeCoordinateSystemDate::getInstance()->writeConfig();
    DataManager::MaterialLibraryManager::getInstance()->createProjectMat(QStringLiteral("one"), QStringLiteral("eins"),
                                                                         {}, {}, {}, {}, {});

    const QMap<QString, QByteArray>& files = BaseModule::GlobalHelper::files();
    const bool isTold = titles == 1;
    const bool isKept = files.contains(QStringLiteral("memory/RelativeCoordinateSystemDate.json"));
    const bool isEnciphered = files.value(QStringLiteral("memory/MaterialLibrary.json")).startsWith("secret:");
    std::puts(isTold && isKept && isEnciphered ? "consumer: ok" : "consumer: failed");
    return isTold && isKept && isEnciphered ? 0 : 1;
}
