// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/coordinates/CoordinateDisplay.h>

#include <QString>
#include <QStringList>

namespace Workbench {

/// The working files of a project in its working directory.
namespace ProjectFiles {

/// The geometry file that the project holds a copy of.
struct GeometrySource
{
    /// The file's name, as the user knows it; empty without one.
    QString name;
    /// The path from which the file was taken, which tells it from others of its name.
    QString origin;
};

/// What the description of a project says.
struct Description
{
    GeometrySource geometry;
    /// The defaults where the project says nothing, or something of another type.
    CoordinateDisplay coordinates;
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
