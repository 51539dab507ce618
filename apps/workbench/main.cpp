// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/Graphics.h>
#include <workbench/window/MainWindow.h>

#include <QApplication>

int main(int argc, char** argv)
{
    Workbench::prepareGraphics();
    QApplication application(argc, argv);
    Workbench::MainWindow window;
    window.show();
    return QApplication::exec();
}
