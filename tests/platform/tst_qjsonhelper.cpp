// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Records.h"

#include <basemodule/QJsonHelper.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <cstring>
#include <limits>
#include <random>

using QJsonHelper::DeserializerBase;
using QJsonHelper::SerializerBase;

namespace {

template <class Record>
QByteArray toJson(const Record& record, bool isIndented = false)
{
    return SerializerBase::serialize(&record, Record::staticMetaObject, isIndented);
}

template <class Record>
bool fromJson(const QByteArray& json, Record& record)
{
    return DeserializerBase::deserialize(json, &record, &Record::staticMetaObject);
}

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double doubleOf(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

class tst_QJsonHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesEveryPropertyType();
    void readsEveryPropertyType();
    void readsIntegersUpToTheirLimits();
    void layouts();
    void doublesComeBack_data();
    void doublesComeBack();
    void randomDoublesComeBack();
    void textsComeBack_data();
    void textsComeBack();
    void anEmptyListIsNotAListOfOneEmptyText();
    void nestedRecordsComeBack();
    void nullRecordsComeBack();
    void aRecordBehindAPlainPointerIsFilledWhereItIs();
    void membersOfOtherTypesLeaveDefaults_data();
    void membersOfOtherTypesLeaveDefaults();
    void otherTextsAreRefused_data();
    void otherTextsAreRefused();
    void unknownMembersArePassedOver();
    void elementsThatAreNoRecordsArePassedOver();
    void duplicateMembers();
    void deepNesting();
    void unsupportedTypesFail();
    void aRecordThatContainsItselfFails();
    void asDeepAsIsRead();
    void recordsThatCannotBeCreatedArePassedOver();
    void nullArgumentsFail();
    void textsWithFarTooManyRecordsAreRefused_data();
    void textsWithFarTooManyRecordsAreRefused();
};

void tst_QJsonHelper::writesEveryPropertyType()
{
    PlainRecord record;
    record.flag = true;
    record.number = -7;
    record.real = 0.1;
    record.text = QStringLiteral("t\"x");
    record.numbers = {1, -2};
    record.reals = {0.5, 1e-300};
    record.texts = {QStringLiteral("a"), QString()};
    record.flags = {true, false};
    const QJsonObject json = QJsonDocument::fromJson(toJson(record)).object();
    const QJsonObject expected{{QStringLiteral("flag"), true},
                               {QStringLiteral("number"), -7},
                               {QStringLiteral("real"), 0.1},
                               {QStringLiteral("text"), QStringLiteral("t\"x")},
                               {QStringLiteral("numbers"), QJsonArray{1, -2}},
                               {QStringLiteral("reals"), QJsonArray{0.5, 1e-300}},
                               {QStringLiteral("texts"), QJsonArray{QStringLiteral("a"), QString()}},
                               {QStringLiteral("flags"), QJsonArray{true, false}},
                               {QStringLiteral("vector"), QJsonArray{}},
                               {QStringLiteral("words"), QJsonArray{}}};
    // The object name of QObject is no member of a record.
    QCOMPARE(json, expected);
}

void tst_QJsonHelper::readsEveryPropertyType()
{
    PlainRecord record;
    QVERIFY(fromJson("{\"flag\":true,\"number\":-7,\"real\":0.1,\"text\":\"t\\u00e4\",\"numbers\":[1,-2],"
                     "\"reals\":[0.5,3],\"texts\":[\"a\",\"\"],\"flags\":[true,false],\"vector\":[2.5],"
                     "\"words\":[\"w\"]}",
                     record));
    QCOMPARE(record.flag, true);
    QCOMPARE(record.number, -7);
    QVERIFY(record.real == 0.1);
    QCOMPARE(record.text, QString(QStringLiteral("t") + QChar(0xe4)));
    QCOMPARE(record.numbers, (QList<int>{1, -2}));
    QCOMPARE(record.reals, (QList<double>{0.5, 3.0}));
    QCOMPARE(record.texts, (QList<QString>{QStringLiteral("a"), QString()}));
    QCOMPARE(record.flags, (QList<bool>{true, false}));
    QCOMPARE(record.vector, (QVector<double>{2.5}));
    QCOMPARE(record.words, (QStringList{QStringLiteral("w")}));
}

void tst_QJsonHelper::readsIntegersUpToTheirLimits()
{
    PlainRecord record;
    QVERIFY(fromJson(R"({"number":2147483647,"numbers":[-2147483648,2147483647,0]})", record));
    QCOMPARE(record.number, 2147483647);
    QCOMPARE(record.numbers, (QList<int>{std::numeric_limits<int>::min(), 2147483647, 0}));
}

void tst_QJsonHelper::layouts()
{
    InnerRecord record;
    record.value = 3;
    QCOMPARE(toJson(record, false), QByteArray("{\"value\":3}"));
    QCOMPARE(toJson(record, true), QByteArray("{\n    \"value\": 3\n}\n"));
}

void tst_QJsonHelper::doublesComeBack_data()
{
    QTest::addColumn<quint64>("bits");
    using Limits = std::numeric_limits<double>;
    const QList<double> values{0.0,
                               -0.0,
                               0.1,
                               1e-300,
                               -1e22,
                               1e15,
                               9007199254740993.0,
                               123456789012345678.0,
                               Limits::denorm_min(),
                               Limits::max(),
                               Limits::min(),
                               Limits::infinity(),
                               -Limits::infinity()};
    for (double value : values) {
        QTest::addRow("%.17g", value) << bitsOf(value);
    }
    QTest::newRow("nan") << quint64(0x7ff8000000000000U);
    QTest::newRow("negative nan") << quint64(0xfff8000000000000U);
    QTest::newRow("nan with payload") << quint64(0x7ff8000000001234U);
}

void tst_QJsonHelper::doublesComeBack()
{
    QFETCH(quint64, bits);
    PlainRecord record;
    record.real = doubleOf(bits);
    record.reals = {doubleOf(bits), 1.0};
    PlainRecord read;
    QVERIFY(fromJson(toJson(record), read));
    QCOMPARE(bitsOf(read.real), bits);
    QCOMPARE(read.reals.size(), 2);
    QCOMPARE(bitsOf(read.reals.at(0)), bits);
}

void tst_QJsonHelper::randomDoublesComeBack()
{
    std::mt19937_64 random(20261120);
    PlainRecord record;
    for (int i = 0; i < 20000; ++i) {
        record.reals.append(doubleOf(random()));
    }
    PlainRecord read;
    QVERIFY(fromJson(toJson(record), read));
    QCOMPARE(read.reals.size(), record.reals.size());
    for (int i = 0; i < record.reals.size(); ++i) {
        QCOMPARE(bitsOf(read.reals.at(i)), bitsOf(record.reals.at(i)));
    }
}

void tst_QJsonHelper::textsComeBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("quotes and control characters") << QStringLiteral("\"\\/\b\f\n\r\t\x01\x1f\x7f");
    QTest::newRow("NUL") << QString(QStringLiteral("a") + QChar(0) + QStringLiteral("b"));
    QTest::newRow("every plane") << QString::fromUtf8("\u4e2d\u6587 \U0001f600 \U0010ffff \ue000 \u2028\u2029");
    QTest::newRow("not characters") << QString(QString(QChar(0xfffe)) + QChar(0xffff) + QChar(0xfdd0));
    QTest::newRow("byte-order mark") << QString(QString(QChar(0xfeff)) + QStringLiteral("x"));
    QTest::newRow("looks like a number") << QStringLiteral("NaN");
    QTest::newRow("a million") << QString(1000000, QChar(0x4e2d));
}

