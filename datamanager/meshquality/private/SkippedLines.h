// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <algorithm>
#include <iterator>

namespace DataManager {

/// The first of the lines that a scan passes over, and how many there are. A broken file may have as many as it has
/// lines, so that only those which anybody looks at are kept.
class SkippedLines
{
public:
    using Line = MeshQualityReport::SkippedLine;
    using Reason = MeshQualityReport::SkipReason;

    /// The lines of one reason, or of several that the scan itself meets, come in file order.
    void add(qint64 line, Reason reason)
    {
        ++m_counts[static_cast<std::size_t>(reason)];
        std::vector<Line>& lines = reason == Reason::MissingNode ? m_afterScan : m_duringScan;
        if (lines.size() < MeshQualityReport::skippedLinesKept) {
            lines.push_back({line, reason});
        }
    }

    /// How many lines by reason.
    const std::array<qint64, MeshQualityReport::skipReasonCount>& counts() const { return m_counts; }

    /// The first lines of all, in file order: they are among the first of each kind.
    std::vector<Line> first() const
    {
        std::vector<Line> merged;
        merged.reserve(m_duringScan.size() + m_afterScan.size());
        std::merge(m_duringScan.begin(), m_duringScan.end(), m_afterScan.begin(), m_afterScan.end(),
                   std::back_inserter(merged), [](const Line& a, const Line& b) { return a.line < b.line; });
        merged.resize(std::min<std::size_t>(merged.size(), MeshQualityReport::skippedLinesKept));
        return merged;
    }

private:
    std::array<qint64, MeshQualityReport::skipReasonCount> m_counts{};
    std::vector<Line> m_duringScan;
    // Whether a node is missing is known only at the end.
    std::vector<Line> m_afterScan;
};

} // namespace DataManager
