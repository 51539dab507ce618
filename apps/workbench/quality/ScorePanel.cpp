// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/ScorePanel.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/quality/ScoreChart.h>
#include <workbench/quality/ScoreHistory.h>
#include <workbench/quality/ScoreText.h>

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace Workbench {
namespace {

QLabel* addLabel(QVBoxLayout* layout, const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
    return label;
}

} // namespace

ScorePanel::ScorePanel(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_sentence = addLabel(layout, QStringLiteral("score"));
    m_warnings = addLabel(layout, QStringLiteral("scoreWarnings"));
    m_warnings->setStyleSheet(QStringLiteral("color: #a04000"));
    m_chart = new ScoreChart;
    layout->addWidget(m_chart);
    connect(ScoreHistory::instance(), &ScoreHistory::signal_changed, this, &ScorePanel::fill);
    // Which mesh was scored is said when there are several.
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListChanged, this, &ScorePanel::fill);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &ScorePanel::fill);
    fill();
}

void ScorePanel::fill()
{
    const ScoreHistory& history = *ScoreHistory::instance();
    m_sentence->setText(scoreSentence(history));
    m_warnings->setText(scoreWarnings(history).join(QLatin1Char('\n')));
    m_warnings->setVisible(!m_warnings->text().isEmpty());
    m_chart->setScores(history.scores(), history.meshNames());
}

void ScorePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        fill();
    }
    QWidget::changeEvent(event);
}

} // namespace Workbench
