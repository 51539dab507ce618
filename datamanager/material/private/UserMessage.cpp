// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/material/private/UserMessage.h>

#include <basemodule/IBaseSignal.h>

#include <QObject>

namespace DataManager {

void showError(const char* text, int number)
{
    constexpr int errorType = 2;
    Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(errorType, QObject::tr(text).arg(number));
}

} // namespace DataManager
