// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QStringList>

#include <optional>

namespace MeshQuality {

/// What `meshquality report` was asked for.
struct ReportOptions
{
    QString model;
    /// Empty: no JSON. "-": standard output, in place of the table.
    QString jsonFile;
    /// Empty: none.
    QString csvFile;
    QString vtuFile;
    QString htmlFile;
    /// One JSON object a line on standard output, as each mesh ends, in place of the table.
    bool jsonLines = false;
    /// How many of the worst elements are listed, and by which metric.
    int worstCount = 0;
    DataManager::MeshQualityReport::Metric worstBy = DataManager::MeshQualityReport::Metric::Shape;
    std::optional<DataManager::MeshQualityReport::Metric> histogram;
    bool byRegion = false;
    QStringList meshes;

    /// How many of the worst elements go into files, which list some even when nobody asks.
    int worstListed() const { return worstCount > 0 ? worstCount : 10; }
};

/// Reads the arguments of `meshquality report`, which begin with the command's name. False, after a message on standard
/// error, when they are wrong.
bool readReportOptions(const QStringList& arguments, ReportOptions& options);

} // namespace MeshQuality
