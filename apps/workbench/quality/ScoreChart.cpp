// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ScoreChart.h>

#include <workbench/quality/ScoreText.h>

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Workbench {
namespace {

const QColor latestColour(31, 119, 180);
const QColor earlierColour(158, 190, 214);

// A model may give more than 1.
int barHeight(float score, int whole)
{
    return std::isnan(score) ? 0
                             : std::max(1, static_cast<int>(std::clamp(score, 0.0F, 1.0F) * static_cast<float>(whole)));
}

} // namespace

ScoreChart::ScoreChart(QWidget* parent) : QWidget(parent)
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
    update();
}

QString ScoreChart::tip(int place) const
{
    if (place < 0 || place >= count() || nameOf(place) < 0) {
        return {};
    }
    const QString score = scoreNumber(m_scores[static_cast<std::size_t>(place)]);
    return QStringLiteral("%1: %2").arg(m_names.at(nameOf(place)), score);
}

QRect ScoreChart::column(int place) const
{
    const int line = fontMetrics().height();
    const int left = width() * place / count();
    return {left, line + 2, width() * (place + 1) / count() - left, height() - line - 4};
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
    for (int place = 0; place < count(); ++place) {
        if (nameOf(place) >= 0) {
            paintBar(painter, place);
        }
    }
    painter.setPen(palette().color(QPalette::Mid));
    for (int i = 0; count() > 0 && i <= 2; ++i) { // at 1, a half and 0
        const int y = column(0).top() + column(0).height() * i / 2;
        painter.drawLine(0, y, width(), y);
    }
}

void ScoreChart::paintBar(QPainter& painter, int place)
{
    const float score = m_scores[static_cast<std::size_t>(place)];
    const QRect area = column(place);
    const int height = barHeight(score, area.height());
    painter.fillRect(area.left() + 3, area.bottom() + 1 - height, area.width() - 6, height,
                     place == count() - 1 ? latestColour : earlierColour);
    painter.setPen(palette().color(QPalette::Text));
    const QString text = std::isnan(score) ? scoreNumber(score) : QString::number(static_cast<double>(score), 'f', 2);
    painter.drawText(QRect(area.left(), 0, area.width(), area.top()), Qt::AlignCenter, text);
}

} // namespace Workbench
