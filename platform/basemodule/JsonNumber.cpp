// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/private/JsonNumber.h>

#include <QJsonValue>
#include <QString>

#include <cmath>
#include <cstring>
#include <limits>

namespace QJsonHelper {

namespace {

const QLatin1String nanPrefix("NaN:");
// The quiet not-a-number that arithmetic and std::numeric_limits give.
constexpr quint64 usualNan = 0x7ff8000000000000U;

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

QString nanText(quint64 bits)
{
    return bits == usualNan ? QStringLiteral("NaN") : nanPrefix + QString::number(bits, 16);
}

bool parseNan(const QString& text, double& value)
{
    if (text == QLatin1String("NaN")) {
        value = doubleOf(usualNan);
        return true;
    }
    if (!text.startsWith(nanPrefix)) {
        return false;
    }
    bool isNumber = false;
    const double parsed = doubleOf(text.mid(nanPrefix.size()).toULongLong(&isNumber, 16));
    if (!isNumber || !std::isnan(parsed)) {
        return false;
    }
    value = parsed;
    return true;
}

bool parseText(const QString& text, double& value)
{
    if (text == QLatin1String("Infinity")) {
        value = std::numeric_limits<double>::infinity();
    } else if (text == QLatin1String("-Infinity")) {
        value = -std::numeric_limits<double>::infinity();
    } else if (text == QLatin1String("-0")) {
        value = -0.0;
    } else {
        return parseNan(text, value);
    }
    return true;
}

} // namespace

QJsonValue JsonNumber::fromDouble(double value)
{
    if (std::isnan(value)) {
        return nanText(bitsOf(value));
    }
    if (std::isinf(value)) {
        return value > 0 ? QStringLiteral("Infinity") : QStringLiteral("-Infinity");
    }
    if (value == 0 && std::signbit(value)) {
        return QStringLiteral("-0");
    }
    return value;
}

bool JsonNumber::toDouble(const QJsonValue& json, double& value)
{
    if (json.isString()) {
        return parseText(json.toString(), value);
    }
    if (!json.isDouble()) {
        return false;
    }
    value = json.toDouble();
    return true;
}

} // namespace QJsonHelper
