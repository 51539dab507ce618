// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace Materials {

struct LibraryName;

/// What stands in a library file before the manager makes records of it.
struct LibraryText
{
    QJsonObject root;
    QString fault; ///< why the file cannot be read as a library, with its place; empty when it can
};

/// `isEnciphered` tells how the file is stored.
LibraryText readLibraryText(const QString& path, bool isEnciphered);

/// The same for JSON at hand; `path` is for the fault.
LibraryText parseLibraryText(const QString& path, const QByteArray& json);

} // namespace Materials
