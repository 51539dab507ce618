// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/window/Graphics.h>

#include <QApplication>
#include <QTest>

// The entry of a test with windows: as QTEST_MAIN, after the view's graphics were prepared.
#define WORKBENCH_TEST_MAIN(TestClass)                                                                                 \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        Workbench::prepareGraphics();                                                                                  \
        QApplication application(argc, argv);                                                                          \
        QTEST_SET_MAIN_SOURCE_PATH                                                                                     \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
