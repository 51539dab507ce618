// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ProjectWindowTest.h"

#include <workbench/project/RecentProjects.h>
#include <workbench/window/MeshingDialog.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QImage>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>

using DataManager::SelectedDataManager;
using namespace Workbench;

/// The dialogs and other ways by which files come and go, each used as a user does.
class tst_ProjectDialogs : public ProjectWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { showWindow(); }
    void init() { begin(); }
    void cleanupTestCase() { end(); }

    void openDialogOpens_data();
    void openDialogOpens();
    void openDialogIsCancelled();
    void saveAsAddsTheSuffix();
    void saveAsAsksBeforeItReplaces();
    void saveWithoutAPathAsks();
    void failedSavingIsSeen();
    void picture();
    void dropsAFile();
    void dropsSeveralFiles();
    void dropsNoFile();
    void recentProjectThatIsGone();
    void meshingDialogMeshes();
    void meshingDialogIsCancelled();
    void meshingIsCancelledByItsButton();
    void oneMeshingAtATime();
    void namesTheSelection_data();
    void namesTheSelection();
    void about();

private:
    /// Whether the window takes what is dropped on it.
    bool drop(const QList<QUrl>& urls);
};

void tst_ProjectDialogs::openDialogOpens_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a mesh") << samplePath("slivers.msh");
    QTest::newRow("a project") << QStringLiteral("project");
}

void tst_ProjectDialogs::openDialogOpens()
{
    QFETCH(QString, file);
    if (file == QLatin1String("project")) {
        openMesh(samplePath("slivers.msh"));
        file = path("opened.wbproj");
        QVERIFY(Project::instance()->saveAs(file));
        QVERIFY(Project::instance()->create());
    }
    m_dialogs.giveFile(file);
    trigger("Open…");
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(waitForMesh());
    QCOMPARE(MeshManager::instance()->getElementCount(1), 3156);
}

void tst_ProjectDialogs::openDialogIsCancelled()
{
    m_dialogs.meet<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    trigger("Open…");
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(!MeshManager::instance()->isLoading());
    QCOMPARE(Project::instance()->path(), QString());
}

void tst_ProjectDialogs::saveAsAddsTheSuffix()
{
    m_dialogs.giveFile(path("named"));
    trigger("Save as…");
    QVERIFY(QTest::qWaitFor(isIdle, 60000));
    QCOMPARE(Project::instance()->path(), path("named.wbproj"));
    QVERIFY(QFileInfo(path("named.wbproj")).size() > 0);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("named[*] – Workbench"));
    m_dialogs.meet<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    trigger("Save as…");
    QCOMPARE(m_dialogs.met(), 2);
    QVERIFY(!Project::instance()->isSaving());
}

