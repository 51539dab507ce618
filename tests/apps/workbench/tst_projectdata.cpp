// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "Samples.h"
#include "WindowTest.h"

#include <support/FilesAndLog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/project/Project.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/GlobalHelper.h>
#include <configoption/TextCipher.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/MaterialData.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>
#include <QUndoStack>

using Workbench::CoordinateDefinition;
using Workbench::CoordinateSystems;
using Workbench::MaterialLibraries;
using Workbench::Project;

namespace {

QByteArray workingFile(const char* name)
{
    return contentOf(BaseModule::GlobalHelper::getProjectTempIODir() + QLatin1Char('/') + QLatin1String(name));
}

QString materialJson()
{
    const QString text = QString::fromUtf8(workingFile("MaterialLibrary.json"));
    return ConfigOption::TextCipher::getInstance()->decryptData_CBC(text);
}

void makeContent()
{
    MaterialLibraries::instance()->import(BaseModule::SoftwareLib, {1, 15, 2}, {});
    const auto odd = QSharedPointer<DataModel::MaterialPropertyData>::create();
    odd->components = {1e-300, 0.1 + 0.2, -0.0, 5e-324, 1.7976931348623157e308, 0, 0, 0, 1.0 / 3};
    MaterialLibraries::instance()->create(BaseModule::ProjectLib, {0, text("怪"), text("Odd"), odd, {}, {}, {}, {}});
    MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {2});
    CoordinateSystems::instance()->create(0, {text("Table"), BaseModule::Cylindrical, {1e-300, 0.1 + 0.2, -0.0}, {}});
    CoordinateSystems::instance()->create(1, {text("Tool"), BaseModule::Cartesian, {1, 2, 3}, {0, 0, 1.0 / 3}});
}

void expectLines(int count, const char* pattern)
{
    for (int i = 0; i < count; ++i) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QLatin1String(pattern)));
    }
}

} // namespace

/// Materials and coordinate systems of a project that is saved and opened again.
class tst_ProjectData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksChanges();
    void comesBackExactly();
    void savesWhatCouldNotBeWritten();
    void failsWithoutWorkingFiles_data();
    void failsWithoutWorkingFiles();
    void keepsUnreadableFiles();
    void undoSelectsNoLaterSystem();
    void cleanupTestCase() { Project::instance()->close(); }
};

void tst_ProjectData::marksChanges()
{
    QVERIFY(Project::instance()->create());
    QVERIFY(!Project::instance()->isModified());
    MaterialLibraries::instance()->import(BaseModule::SoftwareLib, {1}, {});
    QVERIFY(Project::instance()->isModified());
    QVERIFY(Project::instance()->create());
    QVERIFY(!Project::instance()->isModified());
    CoordinateSystems::instance()->create(0, {text("Table"), BaseModule::Cartesian, {}, {}});
    QVERIFY(Project::instance()->isModified());
}

void tst_ProjectData::comesBackExactly()
{
    QVERIFY(Project::instance()->create());
    Workbench::MaterialDock materials;
    Workbench::CoordinateDock systems;
    const QAbstractItemModel& list = *materials.findChild<QTreeView*>(text("materialsProject"))->model();
    const QTreeWidget& tree = *systems.findChild<QTreeWidget*>(text("coordinateTree"));
    makeContent();
    const QString savedMaterials = materialJson();
    const QByteArray savedSystems = workingFile("RelativeCoordinateSystemDate.json");
    QVERIFY(savedMaterials.contains(text("Odd")) && savedSystems.contains("Tool"));
    const QTemporaryDir directory;
    QVERIFY(Project::instance()->saveAs(directory.filePath(text("example.wbproj"))));
    QVERIFY(!Project::instance()->isModified());

    QVERIFY(Project::instance()->create());
    QCOMPARE(list.rowCount(), 0);
    QCOMPARE(tree.topLevelItem(0)->childCount(), 0);

    QVERIFY(Project::instance()->open(directory.filePath(text("example.wbproj"))));
    QVERIFY(!Project::instance()->isModified());
    QCOMPARE(materialJson(), savedMaterials);
    QCOMPARE(workingFile("RelativeCoordinateSystemDate.json"), savedSystems);
    QCOMPARE(list.rowCount(), 3);
    QCOMPARE(list.index(2, 1).data().toString(), text("Odd"));
    QCOMPARE(tree.topLevelItem(0)->child(0)->child(0)->text(0), text("Tool"));
    auto* const tool = DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(2);
    QVERIFY(tool->getActor() != nullptr);
    // What was read is what the next save writes.
    MaterialLibraries::instance()->update(BaseModule::ProjectLib, 4,
                                          *MaterialLibraries::material(BaseModule::ProjectLib, 4));
    QCOMPARE(materialJson(), savedMaterials);
}

