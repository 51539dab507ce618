// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <meshquality/ResultFile.h>

namespace MeshQuality {

struct ReportOptions;
struct ScoredMesh;

/// Writes one web page about all meshes of a run: scores, features and their spread, histograms, worst elements and
/// regions. The page needs nothing but itself.
class HtmlReport
{
public:
    /// No file name in the options stands for no page; everything then succeeds.
    explicit HtmlReport(const ReportOptions& options);

    /// Of the worst elements, ten by Shape unless the options say otherwise.
    void write(const ScoredMesh& mesh);
    /// False, after a message on standard error, when not all has reached the file.
    bool commit();

private:
    const ReportOptions& m_options;
    ResultFile m_file;
};

} // namespace MeshQuality
