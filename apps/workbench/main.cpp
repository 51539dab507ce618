// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/window/CommandLine.h>
#include <workbench/window/Graphics.h>
#include <workbench/window/Language.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/Termination.h>

#include <console/Console.h>

#include <QApplication>
#include <QTimer>

namespace {

/// The call that is left when the language is chosen.
Workbench::CommandLine readCall()
{
    QStringList arguments = QCoreApplication::arguments();
    const bool isLanguage = Workbench::Language::instance()->restore(arguments);
    Workbench::CommandLine call = Workbench::parseCommandLine(arguments);
    call.isLanguageUnknown = !isLanguage;
    return call;
}

int runWindow(const QString& file)
{
    Workbench::MainWindow window;
    window.show();
    if (!file.isEmpty()) {
        QTimer::singleShot(0, &window, [&window, file] { window.openFile(file); });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    Workbench::prepareGraphics();
    QCoreApplication::setOrganizationName(QStringLiteral("DataManager"));
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    Console::setProgramName(QStringLiteral("workbench"));
    if (Workbench::asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        const Workbench::CommandLine call = readCall();
        const Workbench::ExitCode code = Workbench::checkCommandLine(call);
        return code == Workbench::Success ? Workbench::printText(call) : code;
    }
    QApplication application(argc, argv);
    Workbench::endOnSignals(&application);
    const Workbench::CommandLine call = readCall();
    const Workbench::ExitCode code = Workbench::checkCommandLine(call);
    if (code != Workbench::Success) {
        return code;
    }
    const int status = runWindow(call.file);
    Workbench::MesherProcess::instance()->cancel();
    Workbench::Project::instance()->close();
    return status;
}
