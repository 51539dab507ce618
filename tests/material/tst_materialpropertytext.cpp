// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/MaterialLibraryManager.h>

#include <datamodel/MaterialPropertyData.h>

#include <QtTest>

#include <cstring>
#include <limits>

using DataManager::MaterialLibraryManager;
using DataModel::MaterialPropertyData;
using PropertyPointer = QSharedPointer<MaterialPropertyData>;

Q_DECLARE_METATYPE(PropertyPointer)

namespace {

PropertyPointer record(const char* label, int kind, const QList<double>& components, const char* remark, bool flag)
{
    const auto property = PropertyPointer::create();
    property->label = QString::fromUtf8(label);
    property->kind = kind;
    property->components = components;
    property->remark = QString::fromUtf8(remark);
    property->flag = flag;
    return property;
}

const QList<double> identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
const QList<double> counting = {1, 2, 3, 4, 5, 6, 7, 8, 9};

} // namespace

class TestMaterialPropertyText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writes_data();
    void writes();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void readsAnewEveryTime();

private:
    MaterialLibraryManager* m_manager = nullptr;
};

void TestMaterialPropertyText::initTestCase()
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Read software material library file fail")));
    m_manager = MaterialLibraryManager::getInstance();
}

void TestMaterialPropertyText::writes_data()
{
    QTest::addColumn<PropertyPointer>("property");
    QTest::addColumn<QString>("text");
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto row = [](const char* name, const PropertyPointer& property, const char* text) {
        QTest::newRow(name) << property << QString::fromUtf8(text);
    };
    row("identity", record("eps", 2, identity, "r", false), "eps,2,1|0|0|0|1|0|0|0|1,r,0");
    row("flag", record("a", 1, counting, "b", true), "a,1,1|2|3|4|5|6|7|8|9,b,1");
    row("negative kind", record("", -7, counting, "", false), ",-7,1|2|3|4|5|6|7|8|9,,0");
    row("sixteen digits",
        record("d", 0, {0.1, 1.0 / 3, 1e300, 1e-300, -0.0, 123456789012345678.0, 2.5e-7, 100000, 1e16}, "", false),
        "d,0,0.1|0.3333333333333333|1e+300|1e-300|0|1.234567890123457e+17|2.5e-07|100000|1e+16,,0");
    row("not finite", record("n", 0, {inf, -inf, nan, 0, 0, 0, 0, 0, 0}, "", false), "n,0,inf|-inf|nan|0|0|0|0|0|0,,0");
    row("commas and bars", record("a,b|c", 1, counting, "d,e|f", true), "a,b|c,1,1|2|3|4|5|6|7|8|9,d,e|f,1");
    row("no text", record("", 0, identity, "", false), ",0,1|0|0|0|1|0|0|0|1,,0");
    row("Unicode", record("介电常数 ε", 0, identity, "\xf0\x9f\x94\xa9", false),
        "介电常数 ε,0,1|0|0|0|1|0|0|0|1,\xf0\x9f\x94\xa9,0");
    // Worked by hand: "%5" stands for the third component, so the third component fills both.
    row("%5 in the label", record("%5", 1, counting, "r", true), "3,1,1|2|3|4|5|6|7|8|9,r,1");
    // "%1" is the lowest placeholder when the kind is filled in; every later value then moves one place to the left,
    // and "%13" stays.
    row("%1 in the label", record("%1", 42, counting, "r", true), "42,1,2|3|4|5|6|7|8|9|r,1,%13");
    row("%13 in the label", record("%13", 1, counting, "r", true), "1,1,1|2|3|4|5|6|7|8|9,r,1");
    row("%99 in the label", record("%99", 1, counting, "r", true), "%99,1,1|2|3|4|5|6|7|8|9,r,1");
    row("%13 in the remark", record("l", 1, counting, "%13", true), "l,1,1|2|3|4|5|6|7|8|9,1,1");
    row("%1 in the remark", record("l", 1, counting, "%1", false), "l,1,1|2|3|4|5|6|7|8|9,0,%13");
    row("null", {}, "");
    row("no components", record("l", 1, {}, "r", true), "");
    row("eight components", record("l", 1, counting.mid(1), "r", true), "");
    row("ten components", record("l", 1, counting + QList<double>{10}, "r", true), "");
}

void TestMaterialPropertyText::writes()
{
    QFETCH(PropertyPointer, property);
    QFETCH(QString, text);
    QCOMPARE(m_manager->convertMaterialPropertToQString(property), text);
}

