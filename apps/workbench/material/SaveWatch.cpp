// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/SaveWatch.h>

namespace Workbench {

namespace {

// A message handler is a plain function, so what it works on has to be global.
QStringList noted;
QtMessageHandler next = nullptr;

void note(QtMsgType type, const QMessageLogContext& context, const QString& line)
{
    noted.append(line);
    next(type, context, line);
}

} // namespace

SaveWatch::SaveWatch() : m_previous(qInstallMessageHandler(note)), m_start(noted.size())
{
    // One watch within another passes its lines on once.
    if (m_previous != note) {
        next = m_previous;
    }
}

SaveWatch::~SaveWatch()
{
    qInstallMessageHandler(m_previous);
    if (m_previous != note) {
        noted.clear();
    }
}

QStringList SaveWatch::lines() const
{
    return noted.mid(m_start);
}

} // namespace Workbench
