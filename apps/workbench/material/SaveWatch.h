// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>

namespace Workbench {

/// Notes what its thread logs while it lives, and passes it on. The material libraries tell of a failed save only in
/// the log, and log nothing else while they save; other threads may log meanwhile. Watches end in the thread that made
/// them, the last one first.
class SaveWatch
{
public:
    SaveWatch();
    ~SaveWatch();
    SaveWatch(const SaveWatch&) = delete;
    SaveWatch& operator=(const SaveWatch&) = delete;

    /// What the thread logged since the construction.
    QStringList lines() const;

private:
    int m_start;
};

} // namespace Workbench
