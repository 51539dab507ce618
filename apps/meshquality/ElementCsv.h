// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QByteArray>

/// Elements of meshes as lines of a CSV file, the same under every locale.
namespace MeshQuality {

/// The names of the columns, with the line end.
QByteArray elementHeader();

/// One element, by its place, with the line end. `file` tells which mesh it is of.
QByteArray elementLine(const QString& file, const DataManager::MeshQualityReport& report, int element);

} // namespace MeshQuality
