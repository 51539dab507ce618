// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QByteArray>
#include <QString>

#include <vector>

namespace MeshQuality {

/// One rule of a profile: which values of a metric fail, and how many elements may.
struct Threshold
{
    DataManager::MeshQualityReport::Metric metric;
    /// A value below the minimum or above the maximum, or one that is no number, fails. Infinite where not given.
    double minimum;
    double maximum;
    /// Percentage of elements that may fail; up to it, and above 0, is a warning.
    double allowedPercent;
    /// Where the threshold comes from; free text.
    QString source;
};

/// Thresholds that a mesh is checked against. As JSON:
/// {"thresholds": [{"metric": "Shape", "minimum": 0.2, "allowedPercent": 5, "source": "where it comes from"}]}
/// with a minimum, a maximum, or both; without allowedPercent no element may fail. A "name" beside the list is
/// optional.
struct Profile
{
    QString name;
    std::vector<Threshold> thresholds;

    /// The profile that is built into the programs, apps/meshquality/profiles/default.json.
    static QByteArray defaultText();
    /// Reads a JSON profile from a file, or from its text; false, with what is wrong in `problem`, when it is none.
    static bool read(const QString& path, Profile& profile, QString& problem);
    static bool parse(const QByteArray& text, Profile& profile, QString& problem);
};

} // namespace MeshQuality
