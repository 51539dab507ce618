// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/RecordType.h>

#include <QDate>
#include <QObject>
#include <QStringList>

class PlainRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool flag MEMBER flag)
    Q_PROPERTY(int number MEMBER number)
    Q_PROPERTY(double real READ getReal WRITE setReal)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QList<int> numbers MEMBER numbers)
    Q_PROPERTY(QList<double> reals MEMBER reals)
    Q_PROPERTY(QList<QString> texts MEMBER texts)
    Q_PROPERTY(QList<bool> flags MEMBER flags)
    Q_PROPERTY(QVector<double> vector MEMBER vector)
    Q_PROPERTY(QStringList words MEMBER words)

public:
    Q_INVOKABLE PlainRecord() = default;

    void setDefaults()
    {
        flag = true;
        number = 42;
        real = 0.25;
        text = QStringLiteral("default");
        numbers = {4, 2};
        reals = {0.5};
        texts = {QStringLiteral("d")};
        flags = {true};
        vector = {1.5};
        words = QStringList{QStringLiteral("word")};
    }

    double getReal() const { return real; }
    void setReal(double value) { real = value; }

    bool flag = false;
    int number = 0;
    double real = 0;
    QString text;
    QList<int> numbers;
    QList<double> reals;
    QList<QString> texts;
    QList<bool> flags;
    QVector<double> vector;
    QStringList words;
};

class InnerRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int value MEMBER value)

public:
    Q_INVOKABLE InnerRecord() = default;

    int value = 5;
};

class OuterRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSharedPointer<InnerRecord> shared MEMBER shared)
    Q_PROPERTY(QList<QSharedPointer<InnerRecord>> list MEMBER list)
    Q_PROPERTY(InnerRecord* pointer MEMBER pointer)

public:
    Q_INVOKABLE OuterRecord() = default;

    QSharedPointer<InnerRecord> shared;
    QList<QSharedPointer<InnerRecord>> list;
    InnerRecord* pointer = nullptr;
};

class ChainRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSharedPointer<ChainRecord> next MEMBER next)

public:
    Q_INVOKABLE ChainRecord() = default;

    QSharedPointer<ChainRecord> next;
};

class UnsupportedRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QDate date MEMBER date)

public:
    Q_INVOKABLE UnsupportedRecord() = default;

    QDate date;
};

/// Has a meta-object, but is no record.
struct Span
{
    Q_GADGET
    Q_PROPERTY(qint64 length MEMBER length)

public:
    qint64 length = 1;
};

class SpanRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Span span READ getSpan WRITE setSpan)

public:
    Q_INVOKABLE SpanRecord() = default;

    Span getSpan() const { return span; }
    void setSpan(Span value) { span = value; }

    Span span;
};

Q_DECLARE_METATYPE(Span)

/// Its list holds records of its own kind.
class TreeRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QSharedPointer<TreeRecord>> branches MEMBER branches)

public:
    Q_INVOKABLE TreeRecord() = default;

    QList<QSharedPointer<TreeRecord>> branches;
};

/// Nothing can create it but code that names it.
class ClosedRecord : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int value MEMBER value)

public:
    ClosedRecord() = default;

    int value = 5;
};

class ClosedOwner : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ClosedRecord* pointer MEMBER pointer)

public:
    Q_INVOKABLE ClosedOwner() = default;

    ClosedRecord* pointer = nullptr;
};

namespace {
const bool recordsAreRegistered = QJsonHelper::registerRecordType<InnerRecord>() &&
                                  QJsonHelper::registerRecordType<ChainRecord>() &&
                                  QJsonHelper::registerRecordType<TreeRecord>();
}
