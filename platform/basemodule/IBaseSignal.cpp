// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <basemodule/IBaseSignal.h>

namespace BaseModule {

IBaseSignal* IBaseSignal::getInstance()
{
    static IBaseSignal* const instance = new IBaseSignal;
    return instance;
}

} // namespace BaseModule
