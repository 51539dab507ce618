// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "Samples.h"
#include "Widgets.h"
#include "WindowTest.h"

#include <support/FilesAndLog.h>
#include <workbench/coordinates/CoordinateDialog.h>
#include <workbench/coordinates/CoordinateDock.h>
#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/material/MaterialDock.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/project/Project.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/GlobalHelper.h>
#include <basewidget/FixedPixelSizeAxesActor.h>
#include <configoption/TextCipher.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/MaterialData.h>

#include <QCheckBox>
#include <QJsonDocument>
#include <QJsonObject>
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

/// "1 all but [2,3]"
QString displayText()
{
    const Workbench::CoordinateDisplay display = CoordinateSystems::instance()->display();
    QStringList hidden;
    for (const int id : display.hiddenIDs) {
        hidden.append(QString::number(id));
    }
    return text("%1 %2 but [%3]")
        .arg(QString::number(display.currentID), display.areAxesShown ? text("all") : text("none"),
             hidden.join(QLatin1Char(',')));
}

/// Rewrites a project with other members in its description; undefined ones are left out.
void describeAnew(const QString& file, const QJsonObject& members)
{
    const QTemporaryDir content;
    QCOMPARE(Workbench::ProjectArchive::unpack(file, content.path()), QString());
    const QString path = content.filePath(text("project.json"));
    QJsonObject description = QJsonDocument::fromJson(contentOf(path)).object();
    for (const char* key : {"currentCoordinateSystem", "axesShown", "hiddenAxes"}) {
        QVERIFY(description.contains(QLatin1String(key)));
        description.insert(QLatin1String(key), members.value(QLatin1String(key)));
    }
    QVERIFY(!writeFile(path, QJsonDocument(description).toJson()).isEmpty());
    const QStringList names = QDir(content.path()).entryList(QDir::Files);
    QCOMPARE(Workbench::ProjectArchive::pack(content.path(), names, file), QString());
}

void expectLines(int count, const char* pattern)
{
    for (int i = 0; i < count; ++i) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QLatin1String(pattern)));
    }
}

constexpr const char* systemsName = "RelativeCoordinateSystemDate.json";
constexpr const char* keptSystemsName = "RelativeCoordinateSystemDate.json.unreadable";

/// A project whose file of coordinate systems has that content, which cannot be read.
void saveWithSystems(const QByteArray& content, const QString& file)
{
    QVERIFY(Project::instance()->create());
    const QString path = BaseModule::GlobalHelper::getProjectTempIODir() + QLatin1Char('/') + text(systemsName);
    QVERIFY(!writeFile(path, content).isEmpty());
    CoordinateSystems::instance()->loadProject();
    QVERIFY(Project::instance()->saveAs(file));
}

} // namespace

/// Materials and coordinate systems of a project that is saved and opened again.
class tst_ProjectData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksChanges();
    void marksChangesOfTheDisplay_data();
    void marksChangesOfTheDisplay();
    void comesBackExactly();
    void passesOverDamagedDisplay_data();
    void passesOverDamagedDisplay();
    void savesWhatCouldNotBeWritten();
    void failsWithoutWorkingFiles_data();
    void failsWithoutWorkingFiles();
    void keepsUnreadableFiles();
    void keepsDamagedSystems_data();
    void keepsDamagedSystems();
    void tellsWhenNoCopyCanBeKept();
    void opensWithoutSystems();
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

void tst_ProjectData::marksChangesOfTheDisplay_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("areShown");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("current system") << 1 << true << true;
    QTest::newRow("axes of all") << 0 << false << true;
    QTest::newRow("axes of one") << 0 << true << false;
}

void tst_ProjectData::marksChangesOfTheDisplay()
{
    QFETCH(int, current);
    QFETCH(bool, areShown);
    QFETCH(bool, isShown);
    CoordinateSystems* const systems = CoordinateSystems::instance();
    QVERIFY(Project::instance()->create());
    systems->create(0, {text("Table"), BaseModule::Cartesian, {}, {}});
    const QTemporaryDir directory;
    QVERIFY(Project::instance()->saveAs(directory.filePath(text("display.wbproj"))));
    const auto show = [systems](int id, bool areAll, bool isOne) {
        systems->setCurrent(id);
        systems->showAxes(areAll);
        systems->showAxes(1, isOne);
    };
    show(0, true, true);
    QVERIFY(!Project::instance()->isModified());
    show(current, areShown, isShown);
    QVERIFY(Project::instance()->isModified());
    QVERIFY(Project::instance()->save());
    show(current, areShown, isShown);
    QVERIFY(!Project::instance()->isModified());
    show(0, true, true);
    QVERIFY(Project::instance()->isModified());
}

