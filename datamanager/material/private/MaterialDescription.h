// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QString;

namespace DataModel {
class MaterialData;
}

namespace DataManager {

/// What the application shows beside geometry that uses a material; null stands for the default material.
QString describeMaterial(const DataModel::MaterialData* material);

} // namespace DataManager
