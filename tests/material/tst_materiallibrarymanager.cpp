// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>

#include <QtTest>

#include <climits>

using BaseModule::MaterialLibType;
using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;
using DataManager::MaterialLibraryManager;

namespace {

const auto unknownLibrary = MaterialLibType(2);
const QStringList nothing;

/// Both libraries through one face, so that every row runs on both.
struct Library
{
    MaterialLibType type;
    void (MaterialLibraryManager::*create)(QString, QString, MaterialFixture::Property, MaterialFixture::Property,
                                           MaterialFixture::Property, MaterialFixture::Property,
                                           MaterialFixture::Property);
    void (MaterialLibraryManager::*update)(int, QString, QString, MaterialFixture::Property, MaterialFixture::Property,
                                           MaterialFixture::Property, MaterialFixture::Property,
                                           MaterialFixture::Property);
    void (MaterialLibraryManager::*remove)(int);
    QSharedPointer<DataModel::MaterialData> (MaterialLibraryManager::*byID)(int);
    QSharedPointer<DataModel::MaterialData> (MaterialLibraryManager::*byName)(QString);
    bool (MaterialLibraryManager::*hasID)(int);
};

const Library software = {SoftwareLib,
                          &MaterialLibraryManager::createSoftwareMat,
                          &MaterialLibraryManager::updateSoftwareMat,
                          &MaterialLibraryManager::deleteSoftwareMat,
                          &MaterialLibraryManager::getSoftwareMatByID,
                          &MaterialLibraryManager::getSoftwareMatByName,
                          &MaterialLibraryManager::hasSoftwareMatID};
const Library project = {ProjectLib,
                         &MaterialLibraryManager::createProjectMat,
                         &MaterialLibraryManager::updateProjectMat,
                         &MaterialLibraryManager::deleteProjectMat,
                         &MaterialLibraryManager::getProjectMatByID,
                         &MaterialLibraryManager::getProjectMatByName,
                         &MaterialLibraryManager::hasProjectMatID};

} // namespace

Q_DECLARE_METATYPE(Library)

class TestMaterialLibraryManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasOneInstance();
    void startsEmpty();
    void creates_data() { bothLibraries(); }
    void creates();
    void updates_data() { bothLibraries(); }
    void updates();
    void doesNotUpdateWhatIsNotThere_data() { bothLibraries(); }
    void doesNotUpdateWhatIsNotThere();
    void findsByName_data() { bothLibraries(); }
    void findsByName();
    void checksNames_data() { bothLibraries(); }
    void checksNames();
    void refusesReservedNames_data();
    void refusesReservedNames();
    void answersForUnknownTypes();
    void deletesInProject();
    void deletesInSoftware();
    void tellsOfMissingMaterials_data();
    void tellsOfMissingMaterials();
    void keepsSequencesOfDeletions_data();
    void keepsSequencesOfDeletions();
    void handsOutCopiesOfTheMap_data() { bothLibraries(); }
    void handsOutCopiesOfTheMap();
    void clearsTheProject();

private:
    void bothLibraries();
    MaterialLibraryManager& manager() { return m_fixture->manager(); }
    QString stateOf(MaterialLibType type) { return MaterialFixture::state(manager(), type); }
    void create(const Library& library, const QStringList& names);

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialLibraryManager::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialLibraryManager::cleanup()
{
    m_fixture.reset();
}

void TestMaterialLibraryManager::bothLibraries()
{
    QTest::addColumn<Library>("library");
    QTest::newRow("software") << software;
    QTest::newRow("project") << project;
}

void TestMaterialLibraryManager::create(const Library& library, const QStringList& names)
{
    for (const QString& name : names) {
        (manager().*library.create)(text("中") + name, name, {}, {}, {}, {}, {});
    }
}

void TestMaterialLibraryManager::hasOneInstance()
{
    QTest::ignoreMessage(QtDebugMsg, qPrintable(text("Read software material library file fail, please check path: ") +
                                                MaterialFixture::softwarePath()));
    MaterialLibraryManager* const first = MaterialLibraryManager::getInstance();
    QCOMPARE(MaterialLibraryManager::getInstance(), first);
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(QByteArray(first->metaObject()->className()), QByteArray("DataManager::MaterialLibraryManager"));
}

