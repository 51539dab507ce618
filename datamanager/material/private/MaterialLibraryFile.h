// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/material/private/MaterialLibrary.h>

namespace DataManager {

/// Fills a library from its file; without a readable file it is empty. Failures are logged.
void loadMaterialLibrary(MaterialLibrary library, const QString& path);

/// Writes a library to its file, whole or not at all. Failures are logged.
void saveMaterialLibrary(const MaterialMap& materials, const MaterialLibraryKind& kind, const QString& path);

/// Removes a library's file, but never the only copy of something that could not be read. Failures are logged.
void removeMaterialLibrary(const MaterialLibraryKind& kind, const QString& path);

} // namespace DataManager
