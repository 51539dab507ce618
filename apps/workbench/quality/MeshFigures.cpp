// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/quality/MeshFigures.h>

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/quality/CheckProfile.h>

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace Workbench {

MeshFigures* MeshFigures::instance()
{
    static auto* const figures = new MeshFigures;
    return figures;
}

MeshFigures::MeshFigures()
{
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListChanged, this, &MeshFigures::update);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &MeshFigures::dropChoice);
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListDeleted, this, &MeshFigures::update);
    connect(MeshManager::instance(), &MeshManager::signal_visibilityChanged, this, &MeshFigures::update);
    connect(CheckProfile::instance(), &CheckProfile::signal_changed, this, &MeshFigures::update);
    connect(MeshDisplay::instance(), &MeshDisplay::signal_colouringChanged, this, &MeshFigures::update);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &MeshFigures::stopThread);
    update();
}

void MeshFigures::setWorstCount(int count)
{
    m_worstCount = std::clamp(count, 1, mostWorst);
    update();
}

int MeshFigures::shownKernel()
{
    MeshManager* meshes = MeshManager::instance();
    const QList<int> kernels = meshes->findKernels(QString());
    const auto shown = std::find_if(kernels.crbegin(), kernels.crend(),
                                    [meshes](int kernel) { return meshes->isKernelShown(kernel); });
    return shown != kernels.crend() ? *shown : kernels.isEmpty() ? 0 : kernels.last();
}

int MeshFigures::kernelID() const
{
    const bool isThere = MeshManager::instance()->findKernels(QString()).contains(m_chosenKernel);
    return isThere ? m_chosenKernel : shownKernel();
}

void MeshFigures::chooseKernel(int kernelID)
{
    if (m_chosenKernel != kernelID) {
        m_chosenKernel = kernelID;
        Q_EMIT signal_kernelChosen();
        update();
    }
}

void MeshFigures::dropChoice()
{
    if (!MeshManager::instance()->findKernels(QString()).contains(m_chosenKernel)) {
        chooseKernel(0);
    }
}

FiguresRequest MeshFigures::wanted() const
{
    const int kernel = kernelID();
    return {kernel, MeshManager::instance()->mesh(kernel), MeshDisplay::instance()->metric(), m_worstCount,
            CheckProfile::instance()->profile()};
}

void MeshFigures::update()
{
    const FiguresRequest request = wanted();
    if (m_figures.request.mesh && request.mesh != m_figures.request.mesh) {
        m_figures = QualityFigures(); // the mesh is gone, and with it the elements that figures name
        Q_EMIT signal_changed();
    }
    if (request.mesh && !isWorking() && !(request == m_figures.request)) {
        start(request);
    }
}

void MeshFigures::start(const FiguresRequest& request)
{
    m_thread = QThread::create([this, request, known = m_figures] {
        const QualityFigures figures = measureFigures(request, known);
        QMetaObject::invokeMethod(
            this, [this, figures] { take(figures); }, Qt::QueuedConnection);
    });
    m_thread->start(QThread::LowPriority);
}

// What is wanted may have changed meanwhile.
void MeshFigures::take(const QualityFigures& figures)
{
    stopThread();
    if (figures.request.mesh == wanted().mesh) {
        m_figures = figures;
        Q_EMIT signal_changed();
    }
    update();
}

void MeshFigures::stopThread()
{
    if (m_thread != nullptr) {
        m_thread->wait();
        delete m_thread;
        m_thread = nullptr;
    }
}

} // namespace Workbench
