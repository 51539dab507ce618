// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/MaterialLibraryKind.h>

#include <QObject>

namespace DataManager {

const MaterialLibraryKind softwareLibraryKind = {
    true,
    false,
    false,
    "Read software material library file fail, please check path: %1",
    "Deserialize software material data array fail!",
    "Serialize software material data array fail!",
    "Write software material library file fail, please check path: %1.",
    "Remove software material library file fail, please check path: %1.",
    QT_TRANSLATE_NOOP("QObject", "Delete software material failed! material ID is not exists! id:%1."),
    QT_TRANSLATE_NOOP("QObject", "Import software material fail! materail id : %1 is not exist!"),
};

const MaterialLibraryKind projectLibraryKind = {
    false,
    true,
    true,
    "Read project material library file fail, please check path: %1",
    "Deserialize project material data array fail !",
    "Serialize project material data array fail!",
    "Write project material library file fail, please check path: %1.",
    "Remove project material library file fail, please check path: %1.",
    QT_TRANSLATE_NOOP("QObject", "Delete project material failed! material ID is not exists! id:%1"),
    QT_TRANSLATE_NOOP("QObject", "Import project material fail! materail id : %1 is not exist!"),
};

} // namespace DataManager
