// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateAxes.h>

#include <workbench/coordinates/CoordinateRegistry.h>
#include <workbench/coordinates/CoordinateSystems.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>

#include <basemodule/IBaseSignal.h>
#include <basewidget/FixedPixelSizeAxesActor.h>

#include <QPointer>

#include <vtkMatrix4x4.h>
#include <vtkNew.h>

#include <algorithm>

namespace Workbench {

using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;

namespace {

/// The X axis carries the name. The fonts of the view have Latin letters only.
QByteArray axisLabel(const RelativeCoordinateSystem& system)
{
    const QString name = system.getName();
    const bool isLatin = std::all_of(name.begin(), name.end(), [](QChar letter) { return letter.unicode() < 0x250; });
    return (QStringLiteral("X ") + (isLatin ? name : QStringLiteral("#%1").arg(system.getID()))).toUtf8();
}

void setElements(vtkMatrix4x4& matrix, const Placement& placement)
{
    for (int row = 0; row < 3; ++row) {
        const Vector3& elements = placement.rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < 3; ++column) {
            matrix.SetElement(row, column, elements[static_cast<std::size_t>(column)]);
        }
        matrix.SetElement(row, 3, placement.origin[static_cast<std::size_t>(row)]);
    }
}

} // namespace

struct CoordinateAxes::Axes
{
    QPointer<RelativeCoordinateSystem> system;
    vtkNew<BaseWidget::FixedPixelSizeAxesActor> actor;
    vtkNew<vtkMatrix4x4> matrix;
};

CoordinateAxes::CoordinateAxes(QObject* parent) : QObject(parent)
{
    for (QTimer* const timer : {&m_destruction, &m_search}) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    connect(&m_destruction, &QTimer::timeout, this, &CoordinateAxes::destroyRetired);
    connect(&m_search, &QTimer::timeout, this, &CoordinateAxes::tellOfForeign);
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataChanged, this, &CoordinateAxes::place);
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataDeleted, this, &CoordinateAxes::retire);
    // All that is heard of systems that somebody else appended.
    connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateWindowTitle, &m_search,
            QOverload<>::of(&QTimer::start));
}

CoordinateAxes::~CoordinateAxes() = default;

void CoordinateAxes::place()
{
    const QVector<Placement> placements = CoordinateSystems::placements(CoordinateSystems::tree());
    for (int position = 0; position < placements.size(); ++position) {
        placeOne(*coordinateRegistry().getCoordinateSystemByIndex(position), placements.at(position));
    }
    updateVisibility();
}

void CoordinateAxes::placeOne(RelativeCoordinateSystem& system, const Placement& placement)
{
    std::unique_ptr<Axes>& axes = m_axes[&system];
    if (!axes) {
        axes = std::make_unique<Axes>();
    }
    axes->system = &system;
    setElements(*axes->matrix, placement);
    axes->actor->SetUserMatrix(axes->matrix);
    axes->actor->SetLabels(axisLabel(system).constData(), "Y", "Z");
    auto quaternion = quaternionOf(placement);
    system.setActor(axes->actor);
    system.setActorMatrix(axes->matrix);
    system.setActorQuaternion(quaternion.data());
}

void CoordinateAxes::updateVisibility()
{
    for (const auto& entry : m_axes) {
        if (!entry.second->system.isNull()) {
            entry.second->actor->SetVisibility(m_areShown && areShown(entry.second->system->getID()));
        }
    }
}

bool CoordinateAxes::areShown() const
{
    return m_areShown;
}

bool CoordinateAxes::areShown(int id) const
{
    return !m_hidden.contains(id);
}

void CoordinateAxes::show(bool isShown)
{
    m_areShown = isShown;
    updateVisibility();
}

void CoordinateAxes::show(int id, bool isShown)
{
    if (isShown) {
        m_hidden.remove(id);
    } else {
        m_hidden.insert(id);
    }
    updateVisibility();
}

QList<int> CoordinateAxes::hidden() const
{
    QList<int> ids = m_hidden.values();
    std::sort(ids.begin(), ids.end());
    return ids;
}

void CoordinateAxes::hide(const QList<int>& ids)
{
    m_hidden = QSet<int>(ids.begin(), ids.end());
    updateVisibility();
}

// The systems keep their actors until the call that takes them out has ended, so that views can take those away.
void CoordinateAxes::retire(const QList<int>& ids)
{
    for (auto entry = m_axes.begin(); entry != m_axes.end();) {
        const RelativeCoordinateSystem* const system = entry->second->system;
        if (system != nullptr && ids.contains(system->getID())) {
            m_hidden.remove(system->getID());
            m_retired.push_back(std::move(entry->second));
            entry = m_axes.erase(entry);
        } else {
            ++entry;
        }
    }
    m_destruction.start();
}

void CoordinateAxes::destroyRetired()
{
    for (const std::unique_ptr<Axes>& retired : m_retired) {
        RelativeCoordinateSystem* const system = retired->system;
        if (system != nullptr && coordinateRegistry().getIndexByCoordinateSystem(system) < 0) {
            m_axes.erase(system);
            delete system;
        } else if (system != nullptr && m_axes.count(system) == 0) {
            // Told of, and then not taken out.
            system->setActor(nullptr);
            system->setActorMatrix(nullptr);
            m_search.start();
        }
    }
    m_retired.clear();
}

void CoordinateAxes::tellOfForeign()
{
    for (int i = 0; i < coordinateRegistry().getRelativeCoordinateSystemDateCount(); ++i) {
        if (coordinateRegistry().getCoordinateSystemByIndex(i)->getActor() == nullptr) {
            coordinateRegistry().setCurrentCoordinateSystemID(coordinateRegistry().getCurrentCoordinateSystemID());
            return;
        }
    }
}

} // namespace Workbench
