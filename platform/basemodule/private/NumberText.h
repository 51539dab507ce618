// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QString;
class QStringRef;

namespace BaseModule {

/// Numbers as texts that read back to the same bits, under every locale. Not exported.
namespace NumberText {

void append(QString& text, int value);

/// The shortest decimal form; "Infinity", "-Infinity", "NaN", and "NaN:" with the bits of an unusual one.
void append(QString& text, double value);

/// False, with `value` unchanged, when the whole of `text` is not one decimal integer in the range of int.
bool toInt(const QStringRef& text, int& value);

/// Likewise for a double; decimal forms beyond the range of double are refused.
bool toDouble(const QStringRef& text, double& value);

} // namespace NumberText

} // namespace BaseModule
