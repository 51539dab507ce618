// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/HistogramView.h>

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using DataManager::MeshQualityReport;

namespace Workbench {
namespace {

const QColor barColour(31, 119, 180);
const QColor chosenColour(255, 140, 0);

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

} // namespace

HistogramView::HistogramView(QWidget* parent) : QWidget(parent)
{
    setMinimumHeight(100);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    setCursor(Qt::PointingHandCursor);
}

QSize HistogramView::sizeHint() const
{
    return {300, 130};
}

void HistogramView::setHistogram(const MeshQualityReport::Histogram& histogram)
{
    m_histogram = histogram;
    m_pressed = -1; // bars that are being dragged over are not those any more
    update();
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

// Few elements among many still show.
QRect HistogramView::bar(int bin) const
{
    const int count = m_histogram.counts[static_cast<std::size_t>(bin)];
    const int most = *std::max_element(m_histogram.counts.begin(), m_histogram.counts.end());
    const QRect area = column(bin);
    const double share = static_cast<double>(count) / std::max(most, 1);
    const int height = count == 0 ? 0 : std::max(2, static_cast<int>(share * area.height()));
    return {area.left(), area.bottom() + 1 - height, std::max(1, area.width() - 1), height};
}

QString HistogramView::tip(int bin) const
{
    const double width = m_histogram.upper / binCount() - m_histogram.lower / binCount();
    return tr("%1 to %2: %3 elements\nA click selects them, dragging those of several bars; hold Ctrl to add.")
        .arg(number(m_histogram.lower + width * bin), number(m_histogram.lower + width * (bin + 1)))
        .arg(m_histogram.counts[static_cast<std::size_t>(bin)]);
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

void HistogramView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = plot();
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Text));
    if (binCount() == 0) {
        painter.drawText(rect(), Qt::AlignCenter, tr("no finite value"));
        return;
    }
    for (int bin = 0; bin < binCount(); ++bin) {
        painter.fillRect(isChosen(bin) ? column(bin) : QRect(), QColor(255, 240, 220));
        painter.fillRect(bar(bin), isChosen(bin) ? chosenColour : barColour);
    }
    painter.drawLine(area.bottomLeft() + QPoint(0, 1), area.bottomRight() + QPoint(0, 1));
    const int most = *std::max_element(m_histogram.counts.begin(), m_histogram.counts.end());
    painter.drawText(rect().adjusted(6, 2, -6, 0), Qt::AlignTop | Qt::AlignLeft, tr("up to %1 elements").arg(most));
    const QRect below = rect().adjusted(6, 0, -6, -2);
    painter.drawText(below, Qt::AlignBottom | Qt::AlignLeft, number(m_histogram.lower));
    painter.drawText(below, Qt::AlignBottom | Qt::AlignRight, number(m_histogram.upper));
}

void HistogramView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && binCount() > 0) {
        m_pressed = binAt(event->x());
        m_last = m_pressed;
        update();
    }
}

void HistogramView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed >= 0) {
        m_last = binAt(event->x());
        update();
    }
}

void HistogramView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_pressed >= 0) {
        const int pressed = m_pressed;
        const int released = binAt(event->x());
        m_pressed = -1;
        update();
        Q_EMIT signal_binsChosen(std::min(pressed, released), std::max(pressed, released),
                                 event->modifiers().testFlag(Qt::ControlModifier));
    }
}

} // namespace Workbench
