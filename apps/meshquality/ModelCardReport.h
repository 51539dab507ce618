// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

namespace DataManager {
class QualityModelCard;
}

namespace MeshQuality {

class JsonWriter;

/// What is known of a model, for people.
QString modelCardText(const QString& file, const DataManager::QualityModelCard& card);

/// The same as one JSON object, with the metadata as they are.
void writeJson(const QString& file, const DataManager::QualityModelCard& card, JsonWriter& json);

} // namespace MeshQuality
