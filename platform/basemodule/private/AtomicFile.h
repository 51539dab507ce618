// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QByteArray;
class QString;

namespace BaseModule {

/// Replaces files as a whole, on Unix systems by a `FileReplacement`. Not exported: `GlobalHelper` is the way in.
namespace AtomicFile {

/// Replaces the content of `path`; false, with the old content in place, when anything fails.
bool replace(const QString& path, const QByteArray& content);

/// Removes the temporary that a killed process may have left for `path`.
void removeAbandonedTemporary(const QString& path);

} // namespace AtomicFile

} // namespace BaseModule
