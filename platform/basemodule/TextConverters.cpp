// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalHelper.h>

#include <basemodule/private/EscapedText.h>
#include <basemodule/private/NumberText.h>

#include <QStringRef>
#include <QVector>

namespace BaseModule {

namespace {

const QChar entrySeparator = QLatin1Char(';');
const QChar keySeparator = QLatin1Char(':');
const QChar valueSeparator = QLatin1Char(',');

void appendValue(QString& text, int value)
{
    NumberText::append(text, value);
}

void appendValue(QString& text, double value)
{
    NumberText::append(text, value);
}

void appendValue(QString& text, const QString& value)
{
    text += EscapedText::escape(value, entrySeparator);
}

template <class Value>
void appendValue(QString& text, const QPair<int, Value>& pair)
{
    NumberText::append(text, pair.first);
    text += keySeparator;
    appendValue(text, pair.second);
}

bool parseValue(const QStringRef& text, int& value)
{
    return NumberText::toInt(text, value);
}

bool parseValue(const QStringRef& text, double& value)
{
    return NumberText::toDouble(text, value);
}

bool parseValue(const QStringRef& text, QString& value)
{
    return EscapedText::unescape(text.toString(), value);
}

template <class Value>
bool parseValue(const QStringRef& text, QPair<int, Value>& pair)
{
    const int position = text.indexOf(keySeparator);
    return position >= 0 && parseValue(text.left(position), pair.first) &&
           parseValue(text.mid(position + 1), pair.second);
}

template <class Value>
QString listText(const QList<Value>& list, QChar separator)
{
    QString text;
    for (const Value& value : list) {
        if (!text.isEmpty()) {
            text += separator;
        }
        appendValue(text, value);
    }
    return text;
}

/// One damaged element empties the whole list: levels of chains that run in parallel must not shift against each other.
template <class Value>
QList<Value> parseList(const QString& text, QChar separator)
{
    QList<Value> list;
    if (text.isEmpty()) {
        return list;
    }
    const QVector<QStringRef> parts = text.splitRef(separator);
    list.reserve(parts.size());
    for (const QStringRef& part : parts) {
        Value value{};
        if (!parseValue(part, value)) {
            return {};
        }
        list.append(value);
    }
    return list;
}

} // namespace

QString GlobalHelper::convertIntIntQListToQString(QList<QPair<int, int>> list)
{
    return listText(list, entrySeparator);
}

QList<QPair<int, int>> GlobalHelper::convertStringToIntIntQList(QString text)
{
    return parseList<QPair<int, int>>(text, entrySeparator);
}

QString GlobalHelper::convertDoubleListToQString(QList<double> list)
{
    return listText(list, valueSeparator);
}

QList<double> GlobalHelper::convertStringToDoubleList(QString text)
{
    return parseList<double>(text, valueSeparator);
}

QString GlobalHelper::convertIntQStringQListToQString(QList<QPair<int, QString>> list)
{
    return listText(list, entrySeparator);
}

QList<QPair<int, QString>> GlobalHelper::convertStringToIntQStringQList(QString text)
{
    return parseList<QPair<int, QString>>(text, entrySeparator);
}

QString GlobalHelper::convertQStringDoubleQPairToQString(QPair<QString, double> pair)
{
    QString text = EscapedText::escape(pair.first) + valueSeparator;
    NumberText::append(text, pair.second);
    return text;
}

QPair<QString, double> GlobalHelper::convertStringToQStringDoublePair(QString text)
{
    QPair<QString, double> pair;
    const int position = text.lastIndexOf(valueSeparator);
    if (position < 0 || !EscapedText::unescape(text.left(position), pair.first) ||
        !NumberText::toDouble(text.midRef(position + 1), pair.second)) {
        return {};
    }
    return pair;
}

} // namespace BaseModule
