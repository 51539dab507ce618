// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/QualityModelCard.h>

#include <datamanager/meshquality/private/ModelInspection.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <charconv>
#include <cmath>

namespace DataManager {

using Metric = MeshQualityReport::Metric;

namespace {

// Bounds are written with six digits, so a value up to one unit of the last beyond a bound may have been trained on.
constexpr double roundingOfBounds = 1e-5;
// Below it 1 / score says no more than that the mesh is useless.
constexpr double leastExplainedScore = 1e-3;

const QString nameKey = QStringLiteral("name");
const QString versionKey = QStringLiteral("version");
const QString meaningKey = QStringLiteral("meaning");
const QString explanationKey = QStringLiteral("explanation");
const QString featureOrderKey = QStringLiteral("featureOrder");
const QString trainingRangesKey = QStringLiteral("trainingRanges");

QString threeDigits(double value)
{
    char buffer[32];
    const std::to_chars_result result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 3);
    return QString::fromLatin1(buffer, static_cast<int>(result.ptr - buffer));
}

/// In one go, so that what is filled in is not searched.
QString filledIn(const QString& pattern, const QString& first, const QString& second)
{
    QString text;
    for (int i = 0; i < pattern.size(); ++i) {
        const QStringView rest = QStringView(pattern).mid(i);
        const bool isFirst = rest.startsWith(QLatin1String("%1"));
        const bool isSecond = rest.startsWith(QLatin1String("%2"));
        text += isFirst ? first : isSecond ? second : QString(pattern.at(i));
        i += isFirst || isSecond ? 1 : 0;
    }
    return text;
}

QStringList metricNames()
{
    QStringList names;
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        names.append(MeshQualityReport::metricName(static_cast<Metric>(i)));
    }
    return names;
}

/// False when the value is neither null, which stands for any value, nor a pair of numbers in order.
bool readRange(const QJsonValue& value, std::optional<QualityModelCard::Range>& range)
{
    const QJsonArray bounds = value.toArray();
    if (bounds.size() == 2 && bounds.at(0).isDouble() && bounds.at(1).isDouble()) {
        range = {bounds.at(0).toDouble(), bounds.at(1).toDouble()};
        return range->lowest <= range->highest;
    }
    return value.isNull() || value.isUndefined();
}

} // namespace

bool QualityModelCard::fail(Problem problem, const QString& text)
{
    m_problem = problem;
    m_problemText = text;
    return false;
}

bool QualityModelCard::read(const QString& path)
{
    *this = QualityModelCard();
    const QFileInfo file(path);
    if (!file.exists()) {
        return fail(Problem::Missing, QStringLiteral("no such file"));
    }
    // The runtime would wait for the other end of a pipe.
    if (!file.isFile()) {
        return fail(Problem::NotRegularFile, QStringLiteral("not a regular file"));
    }
    if (!QFile(path).open(QIODevice::ReadOnly)) {
        return fail(Problem::Unreadable, QStringLiteral("cannot be read"));
    }
    if (file.size() == 0) {
        return fail(Problem::NoModel, QStringLiteral("is empty"));
    }
    const ModelInspection inspection = inspectModel(path);
    if (!inspection.loadError.isEmpty()) {
        return fail(Problem::NoModel, QStringLiteral("no ONNX model: ") + inspection.loadError);
    }
    m_problem = Problem::None;
    m_fileName = file.fileName();
    m_violations = inspection.violations;
    m_trial = inspection.trial;
    m_metadata = inspection.metadata;
    takeFeatureOrder();
    takeTrainingRanges();
    if (m_trial) {
        remarkOnTrial();
    }
    remarkOnMissingKeys();
    return true;
}

QStringList QualityModelCard::expectedKeys()
{
    return {nameKey,
            versionKey,
            meaningKey,
            explanationKey,
            QStringLiteral("trainedOn"),
            QStringLiteral("licence"),
            QStringLiteral("dataSha256"),
            featureOrderKey,
            trainingRangesKey};
}

