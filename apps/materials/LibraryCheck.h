// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <console/Message.h>

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace Materials {

/// Something in a library file that the manager passes over, changes or stumbles over.
struct Fault
{
    QString place; ///< a path from the root, such as "materialList[3].property2.components"
    Console::Message what;
};

/// Every fault of a library, in the order of the file. `root` holds the list "materialList".
QVector<Fault> checkLibrary(const QJsonObject& root);

} // namespace Materials
