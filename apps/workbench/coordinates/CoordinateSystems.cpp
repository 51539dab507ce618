// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/coordinates/CoordinateSystems.h>

#include <workbench/coordinates/CoordinateAxes.h>
#include <workbench/coordinates/CoordinateName.h>
#include <workbench/coordinates/CoordinateRecord.h>
#include <workbench/coordinates/CoordinateRegistry.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/material/private/KeptCopy.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <iterator>
#include <limits>

namespace Workbench {

using BaseModule::GlobalHelper;
using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;
using DataManager::SelectedDataManager;

namespace {

/// The registry tells of a change in this way only.
void tellChange()
{
    coordinateRegistry().setCurrentCoordinateSystemID(coordinateRegistry().getCurrentCoordinateSystemID());
}

/// Appending writes the project's file, which may hold systems that are still to be read: so it is done in another
/// directory.
void appendGlobalSystem()
{
    const QTemporaryDir elsewhere;
    const QString directory = GlobalHelper::getProjectTempIODir();
    GlobalHelper::setProjectTempIODir(elsewhere.path());
    coordinateRegistry().appendCoordinateSystem(newCoordinateRecord(0, 0, {QStringLiteral("Global")}));
    GlobalHelper::setProjectTempIODir(directory);
}

bool hasOnlyGlobalSystem()
{
    return coordinateRegistry().getRelativeCoordinateSystemDateCount() <= 1;
}

QString projectFile()
{
    return GlobalHelper::getProjectTempIODir() + QStringLiteral("/RelativeCoordinateSystemDate.json");
}

/// Empty when the file cannot be read.
QByteArray contentOf(const QString& path)
{
    QByteArray content;
    return GlobalHelper::readFile(path, content) ? content : QByteArray();
}

/// Whether somebody saved no systems, and not something that cannot be read.
bool isWithoutSystems(const QByteArray& content)
{
    const QJsonValue ids = QJsonDocument::fromJson(content).object().value(QLatin1String("m_IDList"));
    return ids.isArray() && ids.toArray().isEmpty();
}

/// What the registry writes. It tells nobody whether it could: so it writes a file that was not there, on the same
/// disk. Empty when it could not.
QByteArray registryContent()
{
    const QString directory = GlobalHelper::getProjectTempIODir();
    const QTemporaryDir elsewhere(directory + QStringLiteral("/coordinates-XXXXXX"));
    GlobalHelper::setProjectTempIODir(elsewhere.path());
    coordinateRegistry().writeConfig();
    QByteArray content = elsewhere.isValid() ? contentOf(projectFile()) : QByteArray();
    GlobalHelper::setProjectTempIODir(directory);
    return content;
}

int highestID()
{
    int highest = 0;
    for (int i = 0; i < coordinateRegistry().getRelativeCoordinateSystemDateCount(); ++i) {
        highest = std::max(highest, coordinateRegistry().getCoordinateSystemByIndex(i)->getID());
    }
    return highest;
}

int lowestUnusedID()
{
    int id = 1;
    while (coordinateRegistry().getCoordinateSystemByID(id) != nullptr) {
        ++id;
    }
    return id;
}

// Others may give the identifier to another system later.
void deselect(const QList<int>& ids)
{
    SelectedDataManager* const selection = SelectedDataManager::getInstance();
    QList<QPair<int, int>> gone;
    for (const QPair<int, int>& item : selection->getSelectedDataBySelectedModel(BaseModule::CoordinateAxes)) {
        if (ids.contains(item.first)) {
            gone.append(item);
        }
    }
    if (!gone.isEmpty()) {
        selection->removeSelectedTargetList(BaseModule::CoordinateAxes, gone);
    }
}

// What is gone cannot be picked.
void checkHighLight(bool& isAllowed, int selectModel, int id)
{
    if (selectModel == BaseModule::CoordinateAxes) {
        isAllowed = isAllowed && coordinateRegistry().getCoordinateSystemByID(id) != nullptr;
    }
}

} // namespace

CoordinateSystems* CoordinateSystems::instance()
{
    static CoordinateSystems* const systems = new CoordinateSystems;
    return systems;
}

CoordinateSystems::CoordinateSystems() : m_axes(new CoordinateAxes(this))
{
    if (coordinateRegistry().getRelativeCoordinateSystemDateCount() == 0) {
        appendGlobalSystem();
    }
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataDeleted, this, &deselect);
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataDeleted, this,
            [this] { m_highestID = std::max(m_highestID, highestID()); });
    // After the axes, which hear of it first.
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataDeleted, this,
            &CoordinateSystems::noteDisplay);
    connect(&coordinateRegistry(), &RelativeCoordinateSystemDate::signal_dataChanged, this,
            &CoordinateSystems::noteDisplay);
    connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_checkHighLight, this,
            &checkHighLight);
    tellChange();
}