void TestMaterialLibraryManager::startsEmpty()
{
    QCOMPARE(m_fixture->software(), text("next 1"));
    QCOMPARE(m_fixture->project(), text("next 1"));
    QVERIFY(!QFile::exists(m_fixture->softwarePath()));
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
}

void TestMaterialLibraryManager::creates()
{
    QFETCH(Library, library);
    const auto property = MaterialFixture::property(text("eps"), 4.4);
    (manager().*library.create)(text("铜"), text("copper"), property, {}, {}, {}, property);
    QCOMPARE(stateOf(library.type), text("1:copper next 2"));
    const auto material = (manager().*library.byID)(1);
    QCOMPARE(material->id, 1);
    QCOMPARE(material->chineseName, text("铜"));
    QCOMPARE(material->englishName, text("copper"));
    QCOMPARE(material->property1, property);
    QVERIFY(material->property2.isNull());
    QVERIFY(material->property3.isNull());
    QVERIFY(material->property4.isNull());
    QCOMPARE(material->property5, property);
    QVERIFY(!material->isDeleted);
    // The same name again: no check here.
    create(library, {text("copper")});
    QCOMPARE(stateOf(library.type), text("1:copper 2:copper next 3"));
    const MaterialLibType other = library.type == ProjectLib ? SoftwareLib : ProjectLib;
    QCOMPARE(stateOf(other), text("next 1"));
}

void TestMaterialLibraryManager::updates()
{
    QFETCH(Library, library);
    create(library, {text("a"), text("b")});
    const auto material = (manager().*library.byID)(1);
    const auto property = MaterialFixture::property(text("mu"), 2);
    (manager().*library.update)(1, text("新"), text("new"), {}, property, {}, {}, {});
    QCOMPARE((manager().*library.byID)(1), material);
    QCOMPARE(material->id, 1);
    QCOMPARE(material->chineseName, text("新"));
    QCOMPARE(material->englishName, text("new"));
    QVERIFY(material->property1.isNull());
    QCOMPARE(material->property2, property);
    QCOMPARE(stateOf(library.type), text("1:new 2:b next 3"));
}

void TestMaterialLibraryManager::doesNotUpdateWhatIsNotThere()
{
    QFETCH(Library, library);
    create(library, {text("a"), text("b")});
    (manager().*library.remove)(1);
    HubLog log(manager());
    const QString path = library.type == ProjectLib ? m_fixture->projectPath() : m_fixture->softwarePath();
    QVERIFY(QFile::remove(path));
    for (const int id : {1, 3, 0, -1, INT_MAX, INT_MIN}) {
        (manager().*library.update)(id, text("x"), text("x"), {}, {}, {}, {}, {});
    }
    QCOMPARE(stateOf(library.type), text("1:a(deleted) 2:b next 3"));
    QCOMPARE(log.take(), nothing);
    QVERIFY2(!QFile::exists(path), "a refused update saved the library");
}

void TestMaterialLibraryManager::findsByName()
{
    QFETCH(Library, library);
    create(library, {text("a"), text("b"), text("b"), text("c")});
    const auto idOf = [&](const char* name) {
        const auto material = (manager().*library.byName)(text(name));
        return material.isNull() ? -1 : material->id;
    };
    QCOMPARE(idOf("b"), 2);
    QCOMPARE(idOf("中b"), 2);
    QCOMPARE(idOf("B"), -1);
    QCOMPARE(idOf("b "), -1);
    QCOMPARE(idOf(""), -1);
    (manager().*library.remove)(2);
    QCOMPARE(idOf("b"), 2);
    QVERIFY((manager().*library.byName)(text("b"))->isDeleted);
    QVERIFY((manager().*library.byID)(2)->isDeleted);
    QVERIFY(!(manager().*library.hasID)(2));
    QVERIFY((manager().*library.hasID)(3));
    for (const int id : {0, -1, 5, INT_MAX, INT_MIN}) {
        QVERIFY(!(manager().*library.hasID)(id));
        QVERIFY((manager().*library.byID)(id).isNull());
    }
}

