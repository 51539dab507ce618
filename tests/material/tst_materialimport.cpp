// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <configoption/ConfigManager.h>
#include <configoption/TextCipher.h>

#include <QtTest>

#include <climits>

Q_DECLARE_METATYPE(BaseModule::MaterialLibType)

using BaseModule::MaterialLibType;
using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;

namespace {

const QStringList nothing;

} // namespace

class TestMaterialImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void copiesIntoTheProject();
    void copiesIntoTheSoftwareLibrary();
    void copiesTheSameMaterialTwice();
    void savesWithoutMaterials_data();
    void savesWithoutMaterials();
    void refusesMissingMaterials_data();
    void refusesMissingMaterials();
    void refusesUnknownTypes_data();
    void refusesUnknownTypes();
    void copiesAllLiveMaterials();
    void replacesWhatStandsUnderTheNextIdentifier();
    void describesMaterials_data();
    void describesMaterials();
    void describesTheDefaultMaterial();

private:
    void create(const QStringList& softwareNames, const QStringList& projectNames);
    DataManager::MaterialLibraryManager& manager() { return m_fixture->manager(); }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialImport::init()
{
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialImport::cleanup()
{
    m_fixture.reset();
}

void TestMaterialImport::create(const QStringList& softwareNames, const QStringList& projectNames)
{
    for (const QString& name : softwareNames) {
        m_fixture->createSoftware(name);
    }
    for (const QString& name : projectNames) {
        m_fixture->createProject(name);
    }
}

void TestMaterialImport::copiesIntoTheProject()
{
    create({text("s1"), text("s2"), text("s3")}, {text("p1"), text("p2"), text("p3"), text("p4")});
    HubLog log(manager());
    QVERIFY(QFile::remove(m_fixture->softwarePath()));
    const QByteArray before = contentOf(m_fixture->projectPath());
    QVERIFY(manager().importMaterial(SoftwareLib, {1, 3}));
    QCOMPARE(m_fixture->project(), text("1:p1 2:p2 3:p3 4:p4 5:s1 6:s3 next 7"));
    QCOMPARE(m_fixture->software(), text("1:s1 2:s2 3:s3 next 4"));
    const auto source = manager().getSoftwareMatByID(3);
    const auto copy = manager().getProjectMatByID(6);
    QVERIFY(copy != source);
    QCOMPARE(copy->id, 6);
    QCOMPARE(copy->chineseName, source->chineseName);
    QCOMPARE(copy->property1, source->property1);
    QVERIFY(!copy->isDeleted);
    QCOMPARE(log.take(), nothing);
    QVERIFY(contentOf(m_fixture->projectPath()) != before);
    QVERIFY2(!QFile::exists(m_fixture->softwarePath()), "the source library was saved");
}

void TestMaterialImport::copiesIntoTheSoftwareLibrary()
{
    create({text("s1")}, {text("p1"), text("p2")});
    QVERIFY(QFile::remove(m_fixture->projectPath()));
    QVERIFY(manager().importMaterial(ProjectLib, {2, 1}));
    QCOMPARE(m_fixture->software(), text("1:s1 2:p2 3:p1 next 4"));
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
    m_fixture->newManager();
    QCOMPARE(m_fixture->software(), text("1:s1 2:p2 3:p1 next 4"));
}

void TestMaterialImport::copiesTheSameMaterialTwice()
{
    create({text("s1")}, {text("s1")});
    QVERIFY(manager().importMaterial(SoftwareLib, {1, 1}));
    QCOMPARE(m_fixture->project(), text("1:s1 2:s1 3:s1 next 4"));
    QVERIFY(manager().getProjectMatByID(2) != manager().getProjectMatByID(3));
    QCOMPARE(manager().getProjectMatByID(2)->property1, manager().getProjectMatByID(3)->property1);
}

void TestMaterialImport::savesWithoutMaterials_data()
{
    QTest::addColumn<bool>("isAll");
    QTest::newRow("empty list") << false;
    QTest::newRow("empty source library") << true;
}

void TestMaterialImport::savesWithoutMaterials()
{
    QFETCH(bool, isAll);
    QVERIFY(isAll ? manager().importAllMaterial(SoftwareLib) : manager().importMaterial(SoftwareLib, {}));
    QCOMPARE(decipheredContentOf(m_fixture->projectPath()), QByteArray("{\"materialList\":[]}"));
    QVERIFY(isAll ? manager().importAllMaterial(ProjectLib) : manager().importMaterial(ProjectLib, {}));
    QCOMPARE(contentOf(m_fixture->softwarePath()), QByteArray("{\"materialList\":[]}"));
}

void TestMaterialImport::refusesMissingMaterials_data()
{
    QTest::addColumn<MaterialLibType>("type");
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("refused");
    for (const MaterialLibType type : {SoftwareLib, ProjectLib}) {
        const char* const name = type == SoftwareLib ? "software" : "project";
        QTest::addRow("%s missing", name) << type << QList<int>{1, 99} << 99;
        QTest::addRow("%s tombstone", name) << type << QList<int>{1, 2} << 2;
        QTest::addRow("%s first of two", name) << type << QList<int>{3, -5, 2} << -5;
        QTest::addRow("%s largest", name) << type << QList<int>{INT_MAX} << INT_MAX;
        QTest::addRow("%s smallest", name) << type << QList<int>{INT_MIN} << INT_MIN;
    }
}

void TestMaterialImport::refusesMissingMaterials()
{
    QFETCH(MaterialLibType, type);
    QFETCH(QList<int>, ids);
    QFETCH(int, refused);
    create({text("a"), text("b"), text("c")}, {text("a"), text("b"), text("c")});
    manager().deleteSoftwareMat(2);
    manager().deleteProjectMat(2);
    QVERIFY(QFile::remove(m_fixture->softwarePath()));
    QVERIFY(QFile::remove(m_fixture->projectPath()));
    const QString message = type == SoftwareLib
                                ? text("message 2 Import software material fail! materail id : %1 is not exist!")
                                : text("message 2 Import project material fail! materail id : %1 is not exist!");
    const QString state = text("1:a 2:b(deleted) 3:c next 4");
    HubLog log(manager());
    QVERIFY(!manager().importMaterial(type, ids));
    QCOMPARE(log.take(), QStringList{message.arg(refused) + text(" | ") + state});
    QCOMPARE(m_fixture->software(), state);
    QCOMPARE(m_fixture->project(), state);
    QVERIFY(!QFile::exists(m_fixture->softwarePath()));
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
}

void TestMaterialImport::refusesUnknownTypes_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {2, -1, INT_MAX}) {
        QTest::addRow("%d", type) << type;
    }
}

