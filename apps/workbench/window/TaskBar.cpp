// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/TaskBar.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace Workbench {

TaskBar::TaskBar(QWidget* parent)
    : QWidget(parent), m_label(new QLabel(this)), m_bar(new QProgressBar(this)), m_cancel(new QToolButton(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    m_bar->setRange(0, 100);
    m_bar->setFixedWidth(180);
    m_cancel->setObjectName(QStringLiteral("cancelTask"));
    const MeshManager* meshes = MeshManager::instance();
    const MesherProcess* mesher = MesherProcess::instance();
    connect(meshes, &MeshManager::signal_loadStarted, this,
            [this](const QString& path) { begin(tr("Reading %1").arg(QFileInfo(path).fileName())); });
    connect(meshes, &MeshManager::signal_loadProgress, m_bar, &QProgressBar::setValue);
    connect(meshes, &MeshManager::signal_loadFinished, this, &TaskBar::end);
    connect(mesher, &MesherProcess::signal_started, this,
            [this](const QString& path) { begin(tr("Meshing %1").arg(QFileInfo(path).fileName())); });
    connect(mesher, &MesherProcess::signal_progress, m_bar, &QProgressBar::setValue);
    connect(mesher, &MesherProcess::signal_finished, this, &TaskBar::end);
    connect(m_cancel, &QToolButton::clicked, this, &TaskBar::cancel);
    retranslate();
    end();
}

void TaskBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void TaskBar::retranslate()
{
    m_cancel->setText(tr("Cancel"));
}

void TaskBar::begin(const QString& text)
{
    m_label->setText(text);
    m_bar->setValue(0);
    show();
}

void TaskBar::end()
{
    hide();
}

void TaskBar::cancel()
{
    MesherProcess::instance()->cancel();
    MeshManager::instance()->cancelLoad();
}

} // namespace Workbench
