// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/view/View3D.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/view/CameraMotion.h>
#include <workbench/view/HighlightState.h>
#include <workbench/view/Scene.h>
#include <workbench/view/ViewCommands.h>

#include <basemodule/IBaseSignal.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamodel/SelectedDataBase.h>

#include <QDir>
#include <QRubberBand>
#include <QVBoxLayout>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkNew.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>

#include <algorithm>

using BaseModule::IBaseSignal;
using DataManager::RelativeCoordinateSystemDate;

namespace Workbench {
namespace {

constexpr long long mostSmoothed = 200000;

} // namespace

View3D::View3D(QWidget* parent)
    : QWidget(parent), m_scene(std::make_unique<Scene>()), m_highlight(new HighlightState(this)),
      m_canvas(new QVTKOpenGLNativeWidget(this)), m_band(new QRubberBand(QRubberBand::Rectangle, m_canvas))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_canvas);
    vtkNew<vtkGenericOpenGLRenderWindow> window;
    m_samples = window->GetMultiSamples();
    m_canvas->setRenderWindow(window);
    m_canvas->setFocusPolicy(Qt::StrongFocus);
    m_canvas->setMouseTracking(true);
    m_canvas->installEventFilter(this);
    setFocusProxy(m_canvas);
    m_scene->addTo(*window);
    m_canvas->interactor()->SetInteractorStyle(nullptr); // the mouse is ours
    m_scene->addMarker(m_canvas->interactor());
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &View3D::update3D);
    listenToManagers();
    listenToHub();
    listenToCommands();
    note(Kernels | Look | Highlight | Axes);
}

View3D::~View3D() = default;

void View3D::listenToManagers()
{
    const MeshManager* meshes = MeshManager::instance();
    connect(meshes, &MeshManager::signal_kernalDataListChanged, this, [this] { note(Kernels); });
    connect(meshes, &MeshManager::signal_kernalDataListDeleted, this, [this] { note(Kernels); });
    connect(meshes, &MeshManager::signal_groupDataListChanged, this, [this] { note(Highlight); });
    connect(meshes, &MeshManager::signal_groupDataListDeleted, this, [this] { note(Visibility | Highlight); });
    connect(meshes, &MeshManager::signal_visibilityChanged, this, [this] { note(Visibility | Highlight); });
    const GeometryManager* geometry = GeometryManager::instance();
    connect(geometry, &GeometryManager::signal_componentListDataChanged, this,
            [this] { note(Visibility | Highlight); });
    connect(geometry, &GeometryManager::signal_componentListRemoved, this, [this] { note(Visibility | Highlight); });
    const MeshDisplay* display = MeshDisplay::instance();
    connect(display, &MeshDisplay::signal_colouringChanged, this, [this] { note(Colours); });
    connect(display, &MeshDisplay::signal_transparencyChanged, this, [this] { note(Look); });
    connect(display, &MeshDisplay::signal_edgesChanged, this, [this] { note(Look); });
    connect(display, &MeshDisplay::signal_focusElement, this, [this](int kernelID, int elementID) {
        update3D();
        m_scene->focusElement(kernelID, elementID);
        m_canvas->renderWindow()->Render();
    });
    const RelativeCoordinateSystemDate* systems = RelativeCoordinateSystemDate::getInstance();
    connect(systems, &RelativeCoordinateSystemDate::signal_dataChanged, this, [this] { note(Axes); });
    connect(systems, &RelativeCoordinateSystemDate::signal_dataDeleted, this, [this] { note(Axes); });
}

void View3D::listenToHub()
{
    const IBaseSignal* hub = IBaseSignal::getInstance();
    connect(m_highlight, &HighlightState::signal_changed, this, [this] { note(Highlight); });
    connect(hub, &IBaseSignal::signal_updateGeomrtryActorTransparency, this, [this] { note(Look); });
    connect(hub, &IBaseSignal::signal_updateInteraction, this, [this] {
        stopDragging();
        updateCursor();
        note(Look);
    });
    connect(hub, &IBaseSignal::signal_updateWindowTitle, this, [this] { note(Axes); });
}

void View3D::listenToCommands()
{
    const ViewCommands* commands = ViewCommands::instance();
    connect(commands, &ViewCommands::signal_fit, this, [this] {
        update3D();
        m_scene->dropFocus();
        CameraMotion(m_scene->renderer()).fit();
        m_canvas->renderWindow()->Render();
    });
    connect(commands, &ViewCommands::signal_lookFrom, this, [this](ViewCommands::Direction direction) {
        update3D();
        CameraMotion(m_scene->renderer()).lookFrom(direction);
        m_canvas->renderWindow()->Render();
    });
    connect(commands, &ViewCommands::signal_saveScreenshot, this, &View3D::saveScreenshot);
}

void View3D::note(unsigned changes)
{
    m_changes |= changes;
    if (!m_timer.isActive()) {
        m_timer.start(0);
    }
}

void View3D::update3D()
{
    const unsigned changes = m_changes;
    m_changes = 0;
    m_timer.stop();
    if (changes == 0) {
        return;
    }
    if ((changes & Kernels) != 0) {
        m_scene->setKernels(MeshManager::instance()->findKernels(QString()));
    }
    if ((changes & (Kernels | Visibility)) != 0) {
        m_scene->updateVisibility();
        aimCamera();
    }
    if ((changes & (Kernels | Colours)) != 0) {
        m_scene->updateColours();
    }
    if ((changes & (Kernels | Look)) != 0) {
        m_scene->updateLook();
    }
    if ((changes & (Kernels | Highlight)) != 0) {
        m_scene->updateHighlight(*m_highlight);
    }
    if ((changes & Axes) != 0) {
        m_scene->updateCoordinateAxes();
    }
    chooseSmoothing();
    m_canvas->renderWindow()->Render();
}

void View3D::aimCamera()
{
    const QVector<double> sides = MeshManager::instance()->getBoundingBox({});
    std::optional<Box> box;
    if (sides.size() == 6) {
        std::copy(sides.begin(), sides.end(), box.emplace().begin());
    }
    CameraMotion camera(m_scene->renderer());
    if (box && !m_box) {
        camera.lookFrom(ViewCommands::Direction::Isometric);
    } else if (box && needsAim(boxChange(*m_box, *box), camera.seen(*m_box), camera.seen(*box))) {
        camera.fit();
    } else {
        m_scene->renderer().ResetCameraClippingRange(); // what is shown may be nearer or farther now
    }
    m_box = box;
}

// Several samples of each pixel take twice the time, and triangles as small as pixels look no smoother for them.
void View3D::chooseSmoothing()
{
    const int samples = m_scene->cellCount() > mostSmoothed ? 0 : m_samples;
    if (samples != m_canvas->renderWindow()->GetMultiSamples()) {
        m_canvas->renderWindow()->SetMultiSamples(samples);
    }
}

void View3D::saveScreenshot(const QString& path)
{
    update3D();
    m_canvas->renderWindow()->Render();
    if (!m_canvas->grabFramebuffer().save(path)) {
        const QString text = tr("The picture cannot be saved as %1.").arg(QDir::toNativeSeparators(path));
        Q_EMIT IBaseSignal::getInstance()->signal_showMessageType(2, text);
    }
}

} // namespace Workbench
