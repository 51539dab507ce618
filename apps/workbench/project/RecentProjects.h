// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>
#include <QStringList>

namespace Workbench {

/// The project files that were opened or saved last, the latest first, kept in the user's settings.
class RecentProjects : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostKept = 8;

    /// The list of the process, created by the first call and never destroyed.
    static RecentProjects* instance();

    /// Files that are gone are left out.
    QStringList paths() const;
    void add(const QString& path);
    void clear();

Q_SIGNALS:
    void signal_changed();

private:
    RecentProjects() = default;
    ~RecentProjects() override = default;
};

} // namespace Workbench
