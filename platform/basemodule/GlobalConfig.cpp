// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/GlobalConfig.h>

namespace {
bool developmentConfiguration = false;
}

bool GlobalConfig::getIsDevelop()
{
    return developmentConfiguration;
}

void GlobalConfig::setIsDevelop(bool isDevelop)
{
    developmentConfiguration = isDevelop;
}