// The disk was full when the systems and materials were changed, and is not when the project is saved.
void tst_ProjectData::savesWhatCouldNotBeWritten()
{
    QVERIFY(Project::instance()->create());
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("late.wbproj"));
    makeContent();
    QVERIFY(Project::instance()->saveAs(file));
    const QString materials = materialJson();
    const QByteArray systems = workingFile("RelativeCoordinateSystemDate.json");
    expectLines(1, "^Write project material library file fail");
    {
        const FileSizeLimit limit(16);
        MaterialLibraries::instance()->create(BaseModule::ProjectLib,
                                              {0, text("晚"), text("Late"), {}, {}, {}, {}, {}});
        CoordinateSystems::instance()->create(0, {text("Late"), BaseModule::Cartesian, {}, {}});
    }
    QCOMPARE(materialJson(), materials);
    QCOMPARE(workingFile("RelativeCoordinateSystemDate.json"), systems);
    QVERIFY(Project::instance()->save());
    QVERIFY(!Project::instance()->isModified());
    QVERIFY(Project::instance()->open(file));
    QVERIFY(materialJson().contains(text("Late")));
    QVERIFY(MaterialLibraries::material(BaseModule::ProjectLib, 5));
    QCOMPARE(CoordinateSystems::definition(3).name, text("Late"));
}

void tst_ProjectData::failsWithoutWorkingFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("materials") << text("MaterialLibrary.json");
    QTest::newRow("origins of materials") << text("MaterialOrigins.json");
    QTest::newRow("coordinate systems") << text("RelativeCoordinateSystemDate.json");
}

// A directory in the file's place cannot be replaced.
void tst_ProjectData::failsWithoutWorkingFiles()
{
    QFETCH(QString, name);
    QVERIFY(Project::instance()->create());
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("failed.wbproj"));
    QVERIFY(Project::instance()->saveAs(file));
    const QByteArray before = contentOf(file);
    QDir working(BaseModule::GlobalHelper::getProjectTempIODir());
    working.remove(name);
    QVERIFY(working.mkpath(name + text("/inside")));
    // Three changes, and the save.
    expectLines(name.startsWith(text("MaterialL")) ? 4 : 0, "^Write project material library file fail");
    makeContent();
    Messages messages;
    QVERIFY(!Project::instance()->save());
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(text("working files could not be written")),
             qPrintable(messages.list.first()));
    QVERIFY(Project::instance()->isModified());
    QCOMPARE(contentOf(file), before);
    QVERIFY(working.rmpath(name + text("/inside")));
    QVERIFY(Project::instance()->save());
    QVERIFY(!Project::instance()->isModified());
    QVERIFY(QFileInfo(working.filePath(name)).isFile());
}

void tst_ProjectData::keepsUnreadableFiles()
{
    QVERIFY(Project::instance()->create());
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("unreadable.wbproj"));
    expectLines(5, "^Decrypt text fail");
    const QString working = BaseModule::GlobalHelper::getProjectTempIODir();
    QVERIFY(!writeFile(working + text("/MaterialLibrary.json"), "damaged").isEmpty());
    QVERIFY(!writeFile(working + text("/RelativeCoordinateSystemDate.json"), "damaged").isEmpty());
    MaterialLibraries::instance()->loadProject();
    CoordinateSystems::instance()->loadProject();
    QVERIFY(Project::instance()->saveAs(file));
    QVERIFY(Project::instance()->open(file));
    QVERIFY(Project::instance()->save());
    QCOMPARE(workingFile("MaterialLibrary.json"), QByteArray("damaged"));
    QCOMPARE(workingFile("RelativeCoordinateSystemDate.json"), QByteArray("damaged"));
}

void tst_ProjectData::undoSelectsNoLaterSystem()
{
    QVERIFY(Project::instance()->create());
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    QUndoStack& steps = *Workbench::SelectionUndo::instance()->stack();
    Workbench::SelectionUndo::instance()->forget();
    const CoordinateDefinition definition = {text("Table"), BaseModule::Cartesian, {}, {}};
    const int deleted = CoordinateSystems::instance()->create(0, definition);
    selection->addSelectedTargetList(BaseModule::CoordinateAxes, {{deleted, -1}});
    CoordinateSystems::instance()->remove({deleted});
    CoordinateSystems::instance()->create(0, definition);
    QCOMPARE(steps.count(), 2);
    steps.undo();
    QVERIFY(selection->getSelectedDataList().isEmpty());
}

WORKBENCH_TEST_MAIN(tst_ProjectData)
#include "tst_projectdata.moc"
