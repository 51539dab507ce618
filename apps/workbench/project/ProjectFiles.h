// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

/// The working files of a project in its working directory.
namespace ProjectFiles {

/// What the description of a project says.
struct Description
{
    /// Name of the geometry file, as the user knows it; empty without one.
    QString geometryName;
    /// The path from which the file was taken, which tells it from others of its name.
    QString geometryOrigin;
};

QString materials(const QString& directory);
QString coordinateSystems(const QString& directory);
QString geometry(const QString& directory);
QString mesh(const QString& directory);
/// The copy of the geometry file, which keeps the suffix of its name.
QString geometrySource(const QString& directory, const QString& geometryName);

/// The names of all files, to be packed.
QStringList all(const QString& directory);

bool writeDescription(const QString& directory, const Description& description);
/// What is wrong with the files of a project that was unpacked, for people; empty when it can be opened.
QString check(const QString& directory, Description& description);
/// Whether there are materials that cannot be read, because they were enciphered with another key or are damaged.
bool areMaterialsUnreadable(const QString& directory);

} // namespace ProjectFiles

} // namespace Workbench
