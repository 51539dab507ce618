// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

namespace Workbench {

class ScoreHistory;

/// What the score of the mesh that was read last says, a line a sentence, in the interface language. Parts of it come
/// from the model file, which anybody may have written: show it as plain text.
QString scoreSentence(const ScoreHistory& history);

/// Why the score may say less: means outside of what the model was trained on. One line each; none without a score.
QStringList scoreWarnings(const ScoreHistory& history);

/// A score to four digits; a dash where it is no number.
QString scoreNumber(float score);

} // namespace Workbench