QString QualityModelCard::title() const
{
    const QString name = m_metadata.value(nameKey).simplified();
    return name.isEmpty() ? m_fileName : QString(name + QLatin1Char(' ') + m_metadata.value(versionKey)).simplified();
}

std::optional<QualityModelCard::Range> QualityModelCard::trainingRange(Metric feature) const
{
    return m_trainingRanges[static_cast<std::size_t>(feature)];
}

std::vector<QualityModelCard::Excess> QualityModelCard::outsideOfTraining(const Features& features) const
{
    std::vector<Excess> result;
    for (std::size_t i = 0; i < features.size(); ++i) {
        const std::optional<Range>& range = m_trainingRanges[i];
        const double value = static_cast<double>(features[i]);
        if (range && (value < range->lowest - roundingOfBounds * std::fabs(range->lowest) ||
                      value > range->highest + roundingOfBounds * std::fabs(range->highest))) {
            result.push_back({static_cast<Metric>(i), value, *range});
        }
    }
    return result;
}

QString QualityModelCard::explanation(float score) const
{
    if (std::isnan(score)) {
        return QString();
    }
    const QString pattern = m_metadata.value(explanationKey).simplified();
    const double value = static_cast<double>(score);
    return pattern.isEmpty() || value < leastExplainedScore
               ? m_metadata.value(meaningKey).simplified()
               : filledIn(pattern, threeDigits(value), threeDigits(1.0 / value));
}

void QualityModelCard::takeFeatureOrder()
{
    if (!m_metadata.contains(featureOrderKey)) {
        return;
    }
    const QString found = m_metadata.value(featureOrderKey);
    QStringList order;
    for (const QJsonValue& feature : QJsonDocument::fromJson(found.toUtf8()).array()) {
        order.append(feature.toString());
    }
    m_takesOurFeatures = order == metricNames();
    if (!m_takesOurFeatures) {
        m_violations.append(QStringLiteral("expected the features in the order %1, found the %2 %3")
                                .arg(metricNames().join(QStringLiteral(", ")), featureOrderKey, found.simplified()));
    }
}

void QualityModelCard::takeTrainingRanges()
{
    if (!m_metadata.contains(trainingRangesKey)) {
        return;
    }
    const QJsonDocument document = QJsonDocument::fromJson(m_metadata.value(trainingRangesKey).toUtf8());
    bool isRead = document.isObject();
    for (std::size_t i = 0; i < m_trainingRanges.size(); ++i) {
        const QString name = MeshQualityReport::metricName(static_cast<Metric>(i));
        isRead = readRange(document.object().value(name), m_trainingRanges[i]) && isRead;
    }
    if (!isRead) {
        m_trainingRanges = {};
        m_remarks.append(QStringLiteral("the %1 in the metadata cannot be read").arg(trainingRangesKey));
    }
}

void QualityModelCard::remarkOnTrial()
{
    const auto remark = [this](const char* what, float score) {
        m_remarks.append(QString::fromLatin1(what).arg(threeDigits(static_cast<double>(score))));
    };
    if (m_trial->ordinary < 0.0F || m_trial->ordinary > 1.0F) {
        remark("the score of ordinary features is %1; programs take it as the nearest of 0 and 1", m_trial->ordinary);
    }
    if (m_trial->zeros != 0.0F) {
        remark("the score of zeros, as without a mesh, is %1 and not 0", m_trial->zeros);
    }
    if (!std::isnan(m_trial->notANumber)) {
        remark("the score of features that are no numbers is %1 and not NaN", m_trial->notANumber);
    }
}

void QualityModelCard::remarkOnMissingKeys()
{
    QStringList missing;
    for (const QString& key : expectedKeys()) {
        if (!m_metadata.contains(key)) {
            missing.append(key);
        }
    }
    if (!missing.isEmpty()) {
        m_remarks.append(QStringLiteral("the metadata lack %1").arg(missing.join(QStringLiteral(", "))));
    }
}

} // namespace DataManager
