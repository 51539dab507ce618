// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MaterialFixture.h"

#include <basemodule/GlobalConfig.h>

#include <QDir>
#include <QtTest>

#include <cstring>
#include <limits>

using BaseModule::ProjectLib;
using BaseModule::SoftwareLib;

namespace {

double doubleOf(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

bool isSameBits(const QList<double>& left, const QList<double>& right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(), [](double a, double b) {
               return std::memcmp(&a, &b, sizeof a) == 0;
           });
}

} // namespace

class TestMaterialFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void logsMissingFiles();
    void writesTheSoftwareLibraryAsJson();
    void enciphersTheProjectUnlessDeveloping();
    void savesAfterEveryChange();
    void loads_data();
    void loads();
    void loadsNothingOfTruncatedFiles();
    void takesTheNextIdentifierFromTheNumberOfEntries();
    void returnsEveryValueAsItWas_data();
    void returnsEveryValueAsItWas();
    void returnsEveryTextAsItWas();
    void refusesChangedCipherTexts_data();
    void refusesChangedCipherTexts();

private:
    DataManager::MaterialLibraryManager& manager() { return m_fixture->manager(); }

    std::unique_ptr<MaterialFixture> m_fixture;
};

void TestMaterialFiles::init()
{
    qunsetenv("DATAMANAGER_CIPHER_KEY");
    m_fixture = std::make_unique<MaterialFixture>();
}

void TestMaterialFiles::cleanup()
{
    m_fixture.reset();
}

void TestMaterialFiles::logsMissingFiles()
{
    expectLine(text("Read project material library file fail, please check path: ") + m_fixture->projectPath());
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("a"));
    QVERIFY(QFile::remove(m_fixture->projectPath()));
    expectLine(text("Read project material library file fail, please check path: ") + m_fixture->projectPath());
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
}

void TestMaterialFiles::writesTheSoftwareLibraryAsJson()
{
    const auto property = MaterialFixture::property(text("eps"), 2.5);
    property->kind = 3;
    property->remark = text("r");
    property->flag = true;
    manager().createSoftwareMat(text("铜"), text("copper"), property, {}, {}, {}, {});
    m_fixture->createSoftware(text("b"));
    manager().deleteSoftwareMat(1);
    const QJsonObject root = QJsonDocument::fromJson(contentOf(m_fixture->softwarePath())).object();
    QCOMPARE(root.keys(), QStringList{text("materialList")});
    const QJsonArray list = root.value(text("materialList")).toArray();
    QCOMPARE(list.size(), 2);
    const QJsonObject expected = {
        {text("chineseName"), text("铜")},
        {text("englishName"), text("copper")},
        {text("id"), 1},
        {text("isDeleted"), true},
        {text("property1"), QJsonObject{{text("label"), text("eps")},
                                        {text("kind"), 3},
                                        {text("components"), QJsonArray{2.5, 0, 0, 0, 2.5, 0, 0, 0, 2.5}},
                                        {text("remark"), text("r")},
                                        {text("flag"), true}}},
        {text("property2"), QJsonValue::Null},
        {text("property3"), QJsonValue::Null},
        {text("property4"), QJsonValue::Null},
        {text("property5"), QJsonValue::Null},
    };
    QCOMPARE(list.at(0).toObject(), expected);
    QCOMPARE(list.at(1).toObject().value(text("id")).toInt(), 2);
}

void TestMaterialFiles::enciphersTheProjectUnlessDeveloping()
{
    m_fixture->createProject(text("very secret name"));
    const QByteArray cipherText = contentOf(m_fixture->projectPath());
    QVERIFY(!cipherText.contains("secret"));
    QVERIFY(cipherText.startsWith("DMTC1:"));
    const QByteArray json = decipheredContentOf(m_fixture->projectPath());
    QVERIFY(QJsonDocument::fromJson(json).object().contains(text("materialList")));
    manager().writeProjectMatConfig();
    QVERIFY2(contentOf(m_fixture->projectPath()) != cipherText, "the same text was enciphered to the same bytes");
    QCOMPARE(decipheredContentOf(m_fixture->projectPath()), json);
    GlobalConfig::setIsDevelop(true);
    manager().writeProjectMatConfig();
    QCOMPARE(contentOf(m_fixture->projectPath()), json);
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:very secret name next 2"));
}

