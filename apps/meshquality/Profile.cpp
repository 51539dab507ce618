// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/Profile.h>

#include <basemodule/GlobalHelper.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

// A static library's resources are dropped unless something names them; the macro works in no namespace.
static void keepResources()
{
    Q_INIT_RESOURCE(profiles);
}

namespace MeshQuality {

namespace {

constexpr double unbounded = std::numeric_limits<double>::infinity();

/// A number member, or what stands for a missing one; false when it is something else.
bool readNumber(const QJsonObject& object, const char* name, double missing, double& number)
{
    const QJsonValue value = object.value(QLatin1String(name));
    number = value.toDouble(missing);
    return value.isUndefined() || value.isDouble();
}

QString readThreshold(const QJsonObject& object, Threshold& threshold)
{
    const QString name = object.value(QLatin1String("metric")).toString();
    if (!DataManager::MeshQualityReport::metricOfName(name, threshold.metric)) {
        return QCoreApplication::translate("meshquality", "there is no metric '%1'").arg(name);
    }
    const bool areNumbers = readNumber(object, "minimum", -unbounded, threshold.minimum) &&
                            readNumber(object, "maximum", unbounded, threshold.maximum) &&
                            readNumber(object, "allowedPercent", 0.0, threshold.allowedPercent);
    if (!areNumbers || (threshold.minimum == -unbounded && threshold.maximum == unbounded)) {
        return QCoreApplication::translate("meshquality", "%1 needs a number as minimum or maximum").arg(name);
    }
    if (!(threshold.allowedPercent >= 0.0 && threshold.allowedPercent <= 100.0)) {
        return QCoreApplication::translate("meshquality", "%1 needs an allowedPercent from 0 to 100").arg(name);
    }
    threshold.source = object.value(QLatin1String("source")).toString();
    return QString();
}

} // namespace

QByteArray Profile::defaultText()
{
    keepResources();
    QFile file(QStringLiteral(":/meshquality/profiles/default.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Profile::read(const QString& path, Profile& profile, QString& problem)
{
    QByteArray content;
    if (!BaseModule::GlobalHelper::readFile(path, content)) {
        problem = QCoreApplication::translate("meshquality", "cannot be read");
        return false;
    }
    return parse(content, profile, problem);
}

bool Profile::parse(const QByteArray& text, Profile& profile, QString& problem)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    const QJsonArray thresholds = document.object().value(QLatin1String("thresholds")).toArray();
    if (error.error != QJsonParseError::NoError) {
        problem =
            QCoreApplication::translate("meshquality", "%1 at byte %2").arg(error.errorString()).arg(error.offset);
    } else if (thresholds.isEmpty()) {
        problem = QCoreApplication::translate("meshquality", "has no list of thresholds");
    }
    profile.name = document.object().value(QLatin1String("name")).toString();
    for (const QJsonValue& value : thresholds) {
        Threshold threshold{};
        problem = problem.isEmpty() ? readThreshold(value.toObject(), threshold) : problem;
        profile.thresholds.push_back(threshold);
    }
    return problem.isEmpty();
}

} // namespace MeshQuality
