// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>

/// Numbers as text, the same under every locale.
namespace MeshQuality {

/// The shortest text that reads back as the same number; "nan", "inf" and "-inf" where it is none.
QByteArray shortestText(float value);
QByteArray shortestText(double value);

/// Six significant digits.
QByteArray sixDigits(double value);

} // namespace MeshQuality
