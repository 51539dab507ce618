// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QCoreApplication>

class QWidget;

namespace Workbench {

/// Asks before a coordinate system is removed, and shows which systems go with it.
class RemovalQuestion
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::RemovalQuestion)

public:
    /// Shows the question, which destroys itself, and removes when it is answered with yes. Does nothing for the global
    /// system and unknown ones.
    static void openFor(int id, QWidget* parent);
};

} // namespace Workbench
