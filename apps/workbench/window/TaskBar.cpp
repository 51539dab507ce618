// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/window/TaskBar.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <algorithm>

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
    m_label->setObjectName(QStringLiteral("taskText"));
    m_cancel->setObjectName(QStringLiteral("cancelTask"));
    connect(m_cancel, &QToolButton::clicked, this, &TaskBar::cancel);
    listen();
    retranslate();
    showLatest();
}

void TaskBar::listen()
{
    const auto fileName = [](const QString& path) { return QFileInfo(path).fileName(); };
    const MeshManager* meshes = MeshManager::instance();
    connect(meshes, &MeshManager::signal_loadStarted, this,
            [=](const QString& path) { begin(Kind::Reading, tr("Reading %1").arg(fileName(path))); });
    connect(meshes, &MeshManager::signal_loadProgress, this, [this](int value) { setPercent(Kind::Reading, value); });
    connect(meshes, &MeshManager::signal_loadFinished, this, [this] { end(Kind::Reading); });
    const MesherProcess* mesher = MesherProcess::instance();
    connect(mesher, &MesherProcess::signal_started, this,
            [=](const QString& path) { begin(Kind::Meshing, tr("Meshing %1").arg(fileName(path))); });
    connect(mesher, &MesherProcess::signal_progress, this, [this](int value) { setPercent(Kind::Meshing, value); });
    connect(mesher, &MesherProcess::signal_finished, this, [this] { end(Kind::Meshing); });
    const Project* project = Project::instance();
    connect(project, &Project::signal_transferStarted, this, [=](const QString& path, bool isSaving) {
        begin(Kind::Transfer, (isSaving ? tr("Saving %1") : tr("Opening %1")).arg(fileName(path)));
    });
    connect(project, &Project::signal_transferProgress, this, [this](int value) { setPercent(Kind::Transfer, value); });
    connect(project, &Project::signal_transferFinished, this, [this] { end(Kind::Transfer); });
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

void TaskBar::begin(Kind kind, const QString& text)
{
    end(kind);
    m_tasks.append({kind, text, 0});
    showLatest();
}

void TaskBar::setPercent(Kind kind, int percent)
{
    for (Task& task : m_tasks) {
        task.percent = task.kind == kind ? percent : task.percent;
    }
    showLatest();
}

void TaskBar::end(Kind kind)
{
    const auto isEnded = [kind](const Task& task) { return task.kind == kind; };
    m_tasks.erase(std::remove_if(m_tasks.begin(), m_tasks.end(), isEnded), m_tasks.end());
    showLatest();
}

void TaskBar::showLatest()
{
    setVisible(!m_tasks.isEmpty());
    if (!m_tasks.isEmpty()) {
        m_label->setText(m_tasks.last().text);
        m_bar->setValue(m_tasks.last().percent);
    }
}

void TaskBar::cancel()
{
    switch (m_tasks.isEmpty() ? Kind::Reading : m_tasks.last().kind) {
    case Kind::Meshing:
        return MesherProcess::instance()->cancel();
    case Kind::Reading:
        return MeshManager::instance()->cancelLoad();
    case Kind::Transfer:
        return Project::instance()->cancelTransfer();
    }
}

} // namespace Workbench
