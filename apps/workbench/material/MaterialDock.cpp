// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/material/MaterialDock.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/material/LibraryPane.h>
#include <workbench/material/MaterialLibraries.h>
#include <workbench/material/MaterialName.h>

#include <datamanager/selection/SelectedDataManager.h>

#include <basemodule/IBaseSignal.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

namespace Workbench {

using BaseModule::IBaseSignal;

namespace {

QList<int> selectedVolumes()
{
    QList<int> volumes;
    const auto items =
        DataManager::SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(BaseModule::GeometryComponent);
    for (const QPair<int, int>& item : items) {
        volumes.append(item.first);
    }
    return volumes;
}

/// "block (Copper), lid (Free Space)"
QString volumeText(const QList<int>& volumes)
{
    QStringList texts;
    for (const int volume : volumes) {
        const int id = GeometryManager::instance()->getMaterialID(volume);
        texts.append(
            QStringLiteral("%1 (%2)").arg(GeometryManager::instance()->getComponentName(volume), fillingTitle(id)));
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

MaterialDock::MaterialDock(QWidget* parent)
    : QWidget(parent), m_software(new LibraryPane(BaseModule::SoftwareLib, this)),
      m_project(new LibraryPane(BaseModule::ProjectLib, this)), m_selection(new QLabel(this)),
      m_assign(new QPushButton(this)), m_unassign(new QPushButton(this))
{
    m_selection->setObjectName(QStringLiteral("selectedVolumes"));
    m_selection->setTextFormat(Qt::PlainText);
    m_selection->setWordWrap(true);
    m_assign->setObjectName(QStringLiteral("assign"));
    m_unassign->setObjectName(QStringLiteral("unassign"));
    layOut();
    retranslate();
    connect(m_assign, &QPushButton::clicked, this, &MaterialDock::assign);
    connect(m_unassign, &QPushButton::clicked, this, &MaterialDock::unassign);
    connect(m_project, &LibraryPane::selectionChanged, this, &MaterialDock::updateAssignment);
    connect(IBaseSignal::getInstance(), &IBaseSignal::signal_refreshActionOnSelectDataChanged, this,
            &MaterialDock::updateAssignment);
    connect(GeometryManager::instance(), &GeometryManager::signal_componentListDataChanged, this,
            &MaterialDock::updateAssignment);
    connect(MaterialLibraries::instance(), &MaterialLibraries::changed, this, &MaterialDock::updateAssignment);
}

void MaterialDock::layOut()
{
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(m_software);
    splitter->addWidget(m_project);
    splitter->setChildrenCollapsible(false);
    auto* const assignment = new QHBoxLayout;
    assignment->addWidget(m_selection, 1);
    assignment->addWidget(m_assign);
    assignment->addWidget(m_unassign);
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(splitter, 1);
    whole->addLayout(assignment);
}

void MaterialDock::retranslate()
{
    setWindowTitle(tr("Materials"));
    m_assign->setText(tr("Assign to the volumes"));
    m_unassign->setText(tr("Make free space"));
    m_software->retranslate();
    m_project->retranslate();
    updateAssignment();
}

void MaterialDock::showEvent(QShowEvent* event)
{
    read();
    QWidget::showEvent(event);
}

void MaterialDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::ActivationChange && isVisible() && isActiveWindow()) {
        read();
    }
    QWidget::changeEvent(event);
}

void MaterialDock::read()
{
    m_software->read();
    m_project->read();
}

void MaterialDock::updateAssignment()
{
    const QList<int> volumes = selectedVolumes();
    m_selection->setText(volumes.isEmpty() ? tr("Select volumes to give them a material.")
                                           : tr("Selected: %1").arg(volumeText(volumes)));
    m_assign->setEnabled(!volumes.isEmpty() && m_project->selectedIDs().size() == 1);
    m_unassign->setEnabled(!volumes.isEmpty());
}

void MaterialDock::assign()
{
    GeometryManager::instance()->setMaterialID(selectedVolumes(), m_project->selectedIDs().first());
}

void MaterialDock::unassign()
{
    GeometryManager::instance()->setMaterialID(selectedVolumes(), 0);
}

} // namespace Workbench
