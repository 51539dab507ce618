// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialViewFixture.h"

#include <configoption/ConfigManager.h>

#include <QSplitter>
#include <QTranslator>

using Workbench::GeometryManager;

namespace {

/// Stands for a translation file.
class StarTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QStringLiteral("*%1").arg(QLatin1String(sourceText));
    }
};

} // namespace

/// Both libraries side by side, deleting and assigning.
class tst_MaterialDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<MaterialViewFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void showsBothLibraries();
    void searches_data();
    void searches();
    void sortsByName();
    void enablesWhatCanBeDone();
    void keepsTheSelection();
    void followsOthers();
    void deletesAfterAsking();
    void deletesSeveralFromTheTop();
    void asksShortlyAboutMany();
    void deletesFromTheSoftwareLibrary();
    void assignsToTheSelectedVolumes();
    void showsMaterialsOfSelectedVolumes();
    void tellsOfAFailedSave();
    void passesLogLinesOn();
    void changesTheLanguage();

private:
    void createProject(const QStringList& names);

    std::unique_ptr<MaterialViewFixture> m_fixture;
};

void tst_MaterialDock::createProject(const QStringList& names)
{
    for (const QString& name : names) {
        m_fixture->libraries().createProject(name);
    }
}

void tst_MaterialDock::showsBothLibraries()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    createProject({text("Steel"), text("Air"), text("Wood")});
    m_fixture->libraries().manager().deleteProjectMat(2);
    QCOMPARE(m_fixture->rows("materialsSoftware"), text("1 Copper"));
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Steel; 3 Wood"));
    const QModelIndex first = part<QTreeView>(m_fixture->dock(), "materialsProject").model()->index(0, 2);
    QCOMPARE(first.data().toString(), text("中Steel"));
    QCOMPARE(first.siblingAtColumn(3).data().toString(), text("Steel"));
    QCOMPARE(m_fixture->dock().windowTitle(), text("Materials"));
    const QSplitter& splitter = *m_fixture->dock().findChild<QSplitter*>();
    QVERIFY(splitter.widget(0)->geometry().right() < splitter.widget(1)->geometry().left());
}

void tst_MaterialDock::searches_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("part of a name") << text("pper") << text("1 Copper");
    QTest::newRow("other case") << text("STEEL") << text("2 Steel; 3 Stainless steel");
    QTest::newRow("Chinese") << text("中St") << text("2 Steel; 3 Stainless steel");
    QTest::newRow("label of a property") << text("rare label") << text("4 Wood");
    QTest::newRow("identifier") << text("3") << text("3 Stainless steel");
    QTest::newRow("not a pattern") << text(".*") << QString();
    QTest::newRow("nothing typed") << QString() << text("1 Copper; 2 Steel; 3 Stainless steel; 4 Wood");
}

void tst_MaterialDock::searches()
{
    QFETCH(QString, typed);
    createProject({text("Copper"), text("Steel"), text("Stainless steel")});
    m_fixture->libraries().manager().createProjectMat(text("木"), text("Wood"), {},
                                                      MaterialFixture::property(text("a rare label"), 1), {}, {}, {});
    type(m_fixture->dock(), "searchProject", typed);
    QTEST(m_fixture->rows("materialsProject"), "expected");
}

void tst_MaterialDock::sortsByName()
{
    createProject({text("Steel"), text("air"), text("Wood")});
    QTreeView& view = part<QTreeView>(m_fixture->dock(), "materialsProject");
    view.sortByColumn(1, Qt::AscendingOrder);
    QCOMPARE(m_fixture->rows("materialsProject"), text("2 air; 1 Steel; 3 Wood"));
}

void tst_MaterialDock::enablesWhatCanBeDone()
{
    createProject({text("Steel"), text("Air")});
    const auto states = [this] {
        QString text;
        for (const char* const name :
             {"createProject", "editProject", "deleteProject", "importFromProject", "assign", "unassign"}) {
            text += QLatin1Char(part<QAbstractButton>(m_fixture->dock(), name).isEnabled() ? '1' : '0');
        }
        return text;
    };
    QCOMPARE(states(), text("100100"));
    m_fixture->choose("materialsProject", {1});
    QCOMPARE(states(), text("111100"));
    m_fixture->choose("materialsProject", {1, 2});
    QCOMPARE(states(), text("101100"));
    m_fixture->selectVolumes({m_fixture->addVolume(text("block"))});
    QCOMPARE(states(), text("101101"));
    m_fixture->choose("materialsProject", {2});
    QCOMPARE(states(), text("111111"));
}

void tst_MaterialDock::keepsTheSelection()
{
    createProject({text("Steel"), text("Air"), text("Wood")});
    m_fixture->choose("materialsProject", {1, 3});
    Workbench::MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {2});
    QCOMPARE(m_fixture->rows("materialsProject"), text("1 Steel; 3 Wood"));
    const auto rows = part<QTreeView>(m_fixture->dock(), "materialsProject").selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 2);
}

