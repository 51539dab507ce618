// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QStringList>

namespace Workbench {

/// Follows what the mesher prints: how far it is, and what it complains of.
class MesherProgress
{
public:
    /// Takes a piece of output, which may end within a line.
    void take(const QByteArray& output);

    /// From 0 to 100; never falls.
    int percent() const { return m_percent; }
    /// The lines that begin with "Error" or "Warning", without their prefixes.
    QStringList errors() const { return m_errors; }
    QStringList warnings() const { return m_warnings; }

private:
    void takeLine(const QByteArray& line);
    void rise(int percent);

    QByteArray m_rest;
    int m_percent = 0;
    QStringList m_errors;
    QStringList m_warnings;
};

} // namespace Workbench
