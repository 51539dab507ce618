// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

#include <array>

namespace MeshQuality {

/// Scores feature vectors with a quality model, through the library's predictor.
class ModelScore
{
public:
    /// The model that comes with the programs.
    static QString defaultModel();

    /// Loads a model; false when it cannot be used, and errorText() then holds the runtime's message.
    bool load(const QString& path);
    /// The score of a mesh with these features, in [0, 1] or NaN; false as above.
    bool score(std::array<float, 11> features, float& score);

    QString errorText() const { return m_errorText; }

private:
    template <class Action>
    bool attempt(Action action);

    QString m_errorText;
};

} // namespace MeshQuality