void tst_ProjectDialogs::saveAsAsksBeforeItReplaces()
{
    writeFile(path("other.wbproj"), "precious");
    m_dialogs.giveFile(path("other"));
    // The question stands before the dialog, which is left, too.
    m_dialogs.meet<QMessageBox>([this](QMessageBox& box) {
        m_dialogs.meet<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    trigger("Save as…");
    QCOMPARE(m_dialogs.met(), 3);
    QFile file(path("other.wbproj"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

void tst_ProjectDialogs::saveWithoutAPathAsks()
{
    m_dialogs.giveFile(path("first.wbproj"));
    trigger("Save");
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(QTest::qWaitFor(isIdle, 60000));
    QCOMPARE(Project::instance()->path(), path("first.wbproj"));
    GeometryManager::instance()->addSet(QStringLiteral("set"), {});
    QVERIFY(m_window->isWindowModified());
    trigger("Save");
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(QTest::qWaitFor(isIdle, 60000));
    QVERIFY(!m_window->isWindowModified());
}

// Also when the panel of messages was closed.
void tst_ProjectDialogs::failedSavingIsSeen()
{
    auto* dock = qobject_cast<QDockWidget*>(m_window->findChild<MessagePanel*>()->parentWidget());
    dock->close();
    QVERIFY(!dock->isVisible());
    Project::instance()->startSaving(path("no/such/folder.wbproj"));
    QVERIFY(QTest::qWaitFor(isIdle, 60000));
    QVERIFY(dock->isVisible());
    QVERIFY2(lastMessage().contains(QStringLiteral("could not be written")), qPrintable(lastMessage()));
    QCOMPARE(Project::instance()->path(), QString());
}

void tst_ProjectDialogs::picture()
{
    openMesh(samplePath("slivers.msh"));
    m_dialogs.giveFile(path("view"));
    trigger("Save picture…");
    QCOMPARE(m_dialogs.met(), 1);
    const QImage image(path("view.png"));
    QVERIFY(!image.isNull());
    QVERIFY(image.width() > 100 && image.height() > 100);
    m_dialogs.meet<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    trigger("Save picture…");
    QCOMPARE(m_dialogs.met(), 2);
}

bool tst_ProjectDialogs::drop(const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(m_window.get(), &enter);
    if (enter.isAccepted()) {
        QDropEvent event(QPointF(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &event);
    }
    return enter.isAccepted();
}

void tst_ProjectDialogs::dropsAFile()
{
    QVERIFY(drop({QUrl::fromLocalFile(samplePath("slivers.msh"))}));
    QVERIFY(QTest::qWaitFor([] { return MeshManager::instance()->getKernelCount() == 1; }, 60000));
    QCOMPARE(MeshManager::instance()->getElementCount(1), 3156);
}

void tst_ProjectDialogs::dropsSeveralFiles()
{
    QVERIFY(drop({QUrl(QStringLiteral("https://example.org/mesh.msh")), QUrl::fromLocalFile(samplePath("slivers.msh")),
                  QUrl::fromLocalFile(samplePath("thin-walled.msh"))}));
    QVERIFY2(lastMessage().contains(samplePath("slivers.msh")), qPrintable(lastMessage()));
    QVERIFY(QTest::qWaitFor([] { return MeshManager::instance()->getKernelCount() == 1; }, 60000));
    QCOMPARE(MeshManager::instance()->getKernelName(1), QStringLiteral("slivers"));
}

void tst_ProjectDialogs::dropsNoFile()
{
    QVERIFY(!drop({QUrl(QStringLiteral("https://example.org/mesh.msh"))}));
    QVERIFY(!drop({}));
    QVERIFY(drop({QUrl::fromLocalFile(m_directory->path())}));
    QVERIFY(QTest::qWaitFor([this] { return lastMessage().contains(m_directory->path()); }, 60000));
    QCOMPARE(MeshManager::instance()->getKernelCount(), 0);
}

void tst_ProjectDialogs::recentProjectThatIsGone()
{
    QVERIFY(Project::instance()->saveAs(path("gone.wbproj")));
    QVERIFY(Project::instance()->create());
    QAction* entry = action(qPrintable(path("gone.wbproj")));
    QVERIFY(entry != nullptr);
    QVERIFY(QFile::remove(path("gone.wbproj")));
    entry->trigger();
    QVERIFY(QTest::qWaitFor(isIdle, 60000));
    QVERIFY2(lastMessage().contains(QStringLiteral("no such file")), qPrintable(lastMessage()));
    auto* menu = qobject_cast<QMenu*>(entry->parentWidget() != nullptr ? entry->parentWidget() : entry->parent());
    QVERIFY(menu != nullptr);
    Q_EMIT menu->aboutToShow();
    QVERIFY(action(qPrintable(path("gone.wbproj"))) == nullptr);
}

void tst_ProjectDialogs::meshingDialogMeshes()
{
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    trigger("Mesh the geometry…");
    auto* dialog = m_window->findChild<MeshingDialog*>();
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowExposed(dialog));
    auto* field = dialog->findChild<QLineEdit*>();
    QTest::keyClicks(field, QStringLiteral("x"));
    QTest::keyClick(field, Qt::Key_Return); // refused
    QVERIFY(dialog->isVisible() && !MesherProcess::instance()->isRunning());
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(MesherProcess::instance()->isRunning());
    QVERIFY(loaded.wait(120000));
    const int kernel = loaded.last().at(0).toInt();
    QVERIFY(kernel > 0);
    QCOMPARE(MeshManager::instance()->getKernelName(kernel), QStringLiteral("slivers"));
    QCOMPARE(MeshManager::instance()->getOrigin(kernel), QFileInfo(samplePath("slivers.geo")).absoluteFilePath());
}

void tst_ProjectDialogs::meshingDialogIsCancelled()
{
    m_window->openFile(samplePath("slivers.geo"));
    auto* dialog = m_window->findChild<MeshingDialog*>();
    QVERIFY(dialog != nullptr && QTest::qWaitForWindowExposed(dialog));
    QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QVERIFY(!MesherProcess::instance()->isRunning());
    QVERIFY(action("Mesh the geometry…")->isEnabled()); // the geometry is there
    m_window->openFile(path("absent.step"));
    QVERIFY2(lastMessage().contains(QStringLiteral("absent.step")), qPrintable(lastMessage()));
}

void tst_ProjectDialogs::meshingIsCancelledByItsButton()
{
    const int kernel = openMesh(samplePath("slivers.msh"));
    runLongMesher();
    auto* button = m_window->findChild<QToolButton*>(QStringLiteral("cancelTask"));
    auto* text = m_window->findChild<QLabel*>(QStringLiteral("taskText"));
    QTRY_VERIFY(button->isVisible());
    QCOMPARE(text->text(), QStringLiteral("Meshing slivers.geo"));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!MesherProcess::instance()->isRunning());
    QVERIFY(!button->isVisible());
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
}

void tst_ProjectDialogs::oneMeshingAtATime()
{
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    runLongMesher();
    QVERIFY(!action("Mesh the geometry…")->isEnabled());
    m_window->openFile(samplePath("plate-with-hole.geo"));
    QVERIFY2(lastMessage().contains(QStringLiteral("still at work")), qPrintable(lastMessage()));
    QCOMPARE(Project::instance()->geometryName(), QStringLiteral("slivers.geo"));
    QVERIFY(Project::instance()->create()); // ends it
    QVERIFY(!MesherProcess::instance()->isRunning());
}

void tst_ProjectDialogs::namesTheSelection_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("sets");
    const QStringList none;
    QTest::newRow("a name") << QStringLiteral("held") << static_cast<int>(Qt::Key_Return)
                            << QStringList{QStringLiteral("held")};
    QTest::newRow("spaces around") << QStringLiteral("  held ") << static_cast<int>(Qt::Key_Return)
                                   << QStringList{QStringLiteral("held")};
    QTest::newRow("cancelled") << QStringLiteral("held") << static_cast<int>(Qt::Key_Escape) << none;
    QTest::newRow("no name") << QStringLiteral(" ") << static_cast<int>(Qt::Key_Return) << none;
}

void tst_ProjectDialogs::namesTheSelection()
{
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QStringList, sets);
    QVERIFY(openMesh(samplePath("bearing-housing.msh")) > 0);
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::GeometryFace);
    QTRY_VERIFY(!action("Name the selection…")->isEnabled());
    selection->clickViewObject(1, 4);
    QTRY_VERIFY(action("Name the selection…")->isEnabled());
    m_dialogs.meet<QInputDialog>([typed, key](QInputDialog& dialog) {
        auto* field = dialog.findChild<QLineEdit*>();
        QCOMPARE(field->text(), QStringLiteral("set 1"));
        field->setText(typed);
        QTest::keyClick(field, static_cast<Qt::Key>(key));
    });
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window.get(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(setNames(), sets);
    for (int setID : GeometryManager::instance()->findSets(QString())) {
        const QList<QPair<int, int>> face{{1, 4}};
        QCOMPARE(GeometryManager::instance()->getSetMembers(setID), face);
    }
}

void tst_ProjectDialogs::about()
{
    QString text;
    m_dialogs.meet<QMessageBox>([&text](QMessageBox& box) {
        text = box.text();
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    trigger("About");
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY2(text.endsWith(QStringLiteral("\nVersion " WORKBENCH_VERSION)), qPrintable(text));
}

WORKBENCH_TEST_MAIN(tst_ProjectDialogs)
#include "tst_projectdialogs.moc"
