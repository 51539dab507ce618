// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Deed.h"

#include "Counters.h"

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/frame/CaseData.h>
#include <datamanager/frame/GeometryData.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/material/ExampleLibraryManager.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <basemodule/GlobalHelper.h>
#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialData.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>

#include <memory>

using namespace DataManager;

namespace {

QString& projectsDirectory()
{
    static QString directory;
    return directory;
}

QList<QPair<int, int>> pairs(Dice& dice)
{
    QList<QPair<int, int>> list;
    for (int i = dice.roll(0, 8); i > 0; --i) {
        list.append({dice.roll(0, 200), dice.roll(0, 3)});
    }
    return list;
}

void select(Dice& dice)
{
    SelectedDataManager& selection = *SelectedDataManager::getInstance();
    const auto model = BaseModule::SelectModel(dice.roll(0, 10));
    switch (dice.roll(0, 9)) {
    case 0:
        return selection.setSelectModelInMainWindow(model);
    case 1:
        return selection.setSelectModelInDialog(model);
    case 2:
        return selection.setSwitchSelectModelEnable(dice.roll(0, 1) == 1);
    case 3:
        return selection.addSelectedTargetList(model, pairs(dice));
    case 4:
        return selection.removeSelectedTargetListByProjectTree(model, pairs(dice));
    case 5:
        return dice.roll(0, 20) == 0 ? selection.clearAllSelectedTarget() : selection.deleteSelectedData(model);
    default:
        return selection.clickViewObject(dice.roll(0, 200), dice.roll(0, 3));
    }
}

void interact(Dice& dice)
{
    InteractionManager& interaction = *InteractionManager::getInstance();
    const int keys[] = {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_A};
    QKeyEvent press(QEvent::KeyPress, keys[dice.roll(0, 3)], Qt::NoModifier);
    dice.roll(0, 1) == 0 ? interaction.onKeyPress(&press) : interaction.onKeyRelease(&press);
    if (dice.roll(0, 9) == 0) {
        interaction.setInteractionMode(BaseModule::InteractionMode(dice.roll(0, 4)));
    }
}

QSharedPointer<DataModel::MaterialPropertyData> property(Dice& dice)
{
    const auto record = QSharedPointer<DataModel::MaterialPropertyData>::create();
    record->label = QStringLiteral("label %1").arg(dice.roll(0, 99));
    for (int i = 0; i < 9; ++i) {
        record->components.append(dice.roll(0, 1000) / 7.0);
    }
    return record;
}

void convert(Dice& dice)
{
    auto record = property(dice);
    const QString text = MaterialLibraryManager::getInstance()->convertMaterialPropertToQString(record);
    MaterialLibraryManager::getInstance()->convertQStringToMaterialPropertyData(text);
}

/// The identifiers stay below twenty.
void changeMaterials(Dice& dice, BaseModule::MaterialLibType type)
{
    MaterialLibraryManager& materials = *MaterialLibraryManager::getInstance();
    const bool isProject = type == BaseModule::ProjectLib;
    const QString name = QStringLiteral("material %1").arg(dice.roll(0, 999));
    const int next = materials.getNextMatIDByType(type);
    const int id = dice.roll(1, 20);
    if (next < 20 && dice.roll(0, 2) == 0) {
        isProject ? materials.createProjectMat(name, name, property(dice), {}, {}, {}, {})
                  : materials.createSoftwareMat(name, name, property(dice), {}, {}, {}, {});
    } else if (dice.roll(0, 1) == 0) {
        isProject ? materials.updateProjectMat(id, name, name, property(dice), {}, {}, {}, {})
                  : materials.updateSoftwareMat(id, name, name, property(dice), {}, {}, {}, {});
    } else if (next < 15) {
        materials.importMaterial(isProject ? BaseModule::SoftwareLib : BaseModule::ProjectLib, {id});
    } else {
        isProject ? materials.deleteProjectMat(next - 1) : materials.deleteSoftwareMat(next - 1);
    }
    materials.hasSameName(name, type);
    materials.getMatDesByID(id);
}

void saveExamples(Dice& dice)
{
    const auto example = QSharedPointer<DataModel::ExampleData>::create();
    example->englishTitle = QString(dice.roll(0, 99), QLatin1Char('t'));
    ExampleLibraryManager::getInstance()->getExampleLibData()->exampleList = {example};
    ExampleLibraryManager::getInstance()->saveData();
}

void appendSystem(Dice& dice)
{
    RelativeCoordinateSystemDate& systems = *RelativeCoordinateSystemDate::getInstance();
    const int count = systems.getRelativeCoordinateSystemDateCount();
    const int basicID = systems.getCoordinateSystemByIndex(dice.roll(0, count - 1))->getID();
    const int id = systems.getCoordinateSystemByIndex(count - 1)->getID() + 1;
    double vector[3] = {dice.roll(0, 10) / 3.0, 0, 0};
    auto system = std::make_unique<RelativeCoordinateSystem>();
    system->setID(id);
    system->setBasicCoordinateSystemID(basicID);
    system->setName(QStringLiteral("system %1").arg(id));
    system->setType(BaseModule::Cartesian, id, basicID, -1);
    system->setOffsetCoordinate(vector, id, basicID, -1);
    system->setRotateDirection(vector, id, basicID, -1);
    system->setActorRotateDirection({QStringLiteral("X"), vector[0]}, id, basicID, -1);
    systems.appendCoordinateSystem(system.release());
}

/// At most ten systems.
void changeSystems(Dice& dice)
{
    RelativeCoordinateSystemDate& systems = *RelativeCoordinateSystemDate::getInstance();
    const int count = systems.getRelativeCoordinateSystemDateCount();
    if (count < 10) {
        appendSystem(dice);
    } else if (dice.roll(0, 1) == 0) {
        systems.resetData();
    } else {
        // What is taken out by its identifier belongs to nobody.
        RelativeCoordinateSystem* const last = systems.getCoordinateSystemByIndex(count - 1);
        systems.removeCoordinateSystemByID({last->getID()});
        delete last;
    }
}

void askSystems(Dice& dice)
{
    RelativeCoordinateSystemDate& systems = *RelativeCoordinateSystemDate::getInstance();
    const int index = dice.roll(0, systems.getRelativeCoordinateSystemDateCount() - 1);
    RelativeCoordinateSystem& system = *systems.getCoordinateSystemByIndex(index);
    system.getProperty();
    system.getRotateDirection();
    system.getOffsetCoordinate();
    systems.setCurrentCoordinateSystemID(system.getID());
}

void count(Dice& dice)
{
    static GeometryCounters geometry;
    static MeshCounters mesh;
    geometry.addComponent({}, {});
    mesh.addKernel({}, {});
    if (dice.roll(0, 9) == 0) {
        geometry.resetSetMaxID(dice.roll(0, 9));
        geometry.resetComponentMaxID();
        mesh.setKernelMaxID(dice.roll(0, 9));
        mesh.resetSetMaxID();
    }
    geometry.addSet({}, {});
    mesh.addSet({}, {});
}

/// Scores made-up features; now and then the model is loaded anew.
void score(Dice& dice)
{
    MeshQualityPredict& predict = *MeshQualityPredict::getinstance();
    static bool isLoaded = false;
    if (!isLoaded || dice.roll(0, 40) == 0) {
        const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/../mesher/mesh.onnx");
        predict.loadModel(QFile::encodeName(path).constData(), "onnx::Gemm_0", "19");
        predict.setFigureParameter(11);
        isLoaded = true;
    }
    float features[11] = {};
    for (float& feature : features) {
        feature = static_cast<float>(dice.roll(0, 1000)) / 500.0F;
    }
    predict.inferFigure(features);
    predict.getOutput();
}

} // namespace

