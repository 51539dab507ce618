// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QByteArray;
class QString;

namespace BaseModule {

/// Replaces files as a whole. Not exported: `GlobalHelper` is the way in.
///
/// The new content goes to a temporary file beside the target, whose name follows from the target's, is forced to the
/// disk and renamed over the target. The temporary is locked while it is being written, so that two processes saving
/// the same file take turns, and so that one left by a killed process is known as abandoned: the lock dies with it.
namespace AtomicFile {

/// Replaces the content of `path`; false, with the old content in place, when anything fails.
bool replace(const QString& path, const QByteArray& content);

/// Removes the temporary that a killed process may have left for `path`.
void removeAbandonedTemporary(const QString& path);

} // namespace AtomicFile

} // namespace BaseModule
