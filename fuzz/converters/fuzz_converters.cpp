// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// The lists of the coordinate-system file as texts. The first byte chooses one of the four kinds and the way: any text
// read, written and read again, or any list written and read.

#include "FuzzInput.h"

#include <basemodule/GlobalHelper.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

using BaseModule::GlobalHelper;

bool isSame(int one, int other)
{
    return one == other;
}

bool isSame(double one, double other)
{
    return areSameBits(one, other);
}

bool isSame(const QString& one, const QString& other)
{
    return one == other;
}

template <class First, class Second>
bool isSame(const QPair<First, Second>& one, const QPair<First, Second>& other)
{
    return isSame(one.first, other.first) && isSame(one.second, other.second);
}

template <class Value>
bool isSame(const QList<Value>& one, const QList<Value>& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const Value& a, const Value& b) { return isSame(a, b); });
}

void takeValue(FuzzInput& input, int& value)
{
    value = input.take<int>();
}

void takeValue(FuzzInput& input, double& value)
{
    value = input.take<double>();
}

void takeValue(FuzzInput& input, QString& value)
{
    value = input.takeText();
}

template <class First, class Second>
void takeValue(FuzzInput& input, QPair<First, Second>& pair)
{
    takeValue(input, pair.first);
    takeValue(input, pair.second);
}

template <class Value>
void takeValue(FuzzInput& input, QList<Value>& list)
{
    while (!input.isEmpty()) {
        Value value{};
        takeValue(input, value);
        list.append(value);
    }
}

/// What the file's JSON makes of a text.
QString carried(const QString& text)
{
    const QByteArray json = QJsonDocument(QJsonArray{text}).toJson();
    return QJsonDocument::fromJson(json).array().at(0).toString();
}

template <class Value>
void tryKind(FuzzInput& input, bool isReading, QString (*write)(Value), Value (*read)(QString))
{
    Value value{};
    if (isReading) {
        const QByteArray text = input.takeRest();
        value = read(QString::fromUtf8(text.constData(), text.size()));
    } else {
        takeValue(input, value);
    }
    QString text = write(value);
#ifdef FUZZ_DEFECT
    text.replace(QLatin1Char('7'), QLatin1Char('8'));
#endif
    require(isSame(read(text), value), "a written value comes back");
    require(write(read(text)) == text, "the second text is the first");
    require(carried(text) == text, "JSON carries the text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const char choice = input.take<char>();
    const bool isReading = choice < 'a';
    switch (choice | 0x20) {
    case 'i':
        tryKind(input, isReading, GlobalHelper::convertIntIntQListToQString, GlobalHelper::convertStringToIntIntQList);
        break;
    case 'd':
        tryKind(input, isReading, GlobalHelper::convertDoubleListToQString, GlobalHelper::convertStringToDoubleList);
        break;
    case 't':
        tryKind(input, isReading, GlobalHelper::convertIntQStringQListToQString,
                GlobalHelper::convertStringToIntQStringQList);
        break;
    default:
        tryKind(input, isReading, GlobalHelper::convertQStringDoubleQPairToQString,
                GlobalHelper::convertStringToQStringDoublePair);
        break;
    }
    return 0;
}
