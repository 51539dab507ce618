// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/JsonWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <limits>

using MeshQuality::JsonWriter;

class JsonWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesMembersInOrder();
    void writesOneLine();
    void writesEmptyContainers();
    void escapesText();
    void writesNumbers_data();
    void writesNumbers();
};

void JsonWriterTest::writesMembersInOrder()
{
    JsonWriter json;
    json.beginArray();
    json.beginObject();
    json.key(QStringLiteral("z"));
    json.value(qint64(1));
    json.key(QStringLiteral("a"));
    json.beginArray();
    json.value(qint64(2));
    json.value(QStringLiteral("x"));
    json.endArray();
    json.endObject();
    json.endArray();
    QCOMPARE(json.text(), QByteArray("[\n  {\n    \"z\": 1,\n    \"a\": [\n      2,\n      \"x\"\n    ]\n  }\n]\n"));
}

void JsonWriterTest::writesOneLine()
{
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.beginObject();
    json.key(QStringLiteral("a"));
    json.beginArray();
    json.value(qint64(2));
    json.value(QStringLiteral("line\nend"));
    json.endArray();
    json.key(QStringLiteral("b"));
    json.value(1.5);
    json.endObject();
    QCOMPARE(json.text(), QByteArray("{\"a\": [2,\"line\\u000aend\"],\"b\": 1.5}\n"));
}

void JsonWriterTest::writesEmptyContainers()
{
    JsonWriter json;
    json.beginArray();
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.endArray();
    QCOMPARE(json.text(), QByteArray("[\n  {},\n  []\n]\n"));
}

void JsonWriterTest::escapesText()
{
    QString text = QStringLiteral("quote \" slash / backslash \\ tab \t é 漢 \u007f");
    text += QChar(0);
    text += QChar(0x1f);
    JsonWriter json;
    json.beginArray();
    json.value(text);
    json.endArray();
    QCOMPARE(QJsonDocument::fromJson(json.text()).array().first().toString(), text);
}

void JsonWriterTest::writesNumbers_data()
{
    QTest::addColumn<float>("number");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("a tenth") << 0.1F << QByteArray("0.1");
    QTest::newRow("one") << 1.0F << QByteArray("1");
    QTest::newRow("a third") << 1.0F / 3 << QByteArray("0.33333334");
    QTest::newRow("small") << 1e-20F << QByteArray("1e-20");
    QTest::newRow("negative zero") << -0.0F << QByteArray("-0");
    QTest::newRow("NaN") << std::numeric_limits<float>::quiet_NaN() << QByteArray("null");
    QTest::newRow("infinity") << -std::numeric_limits<float>::infinity() << QByteArray("null");
}

void JsonWriterTest::writesNumbers()
{
    QFETCH(float, number);
    QFETCH(QByteArray, expected);
    JsonWriter json;
    json.value(number);
    QCOMPARE(json.text(), expected + '\n');
}

QTEST_APPLESS_MAIN(JsonWriterTest)
#include "tst_jsonwriter.moc"