void tst_ProjectData::comesBackExactly()
{
    QVERIFY(Project::instance()->create());
    Workbench::MaterialDock materials;
    Workbench::CoordinateDock systems;
    const QAbstractItemModel& list = *materials.findChild<QTreeView*>(text("materialsProject"))->model();
    const QTreeWidget& tree = *systems.findChild<QTreeWidget*>(text("coordinateTree"));
    const QCheckBox& axes = *systems.findChild<QCheckBox*>(text("showAxes"));
    makeContent();
    CoordinateSystems::instance()->setCurrent(1);
    CoordinateSystems::instance()->showAxes(2, false);
    CoordinateSystems::instance()->showAxes(0, false);
    CoordinateSystems::instance()->showAxes(false);
    const QString savedMaterials = materialJson();
    const QByteArray savedSystems = workingFile("RelativeCoordinateSystemDate.json");
    QVERIFY(savedMaterials.contains(text("Odd")) && savedSystems.contains("Tool"));
    const QTemporaryDir directory;
    QVERIFY(Project::instance()->saveAs(directory.filePath(text("example.wbproj"))));
    QVERIFY(!Project::instance()->isModified());

    QVERIFY(Project::instance()->create());
    QCOMPARE(list.rowCount(), 0);
    QCOMPARE(tree.topLevelItem(0)->childCount(), 0);
    QCOMPARE(displayText(), text("0 all but []"));
    QVERIFY(tree.topLevelItem(0)->font(0).bold() && axes.isChecked());
    QCOMPARE(tree.topLevelItem(0)->checkState(0), Qt::Checked);

    QVERIFY(Project::instance()->open(directory.filePath(text("example.wbproj"))));
    QVERIFY(!Project::instance()->isModified());
    QCOMPARE(materialJson(), savedMaterials);
    QCOMPARE(workingFile("RelativeCoordinateSystemDate.json"), savedSystems);
    QCOMPARE(list.rowCount(), 3);
    QCOMPARE(list.index(2, 1).data().toString(), text("Odd"));
    QCOMPARE(tree.topLevelItem(0)->child(0)->child(0)->text(0), text("Tool"));
    auto* const tool = DataManager::RelativeCoordinateSystemDate::getInstance()->getCoordinateSystemByID(2);
    QVERIFY(tool->getActor() != nullptr);
    QCOMPARE(displayText(), text("1 none but [0,2]"));
    const QTreeWidgetItem* const table = tree.topLevelItem(0)->child(0);
    QVERIFY(table->font(0).bold() && !axes.isChecked());
    QCOMPARE(table->checkState(0), Qt::Checked);
    QCOMPARE(table->child(0)->checkState(0), Qt::Unchecked);
    CoordinateSystems::instance()->showAxes(true);
    QVERIFY(!tool->getActor()->GetVisibility());
    // What was read is what the next save writes.
    MaterialLibraries::instance()->update(BaseModule::ProjectLib, 4,
                                          *MaterialLibraries::material(BaseModule::ProjectLib, 4));
    QCOMPARE(materialJson(), savedMaterials);
}

void tst_ProjectData::passesOverDamagedDisplay_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QString>("display");
    const auto row = [](const char* name, const char* members, const char* display) {
        QTest::newRow(name) << QByteArray(members) << text(display);
    };
    row("of an earlier version", "{}", "0 all but []");
    row("what was saved", R"({"currentCoordinateSystem": 2, "axesShown": false, "hiddenAxes": [0, 1]})",
        "2 none but [0,1]");
    row("systems that are not there", R"({"currentCoordinateSystem": 9, "hiddenAxes": [7, 1, -1, 2000000000]})",
        "0 all but [1]");
    row("a fraction", R"({"currentCoordinateSystem": 1.5, "hiddenAxes": [0.5, 2]})", "0 all but [2]");
    row("beyond integers", R"({"currentCoordinateSystem": 4294967297, "hiddenAxes": [4294967298, -1e300]})",
        "0 all but []");
    row("of other types", R"({"currentCoordinateSystem": "1", "axesShown": 0, "hiddenAxes": {"1": 2}})",
        "0 all but []");
    row("an empty text", R"({"currentCoordinateSystem": [1], "axesShown": "", "hiddenAxes": ""})", "0 all but []");
    row("entries of other types", R"({"hiddenAxes": ["1", null, true, [1], {"a": 1}, 2, 2]})", "0 all but [2]");
}