void TestMaterialPropertyText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<PropertyPointer>("expected");
    const auto row = [](const char* name, const char* text, const PropertyPointer& expected) {
        QTest::newRow(name) << QString::fromUtf8(text) << expected;
    };
    row("complete", "a,1,1|2|3|4|5|6|7|8|9,b,1", record("a", 1, counting, "b", true));
    row("empty texts", ",0,1|2|3|4|5|6|7|8|9,,0", record("", 0, counting, "", false));
    row("texts are not trimmed", " a ,1,1|2|3|4|5|6|7|8|9, b ,1", record(" a ", 1, counting, " b ", true));
    row("bars in texts", "a|b,1,1|2|3|4|5|6|7|8|9,c|d,1", record("a|b", 1, counting, "c|d", true));
    row("2 is true", "a,1,1|2|3|4|5|6|7|8|9,b,2", record("a", 1, counting, "b", true));
    row("7 is true", "a,1,1|2|3|4|5|6|7|8|9,b,7", record("a", 1, counting, "b", true));
    row("-1 is false", "a,1,1|2|3|4|5|6|7|8|9,b,-1", record("a", 1, counting, "b", false));
    row("negative kind", "a,-2147483648,1|2|3|4|5|6|7|8|9,b,1", record("a", -2147483647 - 1, counting, "b", true));
    row("number forms", "a,1,1e-300|-0|.5|1E3|+2|nan|inf|-inf|0.1,b,0",
        record("a", 1,
               {1e-300, -0.0, 0.5, 1000, 2, std::numeric_limits<double>::quiet_NaN(),
                std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), 0.1},
               "b", false));
    row("placeholders stay", "%1,1,1|2|3|4|5|6|7|8|9,%2,1", record("%1", 1, counting, "%2", true));
}

void TestMaterialPropertyText::reads()
{
    QFETCH(QString, text);
    QFETCH(PropertyPointer, expected);
    const auto property = m_manager->convertQStringToMaterialPropertyData(text);
    QVERIFY(!property.isNull());
    QCOMPARE(property->label, expected->label);
    QCOMPARE(property->kind, expected->kind);
    QCOMPARE(property->components.size(), 9);
    for (int i = 0; i < 9; ++i) {
        const double value = property->components.at(i);
        const double expectedValue = expected->components.at(i);
        QVERIFY2(std::memcmp(&value, &expectedValue, sizeof value) == 0, qPrintable(QString::number(i)));
    }
    QCOMPARE(property->remark, expected->remark);
    QCOMPARE(property->flag, expected->flag);
}

void TestMaterialPropertyText::refuses_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             "a",
                             "a,1,1|2|3|4|5|6|7|8|9,b",
                             "a,1,1|2|3|4|5|6|7|8|9,b,1,",
                             "a,a,1,1|2|3|4|5|6|7|8|9,b,1",
                             "a,x,1|2|3|4|5|6|7|8|9,b,1",
                             "a,,1|2|3|4|5|6|7|8|9,b,1",
                             "a,1.5,1|2|3|4|5|6|7|8|9,b,1",
                             "a,2147483648,1|2|3|4|5|6|7|8|9,b,1",
                             "a,0x1,1|2|3|4|5|6|7|8|9,b,1",
                             "a,1,1|2|3|4|5|6|7|8,b,1",
                             "a,1,1|2|3|4|5|6|7|8|9|10,b,1",
                             "a,1,1|2|3|4|5|6|7|8|z,b,1",
                             "a,1,1|2|3|4|5|6|7|8|,b,1",
                             "a,1,,b,1",
                             "a,1,1|2|3|4|5|6|7|8|9,b,",
                             "a,1,1|2|3|4|5|6|7|8|9,b,true",
                             "a,1,1|2|3|4|5|6|7|8|0x9,b,1",
                             "a,1,1|2|3|4|5|6|7|8|1e400,b,1",
                             "a,1,1|2|3|4|5|6|7|8|1,5,b,1",
                             "a;1;1|2|3|4|5|6|7|8|9;b;1"}) {
        QTest::newRow(text) << QString::fromUtf8(text);
    }
}

void TestMaterialPropertyText::refuses()
{
    QFETCH(QString, text);
    QVERIFY(m_manager->convertQStringToMaterialPropertyData(text).isNull());
}

void TestMaterialPropertyText::readsAnewEveryTime()
{
    const QString text = QStringLiteral("a,1,1|2|3|4|5|6|7|8|9,b,1");
    const auto first = m_manager->convertQStringToMaterialPropertyData(text);
    const auto second = m_manager->convertQStringToMaterialPropertyData(text);
    QVERIFY(first != second);
    first->components.clear();
    QCOMPARE(second->components, counting);
    auto writable = second;
    QCOMPARE(m_manager->convertMaterialPropertToQString(writable), text);
}

QTEST_GUILESS_MAIN(TestMaterialPropertyText)
#include "tst_materialpropertytext.moc"
