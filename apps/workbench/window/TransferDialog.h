// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace Workbench {

/// Stands before the window while a project is opened, or saved before it is left, and lets the user give that up. What
/// is done at once shows nothing.
class TransferDialog : public QDialog
{
    Q_OBJECT

public:
    /// Returns when nothing is being opened or saved; whether the latest has succeeded. `text` says what is waited for.
    static bool wait(QWidget* parent, const QString& text);

    void reject() override;

private:
    TransferDialog(QWidget* parent, const QString& text);

    QProgressBar* m_bar;
};

} // namespace Workbench
