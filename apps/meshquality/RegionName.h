// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace MeshQuality {

/// A physical group for people: its tag, and its name where it has one.
inline QString regionName(const QString& name, int tag)
{
    return name.isEmpty() ? QString::number(tag) : QStringLiteral("%1 \"%2\"").arg(QString::number(tag), name);
}

} // namespace MeshQuality