void tst_MaterialDock::followsOthers()
{
    m_fixture->dock();
    createProject({text("Steel"), text("Air")});
    // The library tells of no creation: the dock reads again when its window becomes active, or when it is shown.
    QCOMPARE(m_fixture->rows("materialsProject"), QString());
    QApplication::setActiveWindow(&m_fixture->dock());
    QTRY_COMPARE(m_fixture->rows("materialsProject"), text("1 Steel; 2 Air"));
    m_fixture->libraries().manager().deleteProjectMat(1);
    QCOMPARE(m_fixture->rows("materialsProject"), text("2 Air"));
    m_fixture->libraries().createSoftware(text("Copper"));
    m_fixture->dock().hide();
    m_fixture->dock().show();
    QCOMPARE(m_fixture->rows("materialsSoftware"), text("1 Copper"));
    Workbench::MaterialLibraries::instance()->clearProject();
    QCOMPARE(m_fixture->rows("materialsProject"), QString());
    QVERIFY(!QFile::exists(m_fixture->libraries().projectPath()));
}

void tst_MaterialDock::deletesAfterAsking()
{
    createProject({text("Steel"), text("Air")});
    const int block = m_fixture->addVolume(text("block"));
    const int lid = m_fixture->addVolume(text("lid"));
    GeometryManager::instance()->setMaterialID({block, lid}, 1);
    m_fixture->choose("materialsProject", {1});
    MaterialViewLog log(m_fixture->libraries());
    click(m_fixture->dock(), "deleteProject");
    QWidget* question = windowNamed("deleteQuestion");
    QVERIFY(question != nullptr);
    QCOMPARE(dynamic_cast<QMessageBox&>(*question).informativeText(),
             text("Steel is used by: block, lid. They become free space."));
    answer(*question, QMessageBox::Cancel);
    finishClosing();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_fixture->libraries().project(), text("1:Steel 2:Air next 3"));

    click(m_fixture->dock(), "deleteProject");
    answer(*windowNamed("deleteQuestion"), QMessageBox::Yes);
    finishClosing();
    QVERIFY(windowNamed("deleteQuestion") == nullptr);
    const QString state = text(" | 1:Steel(deleted) 2:Air next 3");
    QCOMPARE(log.take(), QStringList({text("components 2") + state, text("delMatUpdateGeometryData 1") + state,
                                      text("changed 1") + state, text("updateWindowTitle") + state}));
    QCOMPARE(GeometryManager::instance()->getMaterialID(block), 0);
    QCOMPARE(m_fixture->savedProject(), text("1:Steel(deleted) 2:Air next 3"));
    QCOMPARE(m_fixture->rows("materialsProject"), text("2 Air"));
}

void tst_MaterialDock::deletesSeveralFromTheTop()
{
    createProject({text("Steel"), text("Air"), text("Wood"), text("Oil")});
    m_fixture->choose("materialsProject", {2, 3, 4});
    MaterialViewLog log(m_fixture->libraries());
    click(m_fixture->dock(), "deleteProject");
    QCOMPARE(dynamic_cast<QMessageBox&>(*windowNamed("deleteQuestion")).informativeText(),
             text("Air: no volume uses it.\nWood: no volume uses it.\nOil: no volume uses it."));
    answer(*windowNamed("deleteQuestion"), QMessageBox::Yes);
    finishClosing();
    QStringList calls = log.take();
    for (QString& call : calls) {
        call = call.section(QLatin1Char('|'), 0, 0).trimmed();
    }
    QCOMPARE(calls, QStringList({text("delMatUpdateGeometryData 4"), text("delMatUpdateGeometryData 3"),
                                 text("delMatUpdateGeometryData 2"), text("changed 1"), text("updateWindowTitle")}));
    QCOMPARE(m_fixture->savedProject(), text("1:Steel next 2"));
}

void tst_MaterialDock::asksShortlyAboutMany()
{
    QList<int> all;
    for (int id = 1; id <= 14; ++id) {
        createProject({text("m%1").arg(id)});
        all.append(id);
    }
    GeometryManager::instance()->setMaterialID({m_fixture->addVolume(text("<b>block</b>"))}, 14);
    m_fixture->choose("materialsProject", all);
    click(m_fixture->dock(), "deleteProject");
    const QStringList lines =
        dynamic_cast<QMessageBox&>(*windowNamed("deleteQuestion")).informativeText().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 13);
    QCOMPARE(lines.first(), text("m14 is used by: <b>block</b>. They become free space."));
    QCOMPARE(lines.at(1), text("m1: no volume uses it."));
    QCOMPARE(lines.last(), text("and 2 more"));
    answer(*windowNamed("deleteQuestion"), QMessageBox::Cancel);
}

