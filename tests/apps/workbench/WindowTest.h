// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/window/Graphics.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// The entry of a test with windows: as QTEST_MAIN, after the view's graphics were prepared. Settings and working
// directories are the test's own and empty at first.
#define WORKBENCH_TEST_MAIN(TestClass)                                                                                 \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        Workbench::prepareGraphics();                                                                                  \
        QApplication::setOrganizationName(QStringLiteral("DataManager"));                                              \
        QApplication::setApplicationName(QStringLiteral("workbench-test"));                                            \
        /* Without a window manager a request for the focus may come before the window is there. */                    \
        qputenv("QT_LOGGING_RULES", "qt.qpa.xcb.warning=false");                                                       \
        QTemporaryDir home;                                                                                            \
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral("config"))));                        \
        qputenv("XDG_CACHE_HOME", QFile::encodeName(home.filePath(QStringLiteral("cache"))));                          \
        QApplication application(argc, argv);                                                                          \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
