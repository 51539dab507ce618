// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ScriptedWindowTest.h"

#include "ModalWindows.h"
#include "Samples.h"
#include "Widgets.h"

#include <workbench/project/Project.h>
#include <workbench/view/View3D.h>
#include <workbench/view/ViewCommands.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/MeshingDialog.h>

#include <datamanager/frame/InteractionManager.h>

#include <QAction>
#include <QMouseEvent>
#include <QTreeView>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>

using DataManager::InteractionManager;
using namespace Workbench;

void ScriptedWindowTest::settle()
{
    QTest::qWait(60);
}

void ScriptedWindowTest::showWindow()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_canvas = m_window->findChild<View3D*>()->findChild<QVTKOpenGLNativeWidget*>();
    m_canvas->setFocus();
}

void ScriptedWindowTest::end()
{
    m_window.reset();
    Project::instance()->close();
}

vtkRenderer& ScriptedWindowTest::renderer() const
{
    return *m_canvas->renderWindow()->GetRenderers()->GetFirstRenderer();
}

vtkCamera& ScriptedWindowTest::camera() const
{
    return *renderer().GetActiveCamera();
}

void ScriptedWindowTest::choose(const char* text) const
{
    for (QAction* action : m_window->findChildren<QAction*>()) {
        if (action->text().remove(QLatin1Char('&')) == QString::fromUtf8(text)) {
            QVERIFY2(action->isEnabled(), text);
            action->trigger();
            settle();
            return;
        }
    }
    QFAIL(text);
}

void ScriptedWindowTest::mesh(const QString& size)
{
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    auto* dialog = m_window->findChild<MeshingDialog*>();
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowExposed(dialog));
    type(*dialog->findChild<QLineEdit*>(), size);
    QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    QVERIFY(loaded.wait(120000));
    QVERIFY(loaded.last().at(0).toInt() > 0);
    finishClosing();
    m_window->activateWindow();
    m_canvas->setFocus();
    settle();
}

QPointF ScriptedWindowTest::placeOf(double x, double y, double z) const
{
    renderer().SetWorldPoint(x, y, z, 1);
    renderer().WorldToDisplay();
    const double* place = renderer().GetDisplayPoint();
    return {place[0], m_canvas->height() - 1 - place[1]};
}

void ScriptedWindowTest::clickAt(double x, double y, double z) const
{
    const Qt::KeyboardModifiers modifiers = InteractionManager::getInstance()->isActiveMultipleSelect()
                                                ? Qt::KeyboardModifiers(Qt::ControlModifier)
                                                : Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::mouseClick(m_canvas, Qt::LeftButton, modifiers, placeOf(x, y, z).toPoint());
    settle();
}

void ScriptedWindowTest::drag(const QPoint& from, const QPoint& to) const
{
    QTest::mousePress(m_canvas, Qt::LeftButton, Qt::NoModifier, from);
    for (const QPoint& place : {(from + to) / 2, to}) {
        QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_canvas, &move);
    }
    QTest::mouseRelease(m_canvas, Qt::LeftButton, Qt::NoModifier, to);
    settle();
}

void ScriptedWindowTest::saveAs(const QString& path)
{
    ModalWindows dialogs;
    dialogs.giveFile(path);
    choose("Save as…");
    QCOMPARE(dialogs.met(), 1);
    QVERIFY(QTest::qWaitFor([] { return !Project::instance()->isSaving(); }, 60000));
    QCOMPARE(Project::instance()->path(), path);
    QVERIFY(!Project::instance()->isModified());
}

QImage ScriptedWindowTest::picture() const
{
    const QString path = m_directory.filePath(QStringLiteral("picture.png"));
    ViewCommands::instance()->saveScreenshot(path);
    return QImage(path);
}

QString ScriptedWindowTest::projectMaterials() const
{
    QStringList texts;
    const QAbstractItemModel& model = *part<QTreeView>(*m_window, "materialsProject").model();
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data().toString() + QLatin1Char(' ') + model.index(row, 1).data().toString());
    }
    return texts.join(QStringLiteral("; "));
}
