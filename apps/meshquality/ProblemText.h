// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QString;

namespace MeshQuality {

/// What is wrong with a file, in the language of the interface, of the English text that the library gives and that
/// JSON holds. A text that tells values stays as it is.
QString translated(const QString& english);

} // namespace MeshQuality
