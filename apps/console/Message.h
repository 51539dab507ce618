// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringList>

namespace Console {

/// A text for people that also goes to programs, to whom it is told in English in every language.
struct Message
{
    QString english;
    QString translated;
};

/// The message of a source text that is marked by QT_TRANSLATE_NOOP with the same context. The values stand for %1, %2
/// and %3 in both languages.
Message makeMessage(const char* context, const char* source, const QStringList& values = {});

} // namespace Console