void TestMaterialLibraryManager::checksNames()
{
    QFETCH(Library, library);
    const MaterialLibType other = library.type == ProjectLib ? SoftwareLib : ProjectLib;
    create(library, {text("a"), text("b"), text("c")});
    (manager().*library.remove)(2);
    QVERIFY(manager().hasSameName(text("a"), library.type));
    QVERIFY(manager().hasSameName(text("中a"), library.type));
    QVERIFY(!manager().hasSameName(text("A"), library.type));
    QVERIFY(!manager().hasSameName(text("b"), library.type));
    QVERIFY(!manager().hasSameName(text("a"), other));
    QVERIFY(!manager().hasSameName(text("a"), 1, library.type));
    QVERIFY(!manager().hasSameName(text("中a"), 1, library.type));
    QVERIFY(manager().hasSameName(text("a"), 3, library.type));
    QVERIFY(manager().hasSameName(text("c"), 1, library.type));
    QVERIFY(!manager().hasSameName(text("b"), 1, library.type));
    create(library, {text("a")});
    QVERIFY(manager().hasSameName(text("a"), 1, library.type));
    // The record's own identifier decides which one is being renamed, not the key.
    (manager().*library.byID)(4)->id = 1;
    QVERIFY(!manager().hasSameName(text("a"), 1, library.type));
}

void TestMaterialLibraryManager::refusesReservedNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isReserved");
    QTest::newRow("English") << text("Free Space") << true;
    QTest::newRow("Chinese") << text("自由空间") << true;
    QTest::newRow("case") << text("free space") << false;
    QTest::newRow("blank") << text("Free Space ") << false;
    QTest::newRow("empty") << QString() << false;
}

void TestMaterialLibraryManager::refusesReservedNames()
{
    QFETCH(QString, name);
    QFETCH(bool, isReserved);
    for (const MaterialLibType type : {SoftwareLib, ProjectLib}) {
        QCOMPARE(manager().hasSameName(name, type), isReserved);
        QCOMPARE(manager().hasSameName(name, 1, type), isReserved);
    }
    QVERIFY(manager().hasSameName(name, unknownLibrary));
}

void TestMaterialLibraryManager::answersForUnknownTypes()
{
    m_fixture->createProject(text("a"));
    m_fixture->createSoftware(text("a"));
    for (const int type : {2, -1, INT_MAX, INT_MIN}) {
        QCOMPARE(manager().getNextMatIDByType(MaterialLibType(type)), -1);
        QVERIFY(manager().getMatLibDataByType(MaterialLibType(type)).isEmpty());
        QVERIFY(manager().hasSameName(text("x"), 5, MaterialLibType(type)));
        QVERIFY(manager().hasSameName(text("x"), MaterialLibType(type)));
    }
}

void TestMaterialLibraryManager::deletesInProject()
{
    create(project, {text("a"), text("b"), text("c")});
    HubLog log(manager());
    manager().deleteProjectMat(2);
    QCOMPARE(log.take(), QStringList{text("deleted 2 | 1:a 2:b(deleted) 3:c next 4")});
    QVERIFY(!manager().hasProjectMatID(2));
    QVERIFY(!manager().getProjectMatByID(2).isNull());
    manager().deleteProjectMat(3);
    QCOMPARE(log.take(), (QStringList{text("deleted 3 | 1:a 2:b(deleted) next 4"), text("deleted 2 | 1:a next 3")}));
    QCOMPARE(m_fixture->project(), text("1:a next 2"));
    manager().deleteProjectMat(1);
    QCOMPARE(log.take(), QStringList{text("deleted 1 | next 2")});
    QCOMPARE(m_fixture->project(), text("next 1"));
}

void TestMaterialLibraryManager::deletesInSoftware()
{
    create(software, {text("a"), text("b"), text("c")});
    HubLog log(manager());
    manager().deleteSoftwareMat(2);
    QCOMPARE(m_fixture->software(), text("1:a 2:b(deleted) 3:c next 4"));
    manager().deleteSoftwareMat(3);
    QCOMPARE(m_fixture->software(), text("1:a next 2"));
    QCOMPARE(log.take(), nothing);
}

