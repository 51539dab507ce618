// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QChar>

class QString;

namespace BaseModule {

/// Texts in which some code units stand as '%' and four hexadecimal digits. Not exported.
namespace EscapedText {

/// Escapes '%', `separator` (none when null) and what does not survive a JSON file: control characters, halves of
/// surrogate pairs, noncharacters and the byte-order mark, which readers of UTF-8 drop at the start of a text.
QString escape(const QString& text, QChar separator = QChar());

/// Undoes `escape`, whatever the separator was. False, with `text` unchanged, when a '%' is not followed by four
/// hexadecimal digits.
bool unescape(const QString& escaped, QString& text);

} // namespace EscapedText

} // namespace BaseModule
