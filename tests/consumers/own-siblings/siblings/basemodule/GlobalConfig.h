// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class GlobalConfig
{
public:
    static bool getIsDevelop() { return false; }
};
