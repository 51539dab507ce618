// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/HistogramView.h>

#include <workbench/quality/BarChart.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <numeric>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

constexpr double barWidth = 0.95;
const QColor barColour(31, 119, 180);
const QColor chosenColour(255, 140, 0);

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

} // namespace

HistogramView::HistogramView(QWidget* parent) : QWidget(parent), m_chart(new BarChart(barWidth, this))
{
    setMinimumHeight(100);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    describeMark();
}

QSize HistogramView::sizeHint() const
{
    return {300, 130};
}

void HistogramView::setHistogram(const MeshQualityReport::Histogram& histogram)
{
    m_histogram = histogram;
    m_pressed = -1; // bars that are being dragged over are not those any more
    m_mark = std::min(m_mark, binCount() - 1);
    m_markStart = std::min(m_markStart, binCount() - 1);
    describeMark();
    showBars();
}

QRect HistogramView::plot() const
{
    const int line = fontMetrics().height();
    return rect().adjusted(6, line + 4, -6, -line - 4);
}

QRect HistogramView::column(int bin) const
{
    const QRect area = plot();
    const int left = area.left() + area.width() * bin / binCount();
    const int right = area.left() + area.width() * (bin + 1) / binCount();
    return {left, area.top(), right - left, area.height()};
}

int HistogramView::binAt(int x) const
{
    int bin = 0;
    while (bin + 1 < binCount() && x > column(bin).right()) {
        ++bin;
    }
    return bin;
}

bool HistogramView::isChosen(int bin) const
{
    return m_pressed >= 0 && bin >= std::min(m_pressed, m_last) && bin <= std::max(m_pressed, m_last);
}

// Few elements among many still show: two pixels.
double HistogramView::barHeight(int bin) const
{
    const int count = m_histogram.counts[static_cast<std::size_t>(bin)];
    const double least = 2.0 / std::max(plot().height(), 2);
    return count == 0 ? 0 : std::max(least, static_cast<double>(count) / highestCount());
}

void HistogramView::showBars()
{
    std::vector<BarChart::Bar> bars;
    bars.reserve(m_histogram.counts.size());
    for (int bin = 0; bin < binCount(); ++bin) {
        bars.push_back({barHeight(bin), isChosen(bin) ? chosenColour : barColour});
    }
    const auto range = [](bool isAny, int one, int other) {
        return isAny ? BarChart::Range(std::min(one, other), std::max(one, other)) : BarChart::Range(-1, -1);
    };
    m_chart->setGeometry(plot());
    m_chart->setVisible(!bars.empty());
    m_chart->setBars(bars);
    m_chart->setShaded(range(m_pressed >= 0, m_pressed, m_last));
    m_chart->setFramed(range(isMarked(), m_mark, m_markStart));
    update();
}

int HistogramView::highestCount() const
{
    return *std::max_element(m_histogram.counts.begin(), m_histogram.counts.end());
}

QString HistogramView::countText(int first, int last) const
{
    const double width = m_histogram.upper / binCount() - m_histogram.lower / binCount();
    const auto begin = m_histogram.counts.begin();
    return tr("%1 to %2: %3 elements")
        .arg(number(m_histogram.lower + width * first), number(m_histogram.lower + width * (last + 1)))
        .arg(std::accumulate(begin + first, begin + last + 1, 0));
}

QString HistogramView::tip(int bin) const
{
    return countText(bin, bin) + QLatin1Char('\n') +
           tr("A click selects them, dragging those of several bars; hold Ctrl to add.\n"
              "By keys: arrows mark a bar, with Shift several; Space or Enter selects.");
}

QString HistogramView::markText() const
{
    return isMarked() ? countText(std::min(m_mark, m_markStart), std::max(m_mark, m_markStart)) : QString();
}

bool HistogramView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && binCount() > 0) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), tip(binAt(help->x())), this);
        return true;
    }
    return QWidget::event(event);
}

void HistogramView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        describeMark();
        showBars();
    }
    QWidget::changeEvent(event);
}

void HistogramView::resizeEvent(QResizeEvent* event)
{
    showBars();
    QWidget::resizeEvent(event);
}

void HistogramView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Text));
    if (binCount() == 0) {
        painter.drawText(rect(), Qt::AlignCenter, tr("no finite value"));
        return;
    }
    paintTexts(painter);
}

void HistogramView::paintTexts(QPainter& painter) const
{
    const QString above = isMarked() ? markText() : tr("up to %1 elements").arg(highestCount());
    painter.drawText(rect().adjusted(6, 2, -6, 0), Qt::AlignTop | Qt::AlignLeft, above);
    const QRect below = rect().adjusted(6, 0, -6, -2);
    painter.drawText(below, Qt::AlignBottom | Qt::AlignLeft, number(m_histogram.lower));
    painter.drawText(below, Qt::AlignBottom | Qt::AlignRight, number(m_histogram.upper));
}

void HistogramView::keyPressEvent(QKeyEvent* event)
{
    const bool isRange = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (binCount() == 0 ? Qt::Key_unknown : event->key()) {
    case Qt::Key_Left:
        return moveMark(m_mark - 1, isRange);
    case Qt::Key_Right:
        return moveMark(m_mark + 1, isRange);
    case Qt::Key_Home:
        return moveMark(0, isRange);
    case Qt::Key_End:
        return moveMark(binCount() - 1, isRange);
    case Qt::Key_Space:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (isMarked()) {
            Q_EMIT signal_binsChosen(std::min(m_mark, m_markStart), std::max(m_mark, m_markStart),
                                     event->modifiers().testFlag(Qt::ControlModifier));
        }
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void HistogramView::moveMark(int bin, bool isRange)
{
    m_mark = std::clamp(bin, 0, binCount() - 1);
    m_markStart = isRange && m_markStart >= 0 ? m_markStart : m_mark;
    describeMark();
    showBars();
}

// Keys work from the first bar on as soon as the histogram has the focus.
void HistogramView::focusInEvent(QFocusEvent* event)
{
    m_mark = std::max(m_mark, 0);
    m_markStart = std::max(m_markStart, 0);
    describeMark();
    QWidget::focusInEvent(event);
    showBars();
}

void HistogramView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    showBars();
}

void HistogramView::describeMark()
{
    setAccessibleName(tr("Histogram"));
    setAccessibleDescription(markText());
}

void HistogramView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && binCount() > 0) {
        m_pressed = binAt(event->x());
        m_last = m_pressed;
        moveMark(m_pressed, false);
    }
}

void HistogramView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed >= 0) {
        m_last = binAt(event->x());
        moveMark(m_last, true);
    }
}

void HistogramView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_pressed >= 0) {
        const int pressed = m_pressed;
        const int released = binAt(event->x());
        m_pressed = -1;
        moveMark(released, true);
        Q_EMIT signal_binsChosen(std::min(pressed, released), std::max(pressed, released),
                                 event->modifiers().testFlag(Qt::ControlModifier));
    }
}

} // namespace Workbench