CoordinateTree CoordinateSystems::tree()
{
    QVector<QPair<int, int>> systems;
    for (int i = 0; i < coordinateRegistry().getRelativeCoordinateSystemDateCount(); ++i) {
        const RelativeCoordinateSystem& system = *coordinateRegistry().getCoordinateSystemByIndex(i);
        systems.append({system.getID(), system.getBasicCoordinateSystemID()});
    }
    return makeCoordinateTree(systems);
}

CoordinateDefinition CoordinateSystems::definition(int id)
{
    const RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(id);
    return system == nullptr ? CoordinateDefinition() : coordinateDefinition(*system);
}

QVector<Placement> CoordinateSystems::placements(const CoordinateTree& tree)
{
    QVector<Placement> placements(tree.nodes.size());
    for (const int position : tree.downwards()) {
        const CoordinateDefinition definition =
            coordinateDefinition(*coordinateRegistry().getCoordinateSystemByIndex(position));
        const Placement local = placed(definition.offset, definition.angles);
        const int parent = tree.nodes.at(position).parent;
        placements[position] = parent < 0 ? local : carried(placements.at(parent), local);
    }
    return placements;
}

Placement CoordinateSystems::placement(int id)
{
    const CoordinateTree systems = tree();
    const auto node = std::find_if(systems.nodes.begin(), systems.nodes.end(),
                                   [id](const CoordinateTree::Node& other) { return other.id == id; });
    return node == systems.nodes.end() ? Placement()
                                       : placements(systems).at(static_cast<int>(node - systems.nodes.begin()));
}

// A file may hold the largest number that there is.
int CoordinateSystems::nextID() const
{
    const int highest = std::max(m_highestID, highestID());
    return highest < std::numeric_limits<int>::max() ? highest + 1 : lowestUnusedID();
}

int CoordinateSystems::create(int basicID, const CoordinateDefinition& definition)
{
    if (coordinateRegistry().getCoordinateSystemByID(basicID) == nullptr || !keepDamagedFile()) {
        return 0;
    }
    const int id = nextID();
    m_highestID = std::max(m_highestID, id);
    coordinateRegistry().appendCoordinateSystem(newCoordinateRecord(id, basicID, definition));
    tellChange();
    return id;
}

bool CoordinateSystems::keepDamagedFile() const
{
    return !m_isDamaged || !hasOnlyGlobalSystem() || !QFileInfo::exists(projectFile()) ||
           DataManager::KeptCopy::keep(projectFile(), m_unread);
}

void CoordinateSystems::change(int id, const CoordinateDefinition& definition)
{
    RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(id);
    if (system == nullptr || id == 0) {
        return;
    }
    system->setName(definition.name);
    // The systems below hold copies of this level.
    for (int i = 0; i < coordinateRegistry().getRelativeCoordinateSystemDateCount(); ++i) {
        changeCoordinateLevel(*coordinateRegistry().getCoordinateSystemByIndex(i), id, definition);
    }
    coordinateRegistry().writeConfig();
    tellChange();
}

void CoordinateSystems::change(int id, int basicID, const CoordinateDefinition& definition)
{
    RelativeCoordinateSystem* const system = coordinateRegistry().getCoordinateSystemByID(id);
    if (system == nullptr || id == 0 || !basicRefusal(id, basicID).isEmpty()) {
        return;
    }
    system->setName(definition.name);
    system->setBasicCoordinateSystemID(basicID);
    rebaseCoordinateRecord(*system, definition);
    // Their chains begin with that of this system. Basic systems come first.
    for (const int below : tree().below(id)) {
        RelativeCoordinateSystem& record = *coordinateRegistry().getCoordinateSystemByID(below);
        rebaseCoordinateRecord(record, coordinateDefinition(record));
    }
    coordinateRegistry().writeConfig();
    tellChange();
}

