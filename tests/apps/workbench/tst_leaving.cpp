// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileGate.h"
#include "ProjectWindowTest.h"

#include <workbench/window/TransferDialog.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>

using namespace Workbench;

/// A project is left, for another one or with the window, while something is unsaved or under way.
class tst_Leaving : public ProjectWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { showWindow(); }
    void init() { begin(); }
    void cleanupTestCase() { end(); }

    void closingStopsMeshing_data();
    void closingStopsMeshing();
    void closingSavesWhileReading();
    void closingAsksForTheNewMesh_data();
    void closingAsksForTheNewMesh();
    void closingAsksForChangesWhileSaving();
    void closingWaitsForSaving();
    void closingAfterFailedSavingStays();
    void openingIsCancelled();
    void newProjectAsks_data();
    void newProjectAsks();
};

void tst_Leaving::closingStopsMeshing_data()
{
    QTest::addColumn<bool>("isModified");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::newRow("go on") << false << static_cast<int>(QMessageBox::Yes) << true;
    QTest::newRow("stay") << false << static_cast<int>(QMessageBox::Cancel) << false;
    QTest::newRow("discard") << true << static_cast<int>(QMessageBox::Discard) << true;
    QTest::newRow("cancel") << true << static_cast<int>(QMessageBox::Cancel) << false;
    QTest::newRow("save") << true << static_cast<int>(QMessageBox::Save) << true;
}

void tst_Leaving::closingStopsMeshing()
{
    QFETCH(bool, isModified);
    QFETCH(int, button);
    QFETCH(bool, isClosed);
    QVERIFY(Project::instance()->saveAs(path("meshing.wbproj")));
    if (isModified) {
        GeometryManager::instance()->addSet(QStringLiteral("set"), {});
    }
    runLongMesher();
    m_dialogs.meet<QMessageBox>([button](QMessageBox& box) {
        QVERIFY((box.text() + box.informativeText()).contains(QStringLiteral("being meshed")));
        QTest::mouseClick(box.button(static_cast<QMessageBox::StandardButton>(button)), Qt::LeftButton);
    });
    QCOMPARE(m_window->close(), isClosed);
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(MesherProcess::instance()->isRunning(), !isClosed);
    MesherProcess::instance()->cancel();
    QCOMPARE(Project::instance()->isModified(), isModified && button != QMessageBox::Save);
}

void tst_Leaving::closingSavesWhileReading()
{
    QVERIFY(Project::instance()->saveAs(path("reading.wbproj")));
    GeometryManager::instance()->addSet(QStringLiteral("set"), {});
    MeshManager::instance()->openMesh(samplePath("bearing-housing.msh"));
    m_dialogs.press(QMessageBox::Save);
    QVERIFY(m_window->close());
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(Project::instance()->open(path("reading.wbproj")));
    QVERIFY(waitForMesh());
    QCOMPARE(MeshManager::instance()->getElementCount(1), 6811);
    // Without changes there is nothing to ask.
    MeshManager::instance()->openMesh(samplePath("slivers.msh"));
    QVERIFY(m_window->close());
    QCOMPARE(m_dialogs.met(), 1);
    QVERIFY(waitForMesh());
}

