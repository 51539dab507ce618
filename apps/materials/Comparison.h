// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <console/Message.h>
#include <materials/Material.h>

#include <QList>
#include <QString>

namespace Materials {

/// How a material of one library stands against another library.
struct Comparison
{
    enum State : int
    {
        New,     ///< no live material there has one of its names
        Same,    ///< there with the same names and properties
        Changed, ///< there with one of its names and something else different
        Refused  ///< it has a name that is reserved, or would give one to two materials
    };
    State state;
    Material source;
    Material target; ///< the material of the other library; null for new and refused ones
    /// Of a refused one: the name that another material there has, and which. Empty and null where it is reserved.
    QString takenName;
    Material holder;

    Console::Message word() const;
};

/// One comparison a live source material, in the order of `sources`. Only with the target library: sources that have a
/// name in common are not compared with one another.
QList<Comparison> compareMaterials(const QList<Material>& sources, const QList<Material>& targets);

} // namespace Materials
