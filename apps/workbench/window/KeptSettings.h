// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSettings>

namespace Workbench {

/// While one is there, settings can be read back also where their file cannot be written, which is then told to the
/// user. Without, each would be lost as soon as it was set.
class KeptSettings
{
public:
    KeptSettings();

private:
    /// All objects of one file share what is not written yet.
    QSettings m_settings;
};

} // namespace Workbench
