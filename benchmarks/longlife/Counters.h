// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <consumers/application/GeometryManager.h>
#include <consumers/application/MeshManager.h>

/// The counters of the abstract geometry manager, with nothing behind its operations.
class GeometryCounters : public GeometryManager
{
public:
    int addSet(const QString&, const QList<QPair<int, int>>&) override { return generateSetID(); }
    int addComponent(const QString&, const QString&) override { return generateComponentID(); }
};

/// Those of the abstract mesh manager, likewise.
class MeshCounters : public MeshManager
{
public:
    int addSet(const QString&, const QList<QPair<int, int>>&) override { return generateSetID(); }
    int addKernel(const QString&, const QString&) override { return generateKernelID(); }
};
