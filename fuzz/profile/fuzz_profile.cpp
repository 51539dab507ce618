// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Any bytes as a profile of thresholds. Either there is a problem in words, or every threshold can be used, and the
// thresholds are those that stand in the text.

#include "FuzzInput.h"

#include <meshquality/Profile.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

using DataManager::MeshQualityReport;
using MeshQuality::Profile;
using MeshQuality::Threshold;

bool isSame(const Threshold& one, const Threshold& other)
{
    return one.metric == other.metric && areSameBits(one.minimum, other.minimum) &&
           areSameBits(one.maximum, other.maximum) && areSameBits(one.allowedPercent, other.allowedPercent) &&
           one.source == other.source;
}

void checkThreshold(const Threshold& threshold, const QJsonObject& object)
{
    MeshQualityReport::Metric metric{};
    require(MeshQualityReport::metricOfName(object.value(QLatin1String("metric")).toString(), metric) &&
                metric == threshold.metric,
            "the metric is the one that is named");
    require(!std::isnan(threshold.minimum) && !std::isnan(threshold.maximum), "bounds are numbers");
    require(std::isfinite(threshold.minimum) || std::isfinite(threshold.maximum), "there is a bound");
    require(threshold.allowedPercent >= 0 && threshold.allowedPercent <= 100, "the percentage is one");
    require(object.contains(QLatin1String("minimum")) == (threshold.minimum > -HUGE_VAL) &&
                object.contains(QLatin1String("maximum")) == (threshold.maximum < HUGE_VAL),
            "bounds are those that are given");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto text = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    Profile profile;
    QString problem;
    const bool isRead = Profile::parse(text, profile, problem);
#ifdef FUZZ_DEFECT
    problem.clear();
#endif
    require(isRead == problem.isEmpty(), "what is refused has a reason");
    if (!isRead) {
        return 0;
    }
    const QJsonArray written = QJsonDocument::fromJson(text).object().value(QLatin1String("thresholds")).toArray();
    require(!profile.thresholds.empty() && int(profile.thresholds.size()) == written.size(), "no threshold is lost");
    for (int i = 0; i < written.size(); ++i) {
        checkThreshold(profile.thresholds[std::size_t(i)], written.at(i).toObject());
    }
    Profile again;
    require(Profile::parse(text, again, problem), "it reads again");
    for (std::size_t i = 0; i < profile.thresholds.size(); ++i) {
        require(isSame(profile.thresholds[i], again.thresholds.at(i)), "it reads the same again");
    }
    return 0;
}
