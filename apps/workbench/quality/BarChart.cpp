// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/BarChart.h>

#include <QEvent>

#include <vtkAxis.h>
#include <vtkBlockItem.h>
#include <vtkBrush.h>
#include <vtkChartXY.h>
#include <vtkContextActor.h>
#include <vtkContextScene.h>
#include <vtkDoubleArray.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkLookupTable.h>
#include <vtkPen.h>
#include <vtkPlotBar.h>
#include <vtkRenderer.h>
#include <vtkTable.h>
#include <vtkTextProperty.h>

#include <algorithm>

namespace Workbench {
namespace {

const QColor shadeColour(255, 240, 220);

// Takes no room beside the bars; of its marks only the lines across are drawn.
void bareAxis(vtkAxis& axis, double lower, double upper)
{
    axis.SetBehavior(vtkAxis::FIXED);
    axis.SetRange(lower, upper);
    axis.SetTitleVisible(false);
    axis.SetTitle("");
    axis.SetLabelsVisible(false);
    axis.SetTicksVisible(false);
    axis.SetAxisVisible(false);
    axis.SetGridVisible(false);
    axis.SetMargins(0, 0);
}

// At 0, a half and 1.
void drawLines(vtkAxis& axis)
{
    vtkNew<vtkDoubleArray> heights;
    for (const double height : {0.0, 0.5, 1.0}) {
        heights->InsertNextValue(height);
    }
    axis.SetCustomTickPositions(heights);
    axis.SetGridVisible(true);
}

template <class Part>
void setColour(Part& part, const QColor& colour)
{
    part.SetColor(static_cast<unsigned char>(colour.red()), static_cast<unsigned char>(colour.green()),
                  static_cast<unsigned char>(colour.blue()), static_cast<unsigned char>(colour.alpha()));
}

void setUpBlock(vtkBlockItem& block)
{
    block.SetAutoComputeDimensions(false);
    block.SetVisible(false);
    block.GetMouseOverBrush()->SetOpacityF(0);
}

// The bars' middles, heights and places in the table of colours. Behind the last stands one more, out of sight: the
// distance of two tells VTK how wide a bar is.
vtkSmartPointer<vtkTable> tableOf(const std::vector<BarChart::Bar>& bars)
{
    auto table = vtkSmartPointer<vtkTable>::New();
    for (const char* name : {"middle", "height", "colour"}) {
        vtkNew<vtkDoubleArray> column;
        column->SetName(name);
        table->AddColumn(column);
    }
    table->SetNumberOfRows(static_cast<vtkIdType>(bars.size()) + 1);
    for (std::size_t i = 0; i <= bars.size(); ++i) {
        const auto row = static_cast<vtkIdType>(i);
        table->SetValue(row, 0, static_cast<double>(i) + 0.5);
        table->SetValue(row, 1, i < bars.size() ? std::clamp(bars[i].height, 0.0, 1.0) : 0.0);
        table->SetValue(row, 2, static_cast<double>(i));
    }
    return table;
}

vtkSmartPointer<vtkLookupTable> coloursOf(const std::vector<BarChart::Bar>& bars)
{
    auto colours = vtkSmartPointer<vtkLookupTable>::New();
    const auto count = static_cast<vtkIdType>(bars.size());
    colours->SetNumberOfTableValues(count);
    colours->SetTableRange(-0.5, static_cast<double>(count) - 0.5);
    for (vtkIdType i = 0; i < count; ++i) {
        const QColor& colour = bars[static_cast<std::size_t>(i)].colour;
        colours->SetTableValue(i, colour.redF(), colour.greenF(), colour.blueF());
    }
    return colours;
}

} // namespace

BarChart::BarChart(double barWidth, QWidget* parent) : QVTKOpenGLNativeWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    vtkNew<vtkGenericOpenGLRenderWindow> window;
    window->SetMultiSamples(0);
    window->AddRenderer(m_renderer);
    setRenderWindow(window);
    m_chart->SetHiddenAxisBorder(0);
    m_chart->SetShowLegend(false);
    m_chart->SetBarWidthFraction(static_cast<float>(barWidth));
    m_chart->GetBackgroundBrush()->SetOpacityF(0);
    m_plot = vtkPlotBar::SafeDownCast(m_chart->AddPlot(vtkChart::BAR));
    m_plot->GetPen()->SetLineType(vtkPen::NO_PEN);
    for (vtkBlockItem* block : {m_shade.Get(), m_frame.Get()}) {
        setUpBlock(*block);
    }
    m_shade->GetPen()->SetLineType(vtkPen::NO_PEN);
    setColour(*m_shade->GetBrush(), shadeColour);
    m_frame->GetBrush()->SetOpacityF(0);
    m_frame->GetPen()->SetWidth(2);
    vtkNew<vtkContextActor> actor;
    for (vtkAbstractContextItem* item : std::initializer_list<vtkAbstractContextItem*>{m_shade, m_chart, m_frame}) {
        actor->GetScene()->AddItem(item);
    }
    actor->GetScene()->SetRenderer(m_renderer);
    m_renderer->AddActor(actor);
}

