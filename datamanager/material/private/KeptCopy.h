// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QByteArray;
class QString;

namespace DataManager {

/// Copies of files that could not be read, beside the files: "<path>.unreadable", then "<path>.unreadable.1" and so on.
namespace KeptCopy {

/// Keeps `bytes`, the content of `path`, under the first free name and with the file's permissions, unless a copy
/// holds the same bytes already. False when none can be made. Never touches an existing copy, also not one that another
/// process makes at the same time.
bool keep(const QString& path, const QByteArray& bytes);

/// Removes what a killed process may have left of a copy that it was making.
void removeAbandoned(const QString& path);

} // namespace KeptCopy

} // namespace DataManager
