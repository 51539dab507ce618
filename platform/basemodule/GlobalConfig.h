// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/basemodule_export.h>

/// Application-wide switches.
class BASEMODULE_EXPORT GlobalConfig
{
public:
    /// True in the development configuration: project files are then stored as plain text. False by default.
    static bool getIsDevelop();
    /// Chooses the development configuration; takes effect at the next read or write.
    static void setIsDevelop(bool isDevelop);
};

namespace BaseModule {
using ::GlobalConfig;
}