void tst_QJsonHelper::textsComeBack()
{
    QFETCH(QString, text);
    PlainRecord record;
    record.text = text;
    record.texts = {text, QStringLiteral("between"), text};
    PlainRecord read;
    QVERIFY(fromJson(toJson(record), read));
    QCOMPARE(read.text, text);
    QCOMPARE(read.texts, record.texts);
}

void tst_QJsonHelper::anEmptyListIsNotAListOfOneEmptyText()
{
    PlainRecord one;
    one.texts = {QString()};
    PlainRecord read;
    QVERIFY(fromJson(toJson(one), read));
    QCOMPARE(read.texts.size(), 1);
    QVERIFY(fromJson(toJson(PlainRecord()), read));
    QCOMPARE(read.texts.size(), 0);
}

void tst_QJsonHelper::nestedRecordsComeBack()
{
    OuterRecord record;
    record.shared.reset(new InnerRecord);
    record.shared->value = 1;
    for (int value : {2, 3}) {
        record.list.append(QSharedPointer<InnerRecord>::create());
        record.list.last()->value = value;
    }
    InnerRecord pointed;
    pointed.value = 4;
    record.pointer = &pointed;
    QCOMPARE(toJson(record),
             QByteArray(R"({"list":[{"value":2},{"value":3}],"pointer":{"value":4},"shared":{"value":1}})"));

    OuterRecord read;
    QVERIFY(fromJson(toJson(record), read));
    QCOMPARE(read.shared->value, 1);
    QCOMPARE(read.list.size(), 2);
    QCOMPARE(read.list.at(0)->value, 2);
    QCOMPARE(read.list.at(1)->value, 3);
    QVERIFY(read.pointer != nullptr);
    QCOMPARE(read.pointer->value, 4);
    QCOMPARE(read.pointer->parent(), &read);
}