void TestMaterialFiles::savesAfterEveryChange()
{
    const auto reloaded = [this] {
        DataManager::MaterialLibraryManager* const other = m_fixture->newManager();
        other->initProjectMaterial();
        return MaterialFixture::state(*other, SoftwareLib) + text(" | ") + MaterialFixture::state(*other, ProjectLib);
    };
    DataManager::MaterialLibraryManager& first = manager();
    first.createSoftwareMat({}, text("a"), {}, {}, {}, {}, {});
    first.createSoftwareMat({}, text("b"), {}, {}, {}, {}, {});
    first.createProjectMat({}, text("c"), {}, {}, {}, {}, {});
    QCOMPARE(reloaded(), text("1:a 2:b next 3 | 1:c next 2"));
    first.updateSoftwareMat(1, {}, text("A"), {}, {}, {}, {}, {});
    first.updateProjectMat(1, {}, text("C"), {}, {}, {}, {}, {});
    QCOMPARE(reloaded(), text("1:A 2:b next 3 | 1:C next 2"));
    first.importMaterial(SoftwareLib, {2});
    first.importMaterial(ProjectLib, {1});
    QCOMPARE(reloaded(), text("1:A 2:b 3:C next 4 | 1:C 2:b next 3"));
    first.deleteSoftwareMat(2);
    first.deleteProjectMat(1);
    QCOMPARE(reloaded(), text("1:A 2:b(deleted) 3:C next 4 | 1:C(deleted) 2:b next 3"));
    first.deleteSoftwareMat(3);
    first.deleteProjectMat(2);
    QCOMPARE(reloaded(), text("1:A next 2 | next 1"));
}

void TestMaterialFiles::loads_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("state");
    const auto row = [](const char* name, const QByteArray& json, const char* state) {
        QTest::newRow(name) << json << text(state);
    };
    const QByteArray a = R"({"id":1,"englishName":"a"})";
    const QByteArray b = R"({"id":2,"englishName":"b","isDeleted":true})";
    const auto list = [](const QByteArray& entries) { return "{\"materialList\":[" + entries + "]}"; };
    row("two", list(a + ',' + b), "1:a 2:b(deleted) next 3");
    row("descending", list(b + ',' + a), "1:a 2:b(deleted) next 3");
    row("repeated identifier", list(a + R"(,{"id":1,"englishName":"later"})"), "1:later next 2");
    row("gap", list(a + R"(,{"id":3,"englishName":"c"})"), "1:a 3:c next 3");
    row("extreme identifiers", list(R"({"id":2147483647},{"id":-2147483648},{"id":0})"),
        "-2147483648: 0: 2147483647: next 4");
    row("identifiers that are none", list(R"({"id":2147483648},{"id":1.5},{"id":"1"},{"id":1e300},{"id":null},{})"),
        "0: next 2");
    row("number beyond a double", list(a + R"(,{"id":1e400})"), "next 1");
    row("null entries", list("null," + a + ",null"), "1:a next 2");
    row("entries that are no materials", list("1,\"a\",[],true," + a), "1:a next 2");
    row("unknown and doubled members", list(R"({"id":5,"id":1,"colour":"red","englishName":"a"})"), "1:a next 2");
    row("wrong types", list(R"({"id":1,"englishName":5,"property1":7,"property2":{"components":"x","kind":[]}})"),
        "1: next 2");
    row("null list", "{\"materialList\":null}", "next 1");
    row("no list", "{}", "next 1");
    row("list of another type", "{\"materialList\":{\"id\":1}}", "next 1");
    row("array at the root", "[" + a + "]", "next 1");
    row("number at the root", "5", "next 1");
    row("trailing garbage", list(a) + "x", "next 1");
    row("truncated", list(a).chopped(1), "next 1");
    row("empty", "", "next 1");
    row("NULs", QByteArray(4096, '\0'), "next 1");
    row("depth 1025", QByteArray(1025, '['), "next 1");
    row("depth 100000", "{\"materialList\":" + QByteArray(100000, '[') + QByteArray(100000, ']') + "}", "next 1");
}

void TestMaterialFiles::loads()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, state);
    writeContent(m_fixture->softwarePath(), json);
    m_fixture->newManager();
    QCOMPARE(m_fixture->software(), state);

    writeContent(m_fixture->projectPath(), enciphered(json));
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), state);

    GlobalConfig::setIsDevelop(true);
    writeContent(m_fixture->projectPath(), json);
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), state);

    // Whatever was loaded can be worked with.
    m_fixture->createProject(text("new"));
    const auto materials = manager().getMatLibDataByType(ProjectLib);
    for (const int id : materials.keys()) {
        manager().getMatDesByID(id);
        manager().hasSameName(text("x"), id, ProjectLib);
        if (manager().hasProjectMatID(id)) {
            manager().deleteProjectMat(id);
        }
    }
    QVERIFY(manager().importAllMaterial(ProjectLib));
}

void TestMaterialFiles::loadsNothingOfTruncatedFiles()
{
    m_fixture->createSoftware(text("a"));
    m_fixture->createProject(text("铜 %1"));
    const QByteArray json = contentOf(m_fixture->softwarePath());
    const QByteArray cipherText = contentOf(m_fixture->projectPath());
    for (int size = 0; size < json.size(); ++size) {
        writeContent(m_fixture->softwarePath(), json.left(size));
        manager().initSoftwareMaterial();
        QCOMPARE(m_fixture->software(), text("next 1"));
    }
    for (int size = 0; size < cipherText.size(); ++size) {
        writeContent(m_fixture->projectPath(), cipherText.left(size));
        expectRefusedCipherText();
        manager().initProjectMaterial();
        QCOMPARE(m_fixture->project(), text("next 1"));
    }
    writeContent(m_fixture->projectPath(), cipherText);
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("1:铜 %1 next 2"));
}

