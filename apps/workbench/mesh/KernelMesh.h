// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <workbench/mesh/BoundaryFaces.h>
#include <workbench/mesh/ElementNumbers.h>
#include <workbench/mesh/FacePatches.h>

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QSharedPointer>
#include <QString>

#include <array>
#include <functional>
#include <map>
#include <vector>

namespace Workbench {

/// A mesh as the workbench holds it: measured, with its skin. It does not change once it is read, so threads share it.
struct KernelMesh
{
    DataManager::MeshQualityReport report;
    /// Elements are known by these numbers, nodes by their place, counted from 1.
    ElementNumbers elementNumbers;
    std::vector<BoundaryFace> faces;
    /// For each element and each of its sides the element behind it, by place; -1 where there is none.
    std::vector<std::array<int, 4>> neighbours;
    std::vector<FacePatch> patches;
    /// How many elements have that physical tag.
    std::map<int, int> elementCounts;
    /// xmin, xmax, ymin, ymax, zmin, zmax.
    std::array<double, 6> box{};
};

/// The outcome of reading a mesh.
struct KernelReading
{
    /// Null when there is no mesh.
    QSharedPointer<const KernelMesh> mesh;
    bool isCancelled = false;
    /// Why there is none, for people, in English; empty when it was cancelled.
    QString problem;
};

/// Told how much is done, from 0 to 1; false cancels.
using KernelProgress = std::function<bool(double done)>;

/// Reads an MSH 2 ASCII file. Uses nothing that is shared, so it may run in any thread.
KernelReading readKernelMesh(const QString& path, const KernelProgress& progress);

} // namespace Workbench