QString CoordinateSystems::basicRefusal(int id, int basicID)
{
    const RelativeCoordinateSystem* const basic = coordinateRegistry().getCoordinateSystemByID(basicID);
    if (basic == nullptr) {
        return tr("There is no coordinate system %1.").arg(basicID);
    }
    if (basicID == id) {
        return tr("A coordinate system cannot be relative to itself.");
    }
    const QVector<int> below = tree().below(id);
    if (below.contains(basicID)) {
        return tr("%1 is itself relative to this system, directly or through others: that would be a loop.")
            .arg(coordinateTitle(*basic));
    }
    const bool isOdd = id < 1 || std::any_of(below.begin(), below.end(), [](int other) { return other < 1; });
    return isOdd ? tr("The library builds a system anew only where its identifier is above 0.") : QString();
}

void CoordinateSystems::remove(const QList<int>& ids)
{
    const CoordinateTree systems = tree();
    QList<int> all;
    for (const int id : ids) {
        if (id != 0 && coordinateRegistry().getCoordinateSystemByID(id) != nullptr) {
            all += QList<int>{id} + systems.below(id).toList();
        }
    }
    if (all.isEmpty()) {
        return;
    }
    // What two of the given ones share stands once.
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    coordinateRegistry().removeCoordinateSystemByID(all);
    const int current = coordinateRegistry().getCurrentCoordinateSystemID();
    coordinateRegistry().setCurrentCoordinateSystemID(all.contains(current) ? 0 : current);
}

void CoordinateSystems::setCurrent(int id)
{
    coordinateRegistry().setSwitchCoordinateSystemSign(true);
    coordinateRegistry().setCurrentCoordinateSystemID(id);
    coordinateRegistry().setSwitchCoordinateSystemSign(false);
}

bool CoordinateSystems::areAxesShown() const
{
    return m_axes->areShown();
}

void CoordinateSystems::showAxes(bool isShown)
{
    m_axes->show(isShown);
    tellChange();
}

bool CoordinateSystems::areAxesShown(int id) const
{
    return m_axes->areShown(id);
}

void CoordinateSystems::showAxes(int id, bool isShown)
{
    m_axes->show(id, isShown);
    tellChange();
}

CoordinateDisplay CoordinateSystems::display() const
{
    return {coordinateRegistry().getCurrentCoordinateSystemID(), m_axes->areShown(), m_axes->hidden()};
}

void CoordinateSystems::setDisplay(const CoordinateDisplay& display)
{
    const auto isThere = [](int id) { return coordinateRegistry().getCoordinateSystemByID(id) != nullptr; };
    QList<int> hidden;
    std::copy_if(display.hiddenIDs.begin(), display.hiddenIDs.end(), std::back_inserter(hidden), isThere);
    m_axes->hide(hidden);
    m_axes->show(display.areAxesShown);
    coordinateRegistry().setCurrentCoordinateSystemID(isThere(display.currentID) ? display.currentID : 0);
}

void CoordinateSystems::noteDisplay()
{
    const CoordinateDisplay now = display();
    if (!(now == m_display)) {
        m_display = now;
        Q_EMIT signal_displayChanged();
    }
}

bool CoordinateSystems::loadProject()
{
    coordinateRegistry().resetData();
    m_highestID = 0;
    coordinateRegistry().readConfig();
    m_unread = hasOnlyGlobalSystem() ? contentOf(projectFile()) : QByteArray();
    m_isDamaged = !m_unread.isEmpty() && !isWithoutSystems(m_unread);
    tellChange();
    return !m_isDamaged;
}

bool CoordinateSystems::saveProject()
{
    const QByteArray stored = contentOf(projectFile());
    // What could not be read stays as long as there is nothing that takes its place.
    if (hasOnlyGlobalSystem() && stored == m_unread && (!stored.isEmpty() || !QFileInfo::exists(projectFile()))) {
        return true;
    }
    const QByteArray content = registryContent();
    return !content.isEmpty() &&
           (stored == content ||
            GlobalHelper::writeFile(projectFile(), content, QIODevice::WriteOnly | QIODevice::Truncate));
}

void CoordinateSystems::clearProject()
{
    m_axes->hide({});
    m_axes->show(true);
    coordinateRegistry().resetData();
    m_highestID = 0;
    m_unread.clear();
    m_isDamaged = false;
}

} // namespace Workbench
