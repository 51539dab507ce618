// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/window/Graphics.h>
#include <workbench/window/Language.h>
#include <workbench/window/MainWindow.h>

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv)
{
    Workbench::prepareGraphics();
    QApplication::setOrganizationName(QStringLiteral("DataManager"));
    QApplication::setApplicationName(QStringLiteral("workbench"));
    QApplication application(argc, argv);
    Workbench::Language::instance()->restore();
    int status = 0;
    {
        Workbench::MainWindow window;
        window.show();
        const QStringList arguments = QApplication::arguments();
        if (arguments.size() > 1) {
            QTimer::singleShot(0, &window, [&window, arguments] { window.openFile(arguments.at(1)); });
        }
        status = QApplication::exec();
    }
    Workbench::MesherProcess::instance()->cancel();
    Workbench::Project::instance()->close();
    return status;
}
