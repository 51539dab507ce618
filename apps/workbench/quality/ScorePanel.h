// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>

class QLabel;

namespace Workbench {

class ScoreChart;

/// The score of the mesh that was read last, what it says, what makes it doubtful, and the scores before it.
class ScorePanel : public QWidget
{
    Q_OBJECT

public:
    explicit ScorePanel(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    QLabel* m_sentence;
    ScoreChart* m_chart;
    QLabel* m_warnings;
};

} // namespace Workbench
