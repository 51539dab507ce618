// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QWidget>

namespace Workbench {

class BarChart;

/// Bars for the numbers of elements by value. A click chooses a bar, dragging several; holding Ctrl adds to what is
/// chosen already. By keys: arrows, Home and End move a mark, with Shift over several bars; Space or Enter chooses the
/// marked ones. What is said of the marked bars is the accessible description.
class HistogramView : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramView(QWidget* parent = nullptr);

    void setHistogram(const DataManager::MeshQualityReport::Histogram& histogram);
    const DataManager::MeshQualityReport::Histogram& histogram() const { return m_histogram; }
    /// Where the mouse chooses a bar: its column, at full height.
    QRect column(int bin) const;

    /// The bounds of the marked bars and how many elements they hold; empty without a mark.
    QString markText() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The bars from `first` to `last` were chosen.
    void signal_binsChosen(int first, int last, bool isAdded);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRect plot() const;
    int binCount() const { return static_cast<int>(m_histogram.counts.size()); }
    /// The nearest one.
    int binAt(int x) const;
    bool isChosen(int bin) const;
    double barHeight(int bin) const;
    /// Bars, what is chosen and what is marked, as they are now.
    void showBars();
    QString tip(int bin) const;
    QString countText(int first, int last) const;
    int highestCount() const;
    void paintTexts(QPainter& painter) const;

    bool isMarked() const { return m_mark >= 0 && hasFocus() && m_mark < binCount(); }
    void moveMark(int bin, bool isRange);
    void describeMark();

    BarChart* m_chart;
    DataManager::MeshQualityReport::Histogram m_histogram{};
    int m_pressed = -1;
    int m_last = -1;
    /// The marked bars lie between these two; the mark is the end that keys move.
    int m_mark = -1;
    int m_markStart = -1;
};

} // namespace Workbench
