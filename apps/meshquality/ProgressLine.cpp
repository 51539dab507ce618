// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/ProgressLine.h>

#include <cstdio>

#include <unistd.h>

namespace MeshQuality {

namespace {

constexpr qint64 smallBytes = 16 << 20;

} // namespace

ProgressLine::ProgressLine(const QString& subject) : m_subject(subject), m_isTerminal(isatty(STDERR_FILENO) == 1) {}

ProgressLine::~ProgressLine()
{
    if (m_percent >= 0) {
        std::fputs("\r\033[K", stderr);
    }
}

void ProgressLine::show(qint64 done, qint64 total)
{
    const int percent = total > 0 ? static_cast<int>(100 * done / total) : 0;
    if (m_isTerminal && total > smallBytes && percent != m_percent) {
        m_percent = percent;
        std::fprintf(stderr, "\r\033[K%s: %d %%", m_subject.toUtf8().constData(), percent);
    }
}

} // namespace MeshQuality
