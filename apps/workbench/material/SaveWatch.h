// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace Workbench {

/// Notes what is logged while it lives, and passes it on. The material libraries tell of a failed save only in the log,
/// and log nothing else while they save.
class SaveWatch
{
public:
    SaveWatch();
    ~SaveWatch();
    SaveWatch(const SaveWatch&) = delete;
    SaveWatch& operator=(const SaveWatch&) = delete;

    /// What was logged since the construction.
    QStringList lines() const;

private:
    QtMessageHandler m_previous;
    int m_start;
};

} // namespace Workbench
