// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/KernelChoice.h>

#include <workbench/mesh/MeshManager.h>
#include <workbench/quality/MeshFigures.h>

#include <QEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace Workbench {

KernelChoice::KernelChoice(QWidget* parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("kernel"));
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            [this](int place) { MeshFigures::instance()->chooseKernel(itemData(place).toInt()); });
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListChanged, this, &KernelChoice::fill);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &KernelChoice::fill);
    connect(MeshManager::instance(), &MeshManager::signal_visibilityChanged, this, &KernelChoice::fill);
    connect(MeshFigures::instance(), &MeshFigures::signal_kernelChosen, this, &KernelChoice::fill);
    fill();
}

void KernelChoice::fill()
{
    const QSignalBlocker blocker(this);
    MeshManager* meshes = MeshManager::instance();
    const QList<int> kernels = meshes->findKernels(QString());
    clear();
    addItem(tr("The mesh that is shown (%1)").arg(meshes->getKernelName(MeshFigures::shownKernel())), 0);
    for (const int kernel : kernels) {
        addItem(meshes->getKernelName(kernel), kernel);
    }
    setCurrentIndex(std::max(0, findData(MeshFigures::instance()->chosenKernel())));
    setAccessibleName(tr("Mesh"));
    setToolTip(tr("The mesh whose figures are shown"));
    setVisible(kernels.size() > 1);
}

void KernelChoice::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        fill();
    }
    QComboBox::changeEvent(event);
}

} // namespace Workbench