void tst_QJsonHelper::nullRecordsComeBack()
{
    OuterRecord record;
    record.list.append(QSharedPointer<InnerRecord>());
    record.list.append(QSharedPointer<InnerRecord>(new InnerRecord));
    QCOMPARE(toJson(record), QByteArray(R"({"list":[null,{"value":5}],"pointer":null,"shared":null})"));
    OuterRecord read;
    read.shared.reset(new InnerRecord);
    QVERIFY(fromJson(toJson(record), read));
    QVERIFY(read.shared.isNull());
    QVERIFY(read.pointer == nullptr);
    QCOMPARE(read.list.size(), 2);
    QVERIFY(read.list.at(0).isNull());
    QVERIFY(!read.list.at(1).isNull());
}

void tst_QJsonHelper::aRecordBehindAPlainPointerIsFilledWhereItIs()
{
    OuterRecord record;
    InnerRecord inner;
    record.pointer = &inner;
    QVERIFY(fromJson(R"({"pointer":{"value":9}})", record));
    QCOMPARE(record.pointer, &inner);
    QCOMPARE(inner.value, 9);
    QVERIFY(inner.parent() == nullptr);
}

void tst_QJsonHelper::membersOfOtherTypesLeaveDefaults_data()
{
    QTest::addColumn<QByteArray>("json");
    const QList<QByteArray> others{
        R"({})",
        R"({"flag":1,"number":"1","real":"1","text":1,"numbers":1,"reals":{},"texts":"a","flags":[1]})",
        R"({"flag":null,"number":null,"real":null,"text":null,"numbers":null,"reals":null,"texts":null})",
        R"({"flag":"true","number":1.5,"real":true,"text":["a"],"numbers":["1"],"reals":["x"],"texts":[1]})",
        R"({"number":2147483648,"real":{},"numbers":[1,"2",3],"reals":[1,null],"texts":["a",null]})",
        R"({"number":-2147483649,"numbers":[1,1.5],"real":"nan","reals":["Inf"]})",
        R"({"number":9007199254740993,"real":"NaN:zz","reals":["NaN:1","NaN:3ff0000000000000"]})",
        R"({"number":true,"real":[],"text":{},"flag":[],"vector":1,"words":[null]})"};
    for (const QByteArray& json : others) {
        QTest::newRow(json.constData()) << json;
    }
}

void tst_QJsonHelper::membersOfOtherTypesLeaveDefaults()
{
    QFETCH(QByteArray, json);
    PlainRecord record;
    record.setDefaults();
    QVERIFY(fromJson(json, record));
    PlainRecord expected;
    expected.setDefaults();
    QCOMPARE(toJson(record), toJson(expected));
}

void tst_QJsonHelper::otherTextsAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("NULs") << QByteArray(4096, 0);
    QTest::newRow("array") << QByteArray("[1]");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("trailing garbage") << QByteArray("{\"number\":2} x");
    QTest::newRow("not UTF-8") << QByteArray("{\"text\":\"\xff\"}");
    QTest::newRow("number too large") << QByteArray("{\"real\":1e400}");
    QTest::newRow("depth 100000") << QByteArray(100000, '[');
    const QByteArray whole(R"({"number":2,"text":"t","reals":[1,2.5]})");
    for (int length = 1; length < whole.size(); ++length) {
        QTest::addRow("truncated at %d", length) << whole.left(length);
    }
}

void tst_QJsonHelper::otherTextsAreRefused()
{
    QFETCH(QByteArray, json);
    PlainRecord record;
    record.setDefaults();
    QVERIFY(!fromJson(json, record));
    PlainRecord expected;
    expected.setDefaults();
    QCOMPARE(toJson(record), toJson(expected));
}

void tst_QJsonHelper::unknownMembersArePassedOver()
{
    InnerRecord record;
    QVERIFY(fromJson(R"({"objectName":"x","other":{"value":1},"value":8})", record));
    QCOMPARE(record.value, 8);
    QCOMPARE(record.objectName(), QString());
}

void tst_QJsonHelper::elementsThatAreNoRecordsArePassedOver()
{
    OuterRecord record;
    QVERIFY(fromJson(R"({"list":[1,{"value":2},"x",[],{"value":"3"}],"shared":[],"pointer":7})", record));
    QCOMPARE(record.list.size(), 2);
    QCOMPARE(record.list.at(0)->value, 2);
    QCOMPARE(record.list.at(1)->value, 5);
    QVERIFY(record.shared.isNull());
    QVERIFY(record.pointer == nullptr);
    QVERIFY(fromJson(R"({"list":{"value":2}})", record));
    QCOMPARE(record.list.size(), 2);
    record.shared.reset(new InnerRecord);
    QVERIFY(fromJson(R"({"shared":7})", record));
    QVERIFY(!record.shared.isNull());
}

