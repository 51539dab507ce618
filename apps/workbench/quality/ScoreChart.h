// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

namespace Workbench {

class BarChart;

/// Bars from 0 to 1 for the last scores, the latest on the right.
class ScoreChart : public QWidget
{
    Q_OBJECT

public:
    explicit ScoreChart(QWidget* parent = nullptr);

    /// The last scores are those of the meshes named, the ones before are left empty.
    void setScores(const std::vector<float>& scores, const QStringList& meshNames);
    /// What is said of the score at a place; empty where there is none.
    QString tip(int place) const;

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int count() const { return static_cast<int>(m_scores.size()); }
    /// Of the bar's mesh among the names; negative without a score.
    int nameOf(int place) const { return place - (count() - m_names.size()); }
    /// Where the bars are; a line above has their numbers.
    QRect plot() const;
    void fill();

    BarChart* m_chart;
    std::vector<float> m_scores;
    QStringList m_names;
};

} // namespace Workbench
