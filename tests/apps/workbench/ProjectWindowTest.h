// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "ModalWindows.h"
#include "ProjectContent.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/MessagePanel.h>

#include <QAction>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <memory>

/// A test with the whole window, an empty project and an empty directory, in which dialogs are met.
class ProjectWindowTest : public QObject
{
protected:
    void showWindow()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_window = std::make_unique<Workbench::MainWindow>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void begin()
    {
        qunsetenv("WORKBENCH_GMSH");
        m_dialogs.forget();
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(Workbench::Project::instance()->create());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void end()
    {
        m_window.reset();
        Workbench::Project::instance()->close();
    }

    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }

    QAction* action(const char* text) const
    {
        for (QAction* found : m_window->findChildren<QAction*>()) {
            if (found->text().remove(QLatin1Char('&')) == QString::fromUtf8(text)) {
                return found;
            }
        }
        return nullptr;
    }

    void trigger(const char* text) const
    {
        QVERIFY2(action(text) != nullptr && action(text)->isEnabled(), text);
        action(text)->trigger();
    }

    QString lastMessage() const
    {
        const auto* list = m_window->findChild<Workbench::MessagePanel*>()->findChild<QTreeWidget*>();
        const QTreeWidgetItem* last = list->topLevelItem(list->topLevelItemCount() - 1);
        return last == nullptr ? QString() : last->text(1);
    }

    /// A mesher that is still at work when it is asked to end.
    void runLongMesher() const
    {
        const QString script = writeFile(path("mesher"), "#!/bin/sh\nexec sleep 600\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("WORKBENCH_GMSH", QFile::encodeName(script));
        QVERIFY(Workbench::MesherProcess::instance()->start(samplePath("slivers.geo")));
    }

    static QStringList setNames()
    {
        QStringList names;
        for (int setID : Workbench::GeometryManager::instance()->findSets(QString())) {
            names.append(Workbench::GeometryManager::instance()->getSetName(setID));
        }
        return names;
    }

    static bool isIdle()
    {
        return !Workbench::Project::instance()->isSaving() && !Workbench::Project::instance()->isOpening();
    }

    static bool waitForMesh()
    {
        return QTest::qWaitFor([] { return !Workbench::MeshManager::instance()->isLoading(); }, 60000);
    }

    std::unique_ptr<Workbench::MainWindow> m_window;
    std::unique_ptr<QTemporaryDir> m_directory;
    ModalWindows m_dialogs;
};
