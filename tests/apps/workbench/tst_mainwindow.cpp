// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "WindowTest.h"

#include <workbench/window/MainWindow.h>

using Workbench::MainWindow;

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opens();
};

void tst_MainWindow::opens()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.isVisible());
    QVERIFY(window.width() >= 1000);
}

WORKBENCH_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
