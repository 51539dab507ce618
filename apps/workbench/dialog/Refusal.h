// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QLabel>

namespace Workbench {

/// Where a dialog says why it does not take what was given.
class Refusal : public QLabel
{
    Q_OBJECT

public:
    explicit Refusal(QWidget* parent);

    /// Shows the reason, and gives the field that it is about the focus.
    void tell(const QString& reason, QWidget* field);
};

} // namespace Workbench