void TestMaterialFiles::takesTheNextIdentifierFromTheNumberOfEntries()
{
    writeContent(m_fixture->softwarePath(),
                 R"({"materialList":[{"id":1,"englishName":"a"},{"id":3,"englishName":"c"}]})");
    m_fixture->newManager();
    QCOMPARE(manager().getNextMatIDByType(SoftwareLib), 3);
    m_fixture->createSoftware(text("new"));
    QCOMPARE(m_fixture->software(), text("1:a 3:new next 4"));
}

void TestMaterialFiles::returnsEveryValueAsItWas_data()
{
    QTest::addColumn<QList<double>>("values");
    const auto row = [](const char* name, const QList<double>& values) { QTest::newRow(name) << values; };
    row("zeros", {0.0, -0.0});
    row("not finite", {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                       doubleOf(0x7ff8000000000000), doubleOf(0xfff8000000000000), doubleOf(0x7ff0000000000001),
                       doubleOf(0x7fffffffffffffff)});
    row("extremes", {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(),
                     std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min(), 1e-300, 1e-12});
    row("precision", {0.1, 1.0 / 3, 2.0 / 3, 1.7976931348623155e308, 9007199254740993.0, 9007199254740992.0,
                      -9007199254740991.0, 9223372036854775807.0, 1e18, 1e19, 123456789012345680.0});
    QList<double> random;
    quint64 bits = 88172645463325252U;
    for (int i = 0; i < 10000; ++i) {
        bits ^= bits << 13;
        bits ^= bits >> 7;
        bits ^= bits << 17;
        random.append(doubleOf(bits));
    }
    row("random bit patterns", random);
    row("none", {});
}

void TestMaterialFiles::returnsEveryValueAsItWas()
{
    QFETCH(QList<double>, values);
    const auto property = MaterialFixture::property(text("p"), 1);
    property->components = values;
    manager().createSoftwareMat({}, text("a"), {}, {}, {}, {}, property);
    manager().createProjectMat({}, text("a"), {}, {}, {}, {}, property);
    DataManager::MaterialLibraryManager* const other = m_fixture->newManager();
    other->initProjectMaterial();
    QVERIFY(isSameBits(other->getSoftwareMatByID(1)->property5->components, values));
    QVERIFY(isSameBits(other->getProjectMatByID(1)->property5->components, values));
}

void TestMaterialFiles::returnsEveryTextAsItWas()
{
    QStringList names = {text(""),
                         text(" "),
                         text("\"\\/\b\f\n\r\t"),
                         text("铜"),
                         text("\xf0\x9f\x94\xa9"),
                         QString(QChar(0)) + text("after NUL"),
                         text("a") + QChar(0),
                         QString(QChar(0xfeff)) + text("mark"),
                         QString(QChar(0xffff)),
                         QString(QChar(0x2028)),
                         text("NaN"),
                         text("-0"),
                         text("%1")};
    QString all;
    for (uint code = 0; code <= 0x10ffff; code += code < 0x3000 ? 1 : 97) {
        if (code < 0xd800 || code > 0xdfff) {
            all += QString::fromUcs4(&code, 1);
        }
    }
    names.append(all);
    for (const QString& name : qAsConst(names)) {
        const auto property = MaterialFixture::property(name, 1);
        property->remark = name;
        manager().createSoftwareMat(name, name, property, {}, {}, {}, {});
        manager().createProjectMat(name, name, property, {}, {}, {}, {});
    }
    DataManager::MaterialLibraryManager* const other = m_fixture->newManager();
    other->initProjectMaterial();
    for (int i = 0; i < names.size(); ++i) {
        for (const auto& material : {other->getSoftwareMatByID(i + 1), other->getProjectMatByID(i + 1)}) {
            QCOMPARE(material->chineseName, names.at(i));
            QCOMPARE(material->englishName, names.at(i));
            QCOMPARE(material->property1->label, names.at(i));
            QCOMPARE(material->property1->remark, names.at(i));
        }
    }
}

void TestMaterialFiles::refusesChangedCipherTexts_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("behind");
    QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf") << QByteArray();
    QTest::newRow("NUL") << QByteArray() << QByteArray(1, '\0');
    QTest::newRow("NUL and more") << QByteArray() << QByteArray("\0more", 5);
    QTest::newRow("line end") << QByteArray() << QByteArray("\n");
    QTest::newRow("blank") << QByteArray(" ") << QByteArray();
}

void TestMaterialFiles::refusesChangedCipherTexts()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, behind);
    m_fixture->createProject(text("a"));
    const QByteArray changed = before + contentOf(m_fixture->projectPath()) + behind;
    writeContent(m_fixture->projectPath(), changed);
    expectLine(text("Decrypt text fail: it was not encrypted with this key."));
    manager().initProjectMaterial();
    QCOMPARE(m_fixture->project(), text("next 1"));
    m_fixture->createProject(text("b"));
    QCOMPARE(contentOf(m_fixture->projectPath() + text(".unreadable")), changed);
}

QTEST_GUILESS_MAIN(TestMaterialFiles)
#include "tst_materialfiles.moc"
