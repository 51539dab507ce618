// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/QualityModelCard.h>

namespace MeshQuality {

struct ScoredMesh;

/// Text from a model file for people: characters that would steer a terminal are replaced.
QString printable(QString text);

/// "Shape 0.01 lies outside of the range that the model was trained on, 0.2 to 1".
QString excessText(const DataManager::QualityModelCard::Excess& excess);

/// The features of a scored mesh outside of what its model was trained on; none without a score.
std::vector<DataManager::QualityModelCard::Excess> excesses(const ScoredMesh& mesh);

/// What the score of a mesh says; empty without one, when the model tells nothing, and when a mean is no finite number.
QString scoreExplanation(const ScoredMesh& mesh);

/// The model of a scored mesh, and what the score says: "NAME VERSION: SENTENCE".
QString modelSentence(const ScoredMesh& mesh);

} // namespace MeshQuality