void setProjectsDirectory(const QString& directory)
{
    projectsDirectory() = directory;
    // Appending writes the file of the open project, and there is none yet.
    BaseModule::GlobalHelper::setProjectTempIODir(directory + QStringLiteral("/none"));
    RelativeCoordinateSystemDate::getInstance()->appendCoordinateSystem(new RelativeCoordinateSystem);
    for (int i = 0; i < 3; ++i) {
        QDir().mkpath(directory + QStringLiteral("/%1").arg(i));
    }
    BaseModule::GlobalHelper::setProjectTempIODir(directory + QStringLiteral("/0"));
}

void reopenProject(Dice& dice)
{
    BaseModule::GlobalHelper::setProjectTempIODir(projectsDirectory() + QStringLiteral("/%1").arg(dice.roll(0, 2)));
    RelativeCoordinateSystemDate::getInstance()->resetData();
    MaterialLibraryManager::getInstance()->initProjectMaterial();
    RelativeCoordinateSystemDate::getInstance()->readConfig();
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    if (dice.roll(0, 50) == 0) {
        MaterialLibraryManager::getInstance()->clearProjectMaterial();
    }
}

void doDeed(Dice& dice)
{
    const int choice = dice.roll(0, 9999);
    if (choice < 5500) {
        select(dice);
    } else if (choice < 7500) {
        interact(dice);
    } else if (choice < 7510) {
        CaseData::getinstance();
        GeometryData::getinstance();
    } else if (choice < 7600) {
        count(dice);
    } else if (choice < 7640) {
        score(dice);
    } else if (choice < 8500) {
        convert(dice);
    } else if (choice < 9700) {
        askSystems(dice);
    } else if (choice < 9850) {
        changeMaterials(dice, BaseModule::ProjectLib);
    } else if (choice < 9950) {
        changeSystems(dice);
    } else if (choice < 9960) {
        changeMaterials(dice, BaseModule::SoftwareLib);
    } else if (choice < 9965) {
        saveExamples(dice);
    } else {
        float features[11] = {};
        MeshQualityPredict::getinstance()->getInput(features);
    }
}
