// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace Workbench {

/// A project file: a ZIP archive of the project's working files, with the extension for more than four gigabytes. Both
/// calls go through their files in blocks, may run in any thread, and return what went wrong, for people; an empty text
/// on success, and any text when the progress says no.
namespace ProjectArchive {

/// Told how much is done, from 0 to 1; false gives the work up.
using Progress = std::function<bool(double done)>;

/// Writes the named files of a directory to the archive, which afterwards holds its old content or the new one, whole.
QString pack(
    const QString& directory, const QStringList& fileNames, const QString& archivePath,
    const Progress& progress = [](double) { return true; });

/// Writes the files of the archive to a directory. Nothing is written elsewhere: an archive with names of other places,
/// with more content than half the free space, or with damage is refused.
QString unpack(
    const QString& archivePath, const QString& directory, const Progress& progress = [](double) { return true; });

} // namespace ProjectArchive

} // namespace Workbench
