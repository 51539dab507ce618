// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Workbench {

/// Asks how large elements may become, and starts the mesher on the project's geometry.
class MeshingDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MeshingDialog(QWidget* parent = nullptr);

    void accept() override;

private:
    /// The largest edge in model units; 0 for none given, negative when what was typed is no size.
    double elementSize() const;
    void check();

    QLineEdit* m_size;
    QLabel* m_problem;
    QPushButton* m_mesh;
};

} // namespace Workbench
