// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

/// One line on standard error, written over and over, and taken away in the end. Nothing is shown where standard error
/// is no terminal, or the work is small.
class ProgressLine
{
public:
    explicit ProgressLine(const QString& subject);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(qint64 done, qint64 total);

private:
    QString m_subject;
    bool m_isTerminal;
    int m_percent = -1;
};

} // namespace MeshQuality