void TestMaterialImport::refusesUnknownTypes()
{
    QFETCH(int, type);
    create({text("a")}, {});
    HubLog log(manager());
    const QString expected =
        text("message 2 Import material fail! materail library type : %1 is not exist! | next 1").arg(type);
    QVERIFY(!manager().importMaterial(MaterialLibType(type), {1}));
    QCOMPARE(log.take(), QStringList{expected});
    QVERIFY(!manager().importAllMaterial(MaterialLibType(type)));
    QCOMPARE(log.take(), QStringList{expected});
    QVERIFY(!QFile::exists(m_fixture->projectPath()));
}

void TestMaterialImport::copiesAllLiveMaterials()
{
    create({text("a"), text("b"), text("c"), text("d")}, {});
    manager().deleteSoftwareMat(2);
    QVERIFY(manager().importAllMaterial(SoftwareLib));
    QCOMPARE(m_fixture->project(), text("1:a 2:c 3:d next 4"));
    manager().deleteProjectMat(1);
    QVERIFY(manager().importAllMaterial(ProjectLib));
    QCOMPARE(m_fixture->software(), text("1:a 2:b(deleted) 3:c 4:d 5:c 6:d next 7"));
}

void TestMaterialImport::replacesWhatStandsUnderTheNextIdentifier()
{
    create({text("new")}, {});
    writeContent(
        m_fixture->projectPath(),
        ConfigOption::TextCipher::getInstance()
            ->encryptData_CBC(text(R"({"materialList":[{"id":1,"englishName":"a"},{"id":3,"englishName":"c"}]})"))
            .toUtf8());
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:a 3:c next 3"));
    QVERIFY(manager().importMaterial(SoftwareLib, {1}));
    QCOMPARE(m_fixture->project(), text("1:a 3:new next 4"));
}

void TestMaterialImport::describesMaterials_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("chineseName");
    QTest::addColumn<QString>("englishName");
    QTest::addColumn<QString>("description");
    const auto row = [](const char* name, const char* language, const QString& chinese, const QString& english,
                        const char* description) {
        QTest::newRow(name) << text(language) << chinese << english << text(description);
    };
    const QString withNul = text("co") + QChar(0) + text("pper");
    row("Chinese", "Chinese", text("铜"), text("copper"), "Material: 铜");
    row("English", "English", text("铜"), text("copper"), "Material: copper");
    row("no language", "", text("铜"), text("copper"), "Material: copper");
    row("case", "chinese", text("铜"), text("copper"), "Material: copper");
    row("ends at NUL", "English", text("铜"), withNul, "Material: co");
    row("ends at NUL in Chinese", "Chinese", text("铜") + withNul, text("x"), "Material: 铜co");
    row("empty name", "English", text("铜"), QString(), "Material: ");
    row("outside the basic plane", "English", text("铜"), text("\xf0\x9f\x94\xa9"), "Material: \xf0\x9f\x94\xa9");
    const QString mark = QChar(QChar::ByteOrderMark);
    row("byte-order mark", "English", text("铜"), mark + text("copper"),
        "Material: \xef\xbb\xbf"
        "copper");
    row("two byte-order marks", "Chinese", mark + mark, text("x"), "Material: \xef\xbb\xbf\xef\xbb\xbf");
    row("byte-order mark before NUL", "English", text("铜"), mark + QChar(0) + text("x"), "Material: \xef\xbb\xbf");
    row("placeholder", "English", text("铜"), text("%1 %2"), "Material: %1 %2");
}

void TestMaterialImport::describesMaterials()
{
    QFETCH(QString, language);
    QFETCH(QString, chineseName);
    QFETCH(QString, englishName);
    QFETCH(QString, description);
    ConfigOption::ConfigManager::getInstance()->setLanguage(language);
    manager().createProjectMat(chineseName, englishName, {}, {}, {}, {}, {});
    QCOMPARE(manager().getMatDesByID(1), description);
    m_fixture->createProject(text("second"));
    manager().deleteProjectMat(1);
    QCOMPARE(manager().getMatDesByID(1), description);
}

void TestMaterialImport::describesTheDefaultMaterial()
{
    m_fixture->createSoftware(text("steel"));
    for (const char* language : {"Chinese", "English"}) {
        ConfigOption::ConfigManager::getInstance()->setLanguage(text(language));
        for (const int id : {0, 1, -1, INT_MAX}) {
            QCOMPARE(manager().getMatDesByID(id), text("Material: Free Space"));
        }
    }
}

QTEST_GUILESS_MAIN(TestMaterialImport)
#include "tst_materialimport.moc"
