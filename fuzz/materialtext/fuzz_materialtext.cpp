// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Two ways, by the first byte. 'r': the rest is a material text; what reads must have the described shape, and reads
// the same again once written. 'w': the rest makes a record; what is written must read back.

#include "FuzzInput.h"

#include <datamanager/material/private/MaterialPropertyText.h>

#include <datamodel/MaterialPropertyData.h>

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

using DataManager::MaterialPropertyText::read;
using DataModel::MaterialPropertyData;

constexpr int componentCount = 9;

QString written(const MaterialPropertyData& property)
{
    QString text = DataManager::MaterialPropertyText::write(property);
#ifdef FUZZ_DEFECT
    text.replace(QLatin1Char('|'), QLatin1Char(';'));
#endif
    return text;
}

/// What a component becomes in the text, by the C library; not finite where the text goes beyond the range of double.
/// Qt writes -0 as 0.
double sixteenDigits(double value)
{
    char digits[64];
    std::snprintf(digits, sizeof digits, "%.16g", value);
    return std::strtod(digits, nullptr) + 0.0;
}

/// Whether `read` is `value` at sixteen digits. Where the value lies in the middle of two such numbers, the C library
/// and Qt choose different ones: both are as near.
bool isAtSixteenDigits(double value, double read)
{
    constexpr double bound = 6.2e-16;
    return areSameBits(sixteenDigits(value), read) || (std::isnan(value) && std::isnan(read)) ||
           std::fabs(read - value) <= std::fabs(value) * bound;
}

/// A comma parts fields, and a '%' may begin a place that another field fills.
bool isPlain(const QString& text)
{
    return !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('%'));
}

bool isRepeatable(const MaterialPropertyData& property)
{
    return isPlain(property.label) && isPlain(property.remark) &&
           std::all_of(property.components.begin(), property.components.end(),
                       [](double value) { return std::isfinite(sixteenDigits(value)) || !std::isfinite(value); });
}

void compare(const MaterialPropertyData& one, const MaterialPropertyData& other)
{
    require(one.label == other.label && one.remark == other.remark, "the texts come back");
    require(one.kind == other.kind && one.flag == other.flag, "kind and flag come back");
    require(other.components.size() == componentCount, "nine components come back");
    for (int i = 0; i < componentCount; ++i) {
        require(isAtSixteenDigits(one.components.at(i), other.components.at(i)), "sixteen digits come back");
    }
}

void readAndWrite(const QString& text)
{
    const auto property = read(text);
    const QStringList fields = text.split(QLatin1Char(','));
    if (property.isNull()) {
        return;
    }
    require(fields.size() == 5 && fields.at(2).count(QLatin1Char('|')) == componentCount - 1, "five fields are read");
    require(property->label == fields.at(0) && property->remark == fields.at(3), "the texts stand as they are");
    require(property->components.size() == componentCount, "nine components are read");
    if (!isRepeatable(*property)) {
        return;
    }
    const QString again = written(*property);
    const auto second = read(again);
    require(!second.isNull(), "what is written can be read");
    compare(*property, *second);
    require(written(*second) == again, "the second text is the first");
}

void writeAndRead(FuzzInput& input)
{
    MaterialPropertyData property;
    property.kind = input.take<int>();
    property.flag = (input.take<std::uint8_t>() & 1) != 0;
    // Every fourth record has another number of components, which has no text.
    const auto shape = input.take<std::uint8_t>();
    const int count = shape % 4 == 3 ? shape / 4 : componentCount;
    for (int i = 0; i < count; ++i) {
        property.components.append(input.take<double>());
    }
    property.label = input.takeText();
    property.remark = input.takeText();
    const QString text = written(property);
    if (count != componentCount) {
        require(text.isEmpty(), "only nine components have a text");
    } else if (isRepeatable(property)) {
        const auto second = read(text);
        require(!second.isNull(), "what is written can be read");
        compare(property, *second);
    } else {
        read(text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    if (input.take<char>() == 'w') {
        writeAndRead(input);
    } else {
        const QByteArray text = input.takeRest();
        readAndWrite(QString::fromUtf8(text.constData(), text.size()));
    }
    return 0;
}
