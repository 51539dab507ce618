// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/SkippedText.h>

#include <meshquality/ProblemText.h>

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QCoreApplication>

namespace MeshQuality {

using DataManager::MeshQualityReport;

QStringList skippedPlaces(const MeshQualityReport& report)
{
    constexpr std::size_t shown = 5;
    QStringList places;
    for (std::size_t i = 0; i < report.skippedLines().size() && i < shown; ++i) {
        const MeshQualityReport::SkippedLine& line = report.skippedLines()[i];
        places.append(QCoreApplication::translate("meshquality", "line %1: %2")
                          .arg(QString::number(line.line), translated(MeshQualityReport::skipReasonText(line.reason))));
    }
    const qint64 more = report.skippedLineCount() - places.size();
    return more == 0 ? places : places << QCoreApplication::translate("meshquality", "and %1 more").arg(more);
}

} // namespace MeshQuality
