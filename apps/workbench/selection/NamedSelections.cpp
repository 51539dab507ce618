// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <workbench/selection/NamedSelections.h>

#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshManager.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/IBaseSignal.h>
#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QCoreApplication>

using DataManager::SelectedDataManager;

namespace Workbench {
namespace {

using Pairs = QList<QPair<int, int>>;

QString say(const char* text)
{
    return QCoreApplication::translate("Workbench::NamedSelections", text);
}

Pairs selected(BaseModule::SelectModel model)
{
    return SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(model);
}

Pairs selectedGeometry()
{
    return selected(BaseModule::GeometryComponent) + selected(BaseModule::GeometryFace);
}

bool isTaken(const QString& name)
{
    bool isFound = !GeometryManager::instance()->findSets(name).isEmpty();
    for (int kernelID : MeshManager::instance()->findKernels(QString())) {
        isFound = isFound || !MeshManager::instance()->findGroups(kernelID, name).isEmpty();
    }
    return isFound;
}

bool told(bool isDone, const QString& name)
{
    if (!isDone) {
        const QString text =
            name.isEmpty() ? say(QT_TRANSLATE_NOOP("Workbench::NamedSelections", "A name must not be empty."))
                           : say(QT_TRANSLATE_NOOP("Workbench::NamedSelections", "The name “%1” is taken.")).arg(name);
        Q_EMIT BaseModule::IBaseSignal::getInstance()->signal_showMessageType(2, text);
    }
    return isDone;
}

// Elements of several meshes would make a group in each.
bool addGroups(const QString& name)
{
    QMap<int, QList<int>> elements;
    for (const QPair<int, int>& pair : selected(BaseModule::MeshElement)) {
        elements[pair.first].append(pair.second);
    }
    bool isAdded = !elements.isEmpty();
    for (auto it = elements.cbegin(); it != elements.cend(); ++it) {
        isAdded = MeshManager::instance()->addGroup(it.key(), name, *it) > 0 && isAdded;
    }
    return isAdded;
}

} // namespace

bool NamedSelections::canName()
{
    const SelectedDataManager* selection = SelectedDataManager::getInstance();
    const int model = selection->getSelectModel();
    return selection->getDataCount() > 0 && (model == BaseModule::GeometryComponent ||
                                             model == BaseModule::GeometryFace || model == BaseModule::MeshElement);
}

QString NamedSelections::proposedName()
{
    const QString form = selectedGeometry().isEmpty() ? say(QT_TRANSLATE_NOOP("Workbench::NamedSelections", "group %1"))
                                                      : say(QT_TRANSLATE_NOOP("Workbench::NamedSelections", "set %1"));
    int number = 1;
    while (isTaken(form.arg(number))) {
        ++number;
    }
    return form.arg(number);
}

bool NamedSelections::create(const QString& name)
{
    const Pairs geometry = selectedGeometry();
    return told(geometry.isEmpty() ? addGroups(name) : GeometryManager::instance()->addSet(name, geometry) > 0, name);
}

void NamedSelections::selectSet(int setID)
{
    SelectionUndo::Selection selection;
    for (const QPair<int, int>& member : GeometryManager::instance()->getSetMembers(setID)) {
        selection[member.second < 0 ? BaseModule::GeometryComponent : BaseModule::GeometryFace].append(member);
    }
    SelectionUndo::instance()->select(selection);
}

bool NamedSelections::renameSet(int setID, const QString& name)
{
    return told(GeometryManager::instance()->renameSet(setID, name), name);
}

bool NamedSelections::renameGroup(int kernelID, int groupID, const QString& name)
{
    return told(MeshManager::instance()->renameGroup(kernelID, groupID, name), name);
}

bool NamedSelections::renameVolume(int componentID, const QString& name)
{
    return told(GeometryManager::instance()->renameComponent(componentID, name), name);
}

} // namespace Workbench