void tst_MaterialDock::deletesFromTheSoftwareLibrary()
{
    m_fixture->libraries().createSoftware(text("Copper"));
    m_fixture->choose("materialsSoftware", {1});
    MaterialViewLog log(m_fixture->libraries());
    click(m_fixture->dock(), "deleteSoftware");
    QCOMPARE(dynamic_cast<QMessageBox&>(*windowNamed("deleteQuestion")).informativeText(),
             text("Copper: projects keep the copies that they have of it."));
    answer(*windowNamed("deleteQuestion"), QMessageBox::Yes);
    finishClosing();
    // The project did not change.
    QCOMPARE(log.take(), QStringList({text("changed 0 | next 1")}));
    QCOMPARE(m_fixture->libraries().software(), text("next 1"));
    QCOMPARE(m_fixture->rows("materialsSoftware"), QString());
}

void tst_MaterialDock::assignsToTheSelectedVolumes()
{
    createProject({text("Steel"), text("Air")});
    const QList<int> volumes = {m_fixture->addVolume(text("block")), m_fixture->addVolume(text("lid")),
                                m_fixture->addVolume(text("rest"))};
    m_fixture->choose("materialsProject", {2});
    m_fixture->selectVolumes(volumes.mid(0, 2));
    MaterialViewLog log(m_fixture->libraries());
    click(m_fixture->dock(), "assign");
    QCOMPARE(log.take(), QStringList({text("components 2 | 1:Steel 2:Air next 3")}));
    QCOMPARE(GeometryManager::instance()->findComponentsOfMaterial(2), volumes.mid(0, 2));
    click(m_fixture->dock(), "unassign");
    QCOMPARE(GeometryManager::instance()->findComponentsOfMaterial(2), QList<int>());
}

void tst_MaterialDock::showsMaterialsOfSelectedVolumes()
{
    createProject({text("Steel")});
    const int block = m_fixture->addVolume(text("block"));
    const int lid = m_fixture->addVolume(text("lid"));
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Select volumes to give them a material."));
    m_fixture->selectVolumes({block, lid});
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (free space), lid (free space)"));
    GeometryManager::instance()->setMaterialID({lid}, 1);
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (free space), lid (Steel)"));
    ConfigOption::ConfigManager::getInstance()->setLanguage(text("Chinese"));
    m_fixture->choose("materialsProject", {1});
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (free space), lid (中Steel)"));
    Workbench::MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {1});
    QCOMPARE(shown(m_fixture->dock(), "selectedVolumes"), text("Selected: block (free space), lid (free space)"));
}

void tst_MaterialDock::tellsOfAFailedSave()
{
    createProject({text("Steel"), text("Air")});
    const QByteArray before = contentOf(m_fixture->libraries().projectPath());
    // A directory in the file's place: nothing can be written there.
    QVERIFY(QFile::remove(m_fixture->libraries().projectPath()));
    QVERIFY(QDir().mkpath(m_fixture->libraries().projectPath()));
    const QString line = text("Write project material library file fail, please check path: %1.")
                             .arg(m_fixture->libraries().projectPath());
    expectLine(line);
    MaterialViewLog log(m_fixture->libraries());
    Workbench::MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {2});
    const QString state = text(" | 1:Steel next 2");
    QCOMPARE(log.take(),
             QStringList({text("delMatUpdateGeometryData 2 | 1:Steel next 3"), text("changed 1") + state,
                          text("updateWindowTitle") + state,
                          text("showMessageType 2 The change is not in the library's file yet. ") + line + state}));
    // The next save that works holds the change.
    QVERIFY(QDir().rmdir(m_fixture->libraries().projectPath()));
    Workbench::MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {1});
    QCOMPARE(m_fixture->savedProject(), text("next 1"));
    QVERIFY(contentOf(m_fixture->libraries().projectPath()) != before);
}

void tst_MaterialDock::passesLogLinesOn()
{
    LogLines lines;
    const auto connection = QObject::connect(
        BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_delMatUpdateGeometryData, [](int id) {
            qDebug() << "deleted" << id;
            // A second edit within the first one.
            Workbench::MaterialLibraries::instance()->remove(BaseModule::SoftwareLib, {});
        });
    createProject({text("Steel")});
    lines.take();
    Workbench::MaterialLibraries::instance()->remove(BaseModule::ProjectLib, {1});
    QObject::disconnect(connection);
    QCOMPARE(lines.take(), QStringList({text("deleted 1")}));
    qDebug() << "afterwards";
    QCOMPARE(lines.take(), QStringList({text("afterwards")}));
}

void tst_MaterialDock::changesTheLanguage()
{
    Workbench::MaterialDock& dock = m_fixture->dock();
    StarTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QTRY_COMPARE(dock.windowTitle(), text("*Materials"));
    QCOMPARE(part<QAbstractButton>(dock, "createProject").text(), text("*New..."));
    QCOMPARE(part<QAbstractButton>(dock, "assign").text(), text("*Assign to the volumes"));
    QCOMPARE(shown(dock, "selectedVolumes"), text("*Select volumes to give them a material."));
    const QAbstractItemModel& model = *part<QTreeView>(dock, "materialsProject").model();
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), text("*English name"));
    QCoreApplication::removeTranslator(&translator);
    QTRY_COMPARE(dock.windowTitle(), text("Materials"));
}

QTEST_MAIN(tst_MaterialDock)
#include "tst_materialdock.moc"
