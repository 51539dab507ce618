// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/KeptSettings.h>

#include <basemodule/IBaseSignal.h>

#include <QCoreApplication>
#include <QDir>
#include <QTimer>

using BaseModule::IBaseSignal;

namespace Workbench {

// It is told when there is a window that shows it.
KeptSettings::KeptSettings()
{
    if (!m_settings.isWritable()) {
        const QString text =
            QCoreApplication::translate("Workbench::KeptSettings",
                                        "Layout, language, favourites and recent projects are forgotten when the "
                                        "program ends: %1 cannot be written.")
                .arg(QDir::toNativeSeparators(m_settings.fileName()));
        IBaseSignal* const signal = IBaseSignal::getInstance();
        QTimer::singleShot(0, signal, [signal, text] { Q_EMIT signal->signal_showMessageType(2, text); });
    }
}

} // namespace Workbench