void tst_QJsonHelper::duplicateMembers()
{
    InnerRecord record;
    QVERIFY(fromJson(R"({"value":1,"value":2})", record));
    QCOMPARE(record.value, 2);
}

void tst_QJsonHelper::deepNesting()
{
    ChainRecord record;
    QVERIFY(fromJson(QByteArray("{\"next\":").repeated(500) + "{}" + QByteArray("}").repeated(500), record));
    int depth = 0;
    for (const ChainRecord* link = &record; !link->next.isNull(); link = link->next.data()) {
        ++depth;
    }
    QCOMPARE(depth, 500);
    ChainRecord other;
    QVERIFY(!fromJson(QByteArray("{\"next\":").repeated(1100) + "{}" + QByteArray("}").repeated(1100), other));
    QVERIFY(other.next.isNull());
}

void tst_QJsonHelper::unsupportedTypesFail()
{
    UnsupportedRecord record;
    QCOMPARE(toJson(record), QByteArray());
    QVERIFY(fromJson(R"({"date":"2026-01-01"})", record));
    QVERIFY(record.date.isNull());
    SpanRecord other;
    QCOMPARE(toJson(other), QByteArray());
    QVERIFY(fromJson(R"({"span":{"length":2}})", other));
    QCOMPARE(other.span.length, qint64(1));
}

void tst_QJsonHelper::aRecordThatContainsItselfFails()
{
    auto record = QSharedPointer<ChainRecord>::create();
    record->next = record;
    QCOMPARE(toJson(*record), QByteArray());
    record->next.reset();
    auto tree = QSharedPointer<TreeRecord>::create();
    tree->branches = {tree};
    QCOMPARE(toJson(*tree), QByteArray());
    tree->branches.clear();
    QCOMPARE(toJson(*tree), QByteArray(R"({"branches":[]})"));
}

/// Qt's parser follows 1024 objects inside one another, so no more are written.
void tst_QJsonHelper::asDeepAsIsRead()
{
    ChainRecord record;
    ChainRecord* last = &record;
    for (int depth = 1; depth < 1024; ++depth) {
        last->next.reset(new ChainRecord);
        last = last->next.data();
    }
    const QByteArray json = toJson(record);
    QCOMPARE(json.count("{\"next\":"), 1024);
    ChainRecord read;
    QVERIFY(fromJson(json, read));
    QCOMPARE(toJson(read), json);
    last->next.reset(new ChainRecord);
    QCOMPARE(toJson(record), QByteArray());
}

void tst_QJsonHelper::recordsThatCannotBeCreatedArePassedOver()
{
    ClosedOwner owner;
    QVERIFY(fromJson(R"({"pointer":{"value":9}})", owner));
    QVERIFY(owner.pointer == nullptr);
    ClosedRecord record;
    owner.pointer = &record;
    QVERIFY(fromJson(R"({"pointer":{"value":9}})", owner));
    QCOMPARE(record.value, 9);
}

void tst_QJsonHelper::nullArgumentsFail()
{
    QCOMPARE(SerializerBase::serialize(nullptr, InnerRecord::staticMetaObject, true), QByteArray());
    InnerRecord record;
    QVERIFY(!DeserializerBase::deserialize("{}", nullptr, &InnerRecord::staticMetaObject));
    QVERIFY(!DeserializerBase::deserialize("{}", &record, nullptr));
}

void tst_QJsonHelper::textsWithFarTooManyRecordsAreRefused_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isRead");
    // 130002 records of 600 bytes are 7 times this size and 64 MB.
    constexpr int size = (130002 * 600 - 64 * 1024 * 1024) / 7;
    QTest::newRow("in proportion") << QByteArray("list") << QByteArray("{}") << size << true;
    QTest::newRow("one byte less") << QByteArray("list") << QByteArray("{}") << size - 1 << false;
    QTest::newRow("no records") << QByteArray("list") << QByteArray("[]") << size - 1 << true;
    QTest::newRow("a list that is not read") << QByteArray("other") << QByteArray("{}") << size - 1 << true;
    QTest::newRow("the name of an object") << QByteArray("objectName") << QByteArray("{}") << size - 1 << true;
}

void tst_QJsonHelper::textsWithFarTooManyRecordsAreRefused()
{
    QFETCH(QByteArray, member);
    QFETCH(QByteArray, element);
    QFETCH(int, size);
    QFETCH(bool, isRead);
    const QByteArray json = "{\"" + member + "\":[" + (element + ',').repeated(130001) + element + "]}";
    OuterRecord record;
    QCOMPARE(fromJson(json.leftJustified(size), record), isRead);
    QCOMPARE(record.list.size(), isRead && member + element == "list{}" ? 130002 : 0);
}

QTEST_GUILESS_MAIN(tst_QJsonHelper)
#include "tst_qjsonhelper.moc"