void TestMaterialLibraryManager::tellsOfMissingMaterials_data()
{
    QTest::addColumn<Library>("library");
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("message");
    const QString inSoftware = text("Delete software material failed! material ID is not exists! id:%1.");
    const QString inProject = text("Delete project material failed! material ID is not exists! id:%1");
    for (const int id : {1, 3, 0, -1, INT_MAX, INT_MIN}) {
        QTest::addRow("software %d", id) << software << id << inSoftware.arg(id);
        QTest::addRow("project %d", id) << project << id << inProject.arg(id);
    }
}

void TestMaterialLibraryManager::tellsOfMissingMaterials()
{
    QFETCH(Library, library);
    QFETCH(int, id);
    QFETCH(QString, message);
    create(library, {text("a"), text("b")});
    (manager().*library.remove)(1);
    const QString path = library.type == ProjectLib ? m_fixture->projectPath() : m_fixture->softwarePath();
    QVERIFY(QFile::remove(path));
    HubLog log(manager());
    (manager().*library.remove)(id);
    QCOMPARE(log.take(), QStringList{text("message 2 ") + message + text(" | ") + m_fixture->project()});
    QCOMPARE(stateOf(library.type), text("1:a(deleted) 2:b next 3"));
    QVERIFY2(!QFile::exists(path), "a refused deletion saved the library");
}

void TestMaterialLibraryManager::keepsSequencesOfDeletions_data()
{
    QTest::addColumn<QList<int>>("deletions");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QList<int>>("signalled");
    const auto row = [](const char* name, const QList<int>& deletions, const char* state, const QList<int>& signalled) {
        QTest::newRow(name) << deletions << text(state) << signalled;
    };
    row("from the top", {4, 3, 2, 1}, "next 1", {4, 3, 2, 1});
    row("from the bottom", {1, 2, 3, 4}, "next 1", {1, 2, 3, 4, 3, 2, 1});
    row("a gap of tombstones stays", {2, 4}, "1:1 2:2(deleted) 3:3 next 4", {2, 4});
    row("trims up to a live one", {3, 1, 4}, "1:1(deleted) 2:2 next 3", {3, 1, 4, 3});
    row("middle first", {2, 3, 4}, "1:1 next 2", {2, 3, 4, 3, 2});
    row("twice", {2, 2}, "1:1 2:2(deleted) 3:3 4:4 next 5", {2});
}

void TestMaterialLibraryManager::keepsSequencesOfDeletions()
{
    QFETCH(QList<int>, deletions);
    QFETCH(QString, state);
    QFETCH(QList<int>, signalled);
    create(project, {text("1"), text("2"), text("3"), text("4")});
    create(software, {text("1"), text("2"), text("3"), text("4")});
    QList<int> seen;
    const auto connection =
        connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_delMatUpdateGeometryData, this,
                [&seen](int id) { seen.append(id); });
    for (const int id : deletions) {
        manager().deleteProjectMat(id);
    }
    QCOMPARE(seen, signalled);
    for (const int id : deletions) {
        manager().deleteSoftwareMat(id);
    }
    QCOMPARE(seen, signalled);
    disconnect(connection);
    QCOMPARE(m_fixture->project(), state);
    QCOMPARE(m_fixture->software(), state);
}

void TestMaterialLibraryManager::handsOutCopiesOfTheMap()
{
    QFETCH(Library, library);
    create(library, {text("a"), text("b")});
    auto materials = manager().getMatLibDataByType(library.type);
    QCOMPARE(materials.keys(), (QList<int>{1, 2}));
    QCOMPARE(materials.value(1), (manager().*library.byID)(1));
    materials.clear();
    QCOMPARE(stateOf(library.type), text("1:a 2:b next 3"));
}

void TestMaterialLibraryManager::clearsTheProject()
{
    m_fixture->createSoftware(text("s"));
    create(project, {text("a"), text("b")});
    QVERIFY(QFile::exists(m_fixture->projectPath()));
    HubLog log(manager());
    manager().clearProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
    QCOMPARE(m_fixture->software(), text("1:s next 2"));
    manager().clearProjectMaterial();
    QCOMPARE(log.take(), nothing);
    create(project, {text("c")});
    QCOMPARE(m_fixture->project(), text("1:c next 2"));
}

QTEST_GUILESS_MAIN(TestMaterialLibraryManager)
#include "tst_materiallibrarymanager.moc"