void tst_Leaving::closingAsksForTheNewMesh_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("save") << static_cast<int>(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << static_cast<int>(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << static_cast<int>(QMessageBox::Cancel) << false << false;
}

// The mesher is done, and its mesh is being read.
void tst_Leaving::closingAsksForTheNewMesh()
{
    QFETCH(int, button);
    QFETCH(bool, isClosed);
    QFETCH(bool, isSaved);
    QVERIFY(Project::instance()->saveAs(path("meshed.wbproj")));
    const QByteArray mesh = QFile::encodeName(samplePath("bearing-housing.msh"));
    const QString script =
        writeFile(path("mesher"), "#!/bin/sh\nwhile [ \"$1\" != -o ]; do shift; done\ncp '" + mesh + "' \"$2\"\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("WORKBENCH_GMSH", QFile::encodeName(script));
    m_dialogs.press(static_cast<QMessageBox::StandardButton>(button));
    // Closed at once when reading begins, so that it cannot be done.
    bool isUnderWay = false;
    bool isGone = false;
    QObject context;
    connect(MesherProcess::instance(), &MesherProcess::signal_finished, &context, [&] {
        QTimer::singleShot(0, &context, [&] {
            isUnderWay = MeshManager::instance()->isLoading() && !Project::instance()->isModified();
            isGone = m_window->close();
            context.setObjectName(QStringLiteral("closed"));
        });
    });
    QVERIFY(MesherProcess::instance()->start(samplePath("slivers.geo")));
    QVERIFY(QTest::qWaitFor([&context] { return !context.objectName().isEmpty(); }, 60000));
    QVERIFY(isUnderWay);
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(isGone, isClosed);
    QVERIFY(waitForMesh());
    QVERIFY(!MesherProcess::instance()->isResultRead());
    QVERIFY(Project::instance()->open(path("meshed.wbproj")));
    QVERIFY(waitForMesh());
    QCOMPARE(MeshManager::instance()->getElementCount(1), isSaved ? 6811 : 0);
}

void tst_Leaving::closingAsksForChangesWhileSaving()
{
    QVERIFY(Project::instance()->saveAs(path("changed.wbproj")));
    GeometryManager::instance()->addSet(QStringLiteral("early"), {});
    makeSlow();
    QObject context;
    connect(Project::instance(), &Project::signal_transferProgress, &context, [this] {
        if (setNames().size() == 1) {
            GeometryManager::instance()->addSet(QStringLiteral("late"), {});
            m_dialogs.press(QMessageBox::Cancel);
        }
    });
    m_dialogs.press(QMessageBox::Save);
    QVERIFY(!m_window->close());
    QCOMPARE(m_dialogs.met(), 2);
    QCOMPARE(setNames().size(), 2);
    QVERIFY(Project::instance()->isModified());
}

void tst_Leaving::closingWaitsForSaving()
{
    makeSlow();
    Project::instance()->startSaving(path("slow.wbproj"));
    QVERIFY(m_window->close());
    QVERIFY(!Project::instance()->isSaving());
    QVERIFY(QFileInfo(path("slow.wbproj")).size() > slowSize);
}

void tst_Leaving::closingAfterFailedSavingStays()
{
    Project::instance()->startSaving(path("no/such/folder.wbproj"));
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible());
    QVERIFY2(lastMessage().contains(QStringLiteral("could not be written")), qPrintable(lastMessage()));
}

void tst_Leaving::openingIsCancelled()
{
    QVERIFY(Project::instance()->saveAs(path("gated.wbproj")));
    QVERIFY(Project::instance()->create());
    GeometryManager::instance()->addSet(QStringLiteral("kept"), {});
    // The opening waits at the file until it was cancelled, so that the dialog comes in any case.
    auto* gate = new FileGate(QStringLiteral("gated.wbproj"));
    m_dialogs.meet<TransferDialog>([gate](TransferDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        gate->open();
    });
    Messages messages;
    Project::instance()->startOpening(path("gated.wbproj"));
    QVERIFY(!TransferDialog::wait(m_window.get(), QStringLiteral("Opening")));
    QVERIFY(gate->hasHeld());
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(messages.list, QStringList());
    QCOMPARE(setNames(), QStringList{QStringLiteral("kept")});
    QCOMPARE(Project::instance()->path(), QString());
    // Nothing else kept the project from being opened.
    QVERIFY(Project::instance()->open(path("gated.wbproj")));
    QCOMPARE(setNames(), QStringList());
}

void tst_Leaving::newProjectAsks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QStringList>("sets");
    QTest::newRow("cancel") << static_cast<int>(QMessageBox::Cancel) << QStringList{QStringLiteral("kept")};
    QTest::newRow("discard") << static_cast<int>(QMessageBox::Discard) << QStringList();
}

void tst_Leaving::newProjectAsks()
{
    QFETCH(int, button);
    QFETCH(QStringList, sets);
    QVERIFY(Project::instance()->saveAs(path("before.wbproj")));
    GeometryManager::instance()->addSet(QStringLiteral("kept"), {});
    m_dialogs.press(static_cast<QMessageBox::StandardButton>(button));
    trigger("New project");
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(setNames(), sets);
    QCOMPARE(Project::instance()->path(), sets.isEmpty() ? QString() : path("before.wbproj"));
    QCOMPARE(Project::instance()->isModified(), !sets.isEmpty());
    // Neither answer writes anything.
    QVERIFY(Project::instance()->open(path("before.wbproj")));
    QCOMPARE(setNames(), QStringList());
    // Without changes nothing is asked.
    trigger("New project");
    QCOMPARE(m_dialogs.met(), 1);
    QCOMPARE(Project::instance()->path(), QString());
}

WORKBENCH_TEST_MAIN(tst_Leaving)
#include "tst_leaving.moc"