BarChart::~BarChart() = default;

void BarChart::setBars(const std::vector<Bar>& bars)
{
    m_bars = bars;
    note();
}

void BarChart::setShaded(const Range& places)
{
    m_shaded = places;
    note();
}

void BarChart::setFramed(const Range& places)
{
    m_framed = places;
    note();
}

QSize BarChart::pixels() const
{
    return size() * effectiveDevicePixelRatio();
}

// Drawn when it is seen.
void BarChart::note()
{
    m_isStale = true;
    update();
}

void BarChart::fill()
{
    const QColor base = palette().color(QPalette::Base);
    m_renderer->SetBackground(base.redF(), base.greenF(), base.blueF());
    vtkAxis& heights = *m_chart->GetAxis(vtkAxis::LEFT);
    bareAxis(*m_chart->GetAxis(vtkAxis::BOTTOM), 0, std::max<double>(1, static_cast<double>(m_bars.size())));
    const double margin = 1.5 / std::max(pixels().height(), 1); // the lines lie within the chart
    bareAxis(heights, -margin, 1 + margin);
    drawLines(heights);
    setColour(*heights.GetGridPen(), palette().color(QPalette::Mid));
    m_plot->SetVisible(!m_bars.empty());
    if (!m_bars.empty()) {
        m_plot->SetInputData(tableOf(m_bars), 0, 1);
        m_plot->SetLookupTable(coloursOf(m_bars));
        m_plot->SelectColorArray(2);
        m_plot->ScalarVisibilityOn();
    }
    place(*m_shade, m_shaded);
    place(*m_frame, m_framed);
    setColour(*m_frame->GetPen(), palette().color(QPalette::Highlight));
    m_chart->RecalculateBounds();
}

void BarChart::place(vtkBlockItem& block, const Range& places) const
{
    const auto count = static_cast<int>(m_bars.size());
    block.SetVisible(places.first >= 0 && places.second < count);
    if (block.GetVisible()) {
        const int left = pixels().width() * places.first / count;
        const int right = pixels().width() * (places.second + 1) / count;
        block.SetDimensions(static_cast<float>(left), 0.F, static_cast<float>(right - left),
                            static_cast<float>(pixels().height()));
    }
}

void BarChart::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        note();
    }
    QVTKOpenGLNativeWidget::changeEvent(event);
}

// Also when a pixel of the window becomes more of the screen.
void BarChart::resizeGL(int width, int height)
{
    note();
    QVTKOpenGLNativeWidget::resizeGL(width, height);
}

void BarChart::paintGL()
{
    if (m_isStale) {
        m_isStale = false;
        fill();
        renderWindow()->Render();
    }
    QVTKOpenGLNativeWidget::paintGL();
}

} // namespace Workbench
