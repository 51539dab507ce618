// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

/// A project file: a ZIP archive of the project's working files. Both calls return what went wrong, for people; an
/// empty text on success.
namespace ProjectArchive {

/// Writes the named files of a directory to the archive, which afterwards holds its old content or the new one, whole.
QString pack(const QString& directory, const QStringList& fileNames, const QString& archivePath);

/// Writes the files of the archive to a directory. Nothing is written elsewhere: an archive with names of other places,
/// with more content than half the free space, or with damage is refused.
QString unpack(const QString& archivePath, const QString& directory);

} // namespace ProjectArchive

} // namespace Workbench