void tst_ProjectData::passesOverDamagedDisplay()
{
    QFETCH(QByteArray, members);
    QVERIFY(Project::instance()->create());
    makeContent();
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("display.wbproj"));
    QVERIFY(Project::instance()->saveAs(file));
    describeAnew(file, QJsonDocument::fromJson(members).object());
    // What is open says the opposite.
    CoordinateSystems::instance()->setDisplay({1, false, {0, 1, 2}});
    Messages messages;
    QVERIFY(Project::instance()->open(file));
    QCOMPARE(messages.list, QStringList());
    QTEST(displayText(), "display");
    QVERIFY(!Project::instance()->isModified());
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

void tst_ProjectData::keepsDamagedSystems_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no JSON") << QByteArray("damaged");
    QTest::newRow("cut off") << QByteArray(R"({"m_IDList": [1], "m_nameList": ["Tab)");
    QTest::newRow("of something else") << QByteArray(R"({"x": 1})");
    QTest::newRow("an array") << QByteArray("[1, 2]");
    QTest::newRow("another type") << QByteArray(R"({"m_IDList": "1"})");
}

// They are told of, and the first system that takes their place leaves a copy.
void tst_ProjectData::keepsDamagedSystems()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("damaged.wbproj"));
    saveWithSystems(content, file);
    Messages messages;
    QVERIFY(Project::instance()->open(file));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(
        messages.list.first().startsWith(
            text("2 The coordinate systems of the project %1 cannot be read: ").arg(QDir::toNativeSeparators(file))),
        qPrintable(messages.list.first()));
    QVERIFY(!Project::instance()->isModified());
    QVERIFY(Project::instance()->save());
    QCOMPARE(workingFile(systemsName), content);
    QVERIFY(workingFile(keptSystemsName).isEmpty());

    for (const int id : {1, 2}) {
        QCOMPARE(CoordinateSystems::instance()->create(0, {text("Table"), BaseModule::Cartesian, {}, {}}), id);
        QCOMPARE(workingFile(keptSystemsName), content);
    }
    QVERIFY(Project::instance()->save());
    QVERIFY(Project::instance()->open(file));
    QCOMPARE(messages.list.size(), 1);
    QCOMPARE(CoordinateSystems::definition(2).name, text("Table"));
    QCOMPARE(workingFile(keptSystemsName), content);
}

void tst_ProjectData::tellsWhenNoCopyCanBeKept()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("damaged.wbproj"));
    saveWithSystems("damaged", file);
    QVERIFY(Project::instance()->open(file));
    QWidget parent;
    Workbench::CoordinateDialog::openForNew(0, &parent);
    QWidget& dialog = *windowNamed("coordinateDialog");
    type(dialog, "name", text("Table"));
    {
        const FileSizeLimit limit(4);
        QCOMPARE(CoordinateSystems::instance()->create(0, {text("Table"), BaseModule::Cartesian, {}, {}}), 0);
        press(dialog, QDialogButtonBox::Ok);
    }
    QVERIFY(dialog.isVisible());
    QCOMPARE(shown(dialog, "refusal"),
             text("The project's file of coordinate systems is damaged, and no copy of it can be kept beside it: is "
                  "there space, and permission?"));
    QCOMPARE(workingFile(systemsName), QByteArray("damaged"));
    press(dialog, QDialogButtonBox::Ok);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(CoordinateSystems::definition(1).name, text("Table"));
    QCOMPARE(workingFile(keptSystemsName), QByteArray("damaged"));
}

// Also when the last one was deleted, which leaves a file.
void tst_ProjectData::opensWithoutSystems()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(text("without.wbproj"));
    QVERIFY(Project::instance()->create());
    const CoordinateDefinition definition = {text("Table"), BaseModule::Cartesian, {}, {}};
    CoordinateSystems::instance()->remove({CoordinateSystems::instance()->create(0, definition)});
    QVERIFY(!workingFile(systemsName).isEmpty());
    QVERIFY(Project::instance()->saveAs(file));
    Messages messages;
    QVERIFY(Project::instance()->open(file));
    QCOMPARE(messages.list, QStringList());
    QCOMPARE(CoordinateSystems::instance()->create(0, definition), 1);
    QVERIFY(workingFile(keptSystemsName).isEmpty());
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
