// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/QualityModelCard.h>

#include <QString>

#include <array>

namespace MeshQuality {

/// Scores feature vectors with a quality model, through the library's predictor, and knows what the model says about
/// itself.
class ModelScore
{
public:
    /// The model that comes with the programs.
    static QString defaultModel();

    /// Loads a model; false when it cannot be used, and errorText() then says why. A model whose metadata name other
    /// features than ours is not used.
    bool load(const QString& path);
    /// The score of a mesh with these features, in [0, 1] or NaN; false as above.
    bool score(std::array<float, 11> features, float& score);

    const DataManager::QualityModelCard& card() const { return m_card; }
    QString errorText() const { return m_errorText; }

private:
    template <class Action>
    bool attempt(Action action);

    DataManager::QualityModelCard m_card;
    QString m_errorText;
};

} // namespace MeshQuality
