// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ScoreChart.h>

#include <workbench/quality/BarChart.h>
#include <workbench/quality/ScoreText.h>

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Workbench {
namespace {

constexpr double barWidth = 0.8;
const QColor latestColour(31, 119, 180);
const QColor earlierColour(158, 190, 214);

// A model may give more than 1; a score of 0 still shows.
double barHeight(float score, int pixels)
{
    return std::isnan(score) ? 0 : std::clamp(static_cast<double>(score), 1.0 / std::max(pixels, 1), 1.0);
}

} // namespace

ScoreChart::ScoreChart(QWidget* parent) : QWidget(parent), m_chart(new BarChart(barWidth, this))
{
    setMinimumHeight(70);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ScoreChart::sizeHint() const
{
    return {300, 80};
}

void ScoreChart::setScores(const std::vector<float>& scores, const QStringList& meshNames)
{
    m_scores = scores;
    m_names = meshNames;
    QStringList tips;
    for (int place = 0; place < count(); ++place) {
        tips << tip(place);
    }
    tips.removeAll(QString());
    setAccessibleName(tr("Last scores"));
    setAccessibleDescription(tips.join(QStringLiteral("; ")));
    fill();
}

QString ScoreChart::tip(int place) const
{
    if (place < 0 || place >= count() || nameOf(place) < 0) {
        return {};
    }
    const QString score = scoreNumber(m_scores[static_cast<std::size_t>(place)]);
    return QStringLiteral("%1: %2").arg(m_names.at(nameOf(place)), score);
}

QRect ScoreChart::plot() const
{
    return rect().adjusted(0, fontMetrics().height() + 2, 0, -2);
}

void ScoreChart::fill()
{
    std::vector<BarChart::Bar> bars;
    for (int place = 0; place < count(); ++place) {
        const float score = m_scores[static_cast<std::size_t>(place)];
        bars.push_back({nameOf(place) < 0 ? 0 : barHeight(score, plot().height()),
                        place == count() - 1 ? latestColour : earlierColour});
    }
    m_chart->setGeometry(plot());
    m_chart->setBars(bars);
    update();
}

void ScoreChart::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        fill();
    }
    QWidget::changeEvent(event);
}

void ScoreChart::resizeEvent(QResizeEvent* event)
{
    fill();
    QWidget::resizeEvent(event);
}

bool ScoreChart::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && count() > 0) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), tip(help->x() * count() / std::max(width(), 1)).toHtmlEscaped(), this);
        return true;
    }
    return QWidget::event(event);
}

void ScoreChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Text));
    for (int place = 0; place < count(); ++place) {
        const float score = m_scores[static_cast<std::size_t>(place)];
        const QString text =
            std::isnan(score) ? scoreNumber(score) : QString::number(static_cast<double>(score), 'f', 2);
        const int left = width() * place / count();
        painter.drawText(QRect(left, 0, width() * (place + 1) / count() - left, plot().top()), Qt::AlignCenter,
                         nameOf(place) < 0 ? QString() : text);
    }
}

} // namespace Workbench
