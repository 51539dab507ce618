// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QComboBox>

namespace Workbench {

/// Chooses the mesh whose figures are shown. Not to be seen while there is nothing to choose.
class KernelChoice : public QComboBox
{
    Q_OBJECT

public:
    explicit KernelChoice(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();
};

} // namespace Workbench
