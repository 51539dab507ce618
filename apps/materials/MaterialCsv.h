// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <materials/Library.h>

/// Materials as comma-separated values: a head line, then one line a property; a material without properties has one
/// line with property 0. Numbers have as many digits as bring the same value back.
namespace Materials {

/// `fault` says which property cannot be written: one that has not nine components. Empty on success.
QString writeMaterialCsv(const QList<Material>& materials, QString& fault);

/// Lines of one identifier that follow one another are one material. `fault` says, with file and line, why there are
/// none; empty on success.
QList<Material> readMaterialCsv(const QString& path, const QString& text, QString& fault);

} // namespace Materials
