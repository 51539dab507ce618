// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <basemodule/MaterialLibType.h>

#include <QCoreApplication>
#include <QList>

class QWidget;

namespace Workbench {

/// Asks before materials are deleted, and shows which volumes use them.
class DeleteQuestion
{
    Q_DECLARE_TR_FUNCTIONS(Workbench::DeleteQuestion)

public:
    /// Shows the question, which destroys itself, and deletes when it is answered with yes. Does nothing without
    /// materials.
    static void openFor(BaseModule::MaterialLibType type, const QList<int>& ids, QWidget* parent);
};

} // namespace Workbench
