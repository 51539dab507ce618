// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/project/RecentProjects.h>

#include <QFileInfo>
#include <QSettings>

namespace Workbench {
namespace {

QString key()
{
    return QStringLiteral("recentProjects");
}

} // namespace

RecentProjects* RecentProjects::instance()
{
    static auto* const projects = new RecentProjects;
    return projects;
}

QStringList RecentProjects::paths() const
{
    QStringList paths;
    for (const QString& path : QSettings().value(key()).toStringList()) {
        if (QFileInfo::exists(path)) {
            paths.append(path);
        }
    }
    return paths;
}

void RecentProjects::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList all = paths();
    all.removeAll(absolute);
    all.prepend(absolute);
    QSettings().setValue(key(), QStringList(all.mid(0, mostKept)));
    Q_EMIT signal_changed();
}

void RecentProjects::clear()
{
    QSettings().remove(key());
    Q_EMIT signal_changed();
}

} // namespace Workbench
