// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/frame/RecordReader.h>

#include <QtTest>

/// A record as the readers expect it.
class GoodRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int number MEMBER number)
    Q_PROPERTY(QString text MEMBER text)

public:
    Q_INVOKABLE GoodRecord() = default;

    int number = 7;
    QString text = QStringLiteral("unset");
};

/// Its constructor cannot be called through the meta-object.
class UninvokableRecord : public QObject
{
    Q_OBJECT

public:
    UninvokableRecord() = default;
};

/// Its only invokable constructor needs an argument.
class ArgumentRecord : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit ArgumentRecord(int) {}
};

class tst_RecordReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsARecord();
    void keepsDefaultsWhenTheTextDoesNotParse_data();
    void keepsDefaultsWhenTheTextDoesNotParse();
    void logsTwoLinesWithoutAnInvokableConstructor();
    void logsTwoLinesWithoutAParameterlessConstructor();
};

void tst_RecordReader::fillsARecord()
{
    bool isParsed = false;
    const auto record = DataManager::readRecord<GoodRecord>(R"({"number": 42, "text": "set"})", &isParsed);
    QVERIFY(!record.isNull());
    QVERIFY(isParsed);
    QCOMPARE(record->number, 42);
    QCOMPARE(record->text, QStringLiteral("set"));
}

void tst_RecordReader::keepsDefaultsWhenTheTextDoesNotParse_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("truncated") << QByteArray(R"({"number": 42, )");
    QTest::newRow("no JSON") << QByteArray("number = 42");
}

void tst_RecordReader::keepsDefaultsWhenTheTextDoesNotParse()
{
    QFETCH(QByteArray, json);
    bool isParsed = true;
    const auto record = DataManager::readRecord<GoodRecord>(json, &isParsed);
    QVERIFY(!record.isNull());
    QVERIFY(!isParsed);
    QCOMPARE(record->number, 7);
    QCOMPARE(record->text, QStringLiteral("unset"));
}

void tst_RecordReader::logsTwoLinesWithoutAnInvokableConstructor()
{
    QTest::ignoreMessage(QtCriticalMsg, "Failed to create an instance of type UninvokableRecord");
    QTest::ignoreMessage(QtCriticalMsg, "Did you forget to declare a public parameterless Q_INVOKABLE constructor?");
    QVERIFY(DataManager::readRecord<UninvokableRecord>("{}").isNull());
}

void tst_RecordReader::logsTwoLinesWithoutAParameterlessConstructor()
{
    QTest::ignoreMessage(QtCriticalMsg, "Failed to create an instance of type ArgumentRecord");
    QTest::ignoreMessage(QtCriticalMsg, "Did you forget to declare a public parameterless Q_INVOKABLE constructor?");
    QVERIFY(DataManager::readRecord<ArgumentRecord>("{}").isNull());
}

QTEST_GUILESS_MAIN(tst_RecordReader)
#include "tst_recordreader.moc"
