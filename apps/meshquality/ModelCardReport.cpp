// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ModelCardReport.h>

#include <console/Columns.h>
#include <meshquality/JsonWriter.h>
#include <meshquality/ModelText.h>
#include <meshquality/NumberText.h>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;
using DataManager::QualityModelCard;
using Metric = MeshQualityReport::Metric;

namespace {

const QString trainingRanges = QStringLiteral("trainingRanges");

QString number(double value)
{
    return QString::fromLatin1(sixDigits(value));
}

QString verdict(const QualityModelCard& card)
{
    if (card.violations().isEmpty()) {
        return QCoreApplication::translate("meshquality", "  meets the contract of a quality model\n");
    }
    QString text;
    for (const QString& violation : card.violations()) {
        text += QCoreApplication::translate("meshquality", "  does not meet the contract: ") + printable(violation) +
                QLatin1Char('\n');
    }
    return text;
}

QString trial(const QualityModelCard::Trial& trial)
{
    return QCoreApplication::translate("meshquality", "  scores %1 for ordinary features, %2 for zeros, %3 for NaN\n")
        .arg(number(static_cast<double>(trial.ordinary)), number(static_cast<double>(trial.zeros)),
             number(static_cast<double>(trial.notANumber)));
}

/// In one line or, where the value has several, with the rest indented.
QString entry(const QString& key, const QString& value)
{
    return QStringLiteral("  ") + printable(key).leftJustified(16) + QLatin1Char(' ') +
           printable(value).replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(19, QLatin1Char(' '))) +
           QLatin1Char('\n');
}

bool hasRanges(const QualityModelCard& card)
{
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        if (card.trainingRange(static_cast<Metric>(i))) {
            return true;
        }
    }
    return false;
}

QString ranges(const QualityModelCard& card)
{
    QString text = QStringLiteral("  ") + trainingRanges + QLatin1Char('\n');
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const std::optional<QualityModelCard::Range> range = card.trainingRange(static_cast<Metric>(i));
        text += QStringLiteral("    ") + MeshQualityReport::metricName(static_cast<Metric>(i)).leftJustified(20) +
                (range ? number(range->lowest).rightJustified(13) + number(range->highest).rightJustified(13)
                       : Console::rightJustified(QCoreApplication::translate("meshquality", "any"), 13)) +
                QLatin1Char('\n');
    }
    return text;
}

/// The known keys first.
QStringList orderedKeys(const QualityModelCard& card)
{
    QStringList keys;
    for (const QString& key : QualityModelCard::expectedKeys()) {
        if (card.metadata().contains(key)) {
            keys.append(key);
        }
    }
    for (const QString& key : card.metadata().keys()) {
        if (!keys.contains(key)) {
            keys.append(key);
        }
    }
    return keys;
}

void writeList(const char* key, const QStringList& texts, JsonWriter& json)
{
    json.key(QString::fromLatin1(key));
    json.beginArray();
    for (const QString& text : texts) {
        json.value(text);
    }
    json.endArray();
}

void writeTrial(const QualityModelCard::Trial& trial, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("ordinary"));
    json.value(trial.ordinary);
    json.key(QStringLiteral("zeros"));
    json.value(trial.zeros);
    json.key(QStringLiteral("notANumber"));
    json.value(trial.notANumber);
    json.endObject();
}

void writeRanges(const QualityModelCard& card, JsonWriter& json)
{
    json.key(trainingRanges);
    json.beginObject();
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        if (const auto range = card.trainingRange(static_cast<Metric>(i))) {
            json.key(MeshQualityReport::metricName(static_cast<Metric>(i)));
            json.beginArray();
            json.value(range->lowest);
            json.value(range->highest);
            json.endArray();
        }
    }
    json.endObject();
}

} // namespace

QString modelCardText(const QString& file, const QualityModelCard& card)
{
    QString text = file + QLatin1Char('\n') + verdict(card) + (card.trial() ? trial(*card.trial()) : QString());
    for (const QString& key : orderedKeys(card)) {
        text += key == trainingRanges && hasRanges(card) ? ranges(card) : entry(key, card.metadata().value(key));
    }
    for (const QString& remark : card.remarks()) {
        text += QCoreApplication::translate("meshquality", "  remark: ") + remark + QLatin1Char('\n');
    }
    return text;
}

void writeJson(const QString& file, const QualityModelCard& card, JsonWriter& json)
{
    json.beginObject();
    json.key(QStringLiteral("file"));
    json.value(file);
    json.key(QStringLiteral("title"));
    json.value(card.title());
    json.key(QStringLiteral("meetsContract"));
    json.value(card.violations().isEmpty());
    writeList("violations", card.violations(), json);
    writeList("remarks", card.remarks(), json);
    json.key(QStringLiteral("scores"));
    if (card.trial()) {
        writeTrial(*card.trial(), json);
    } else {
        json.null();
    }
    writeRanges(card, json);
    json.key(QStringLiteral("metadata"));
    json.beginObject();
    for (const QString& key : orderedKeys(card)) {
        json.key(key);
        json.value(card.metadata().value(key));
    }
    json.endObject();
    json.endObject();
}

} // namespace MeshQuality
