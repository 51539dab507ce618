// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QStringList>
#include <QVector>

/// Mesh files for the tests.
namespace MeshFiles {

/// Writes `content` in place of what is at `path`.
void write(const QString& path, const QByteArray& content);

/// A file with these lines between its markers, counts included.
QByteArray mesh(const QList<QByteArray>& nodeLines, const QList<QByteArray>& elementLines);

/// One tetrahedron of these corners.
QByteArray oneTetrahedron(const QVector<QVector<double>>& corners);

/// P0 at the origin, the others at unit distance along the axes.
QVector<QVector<double>> rightCorner();
/// Regular, of this edge length.
QVector<QVector<double>> regular(double edge = 1.0);
/// With its corners P1 and P2 changed round.
QVector<QVector<double>> inverted(QVector<QVector<double>> corners);

/// The meshes that come with the project; never empty.
QStringList samples();

/// Files that try to break a reader, by what is wrong with them. The same on every run.
QList<QPair<QByteArray, QByteArray>> hostile();

} // namespace MeshFiles
