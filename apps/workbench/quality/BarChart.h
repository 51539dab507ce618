// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QColor>
#include <QPair>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkNew.h>

#include <vector>

class vtkBlockItem;
class vtkChartXY;
class vtkPlotBar;
class vtkRenderer;

namespace Workbench {

/// Bars side by side over the whole width, drawn by VTK. It takes no input: the mouse and keys are those of the widget
/// that it lies in, which says in words what the bars show.
class BarChart : public QVTKOpenGLNativeWidget
{
    Q_OBJECT

public:
    struct Bar
    {
        double height; ///< a share of the whole height, 0 to 1
        QColor colour;
    };
    /// From the first bar to the last; a negative one is none.
    using Range = QPair<int, int>;

    /// `barWidth` is the share of a bar's place that it fills.
    explicit BarChart(double barWidth, QWidget* parent = nullptr);
    ~BarChart() override;

    void setBars(const std::vector<Bar>& bars);
    /// The places that are shaded over the whole height, behind the bars.
    void setShaded(const Range& places);
    /// The places that have a frame around them.
    void setFramed(const Range& places);

protected:
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void changeEvent(QEvent* event) override;

private:
    /// Of the screen, where a pixel of the window may be several.
    QSize pixels() const;
    void note();
    void fill();
    void place(vtkBlockItem& block, const Range& places) const;

    vtkNew<vtkRenderer> m_renderer;
    vtkNew<vtkBlockItem> m_shade;
    vtkNew<vtkChartXY> m_chart;
    vtkNew<vtkBlockItem> m_frame;
    vtkPlotBar* m_plot;
    std::vector<Bar> m_bars;
    Range m_shaded = {-1, -1};
    Range m_framed = {-1, -1};
    bool m_isStale = true;
};

} // namespace Workbench
