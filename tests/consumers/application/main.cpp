// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// An application built on the library: it listens to the hub, derives from both manager bases, selects, saves a
// material, and catches the exception of the model runtime as its own type. Prints "consumer: ok" at the end.

#include "GeometryManager.h"
#include "MeshManager.h"

#include <basemodule/GlobalHelper.h>
#include <basemodule/IBaseSignal.h>
#include <configoption/ConfigManager.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <onnxruntime_cxx_api.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

void require(bool condition, const char* what)
{
    if (!condition) {
        std::printf("consumer: failed: %s\n", what);
        std::exit(1);
    }
}

void selectAndListen()
{
    int shown = 0;
    QObject::connect(BaseModule::IBaseSignal::getInstance(), &BaseModule::IBaseSignal::signal_updateViewObjectState,
                     [&shown](int, int, int, bool isShow) { shown += isShow ? 1 : -1; });
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    selection->init();
    selection->clickViewObject(3, -1);
    require(shown == 1 && selection->getDataCount() == 1, "a click selects, and the hub tells");
    selection->clickViewObject(3, -1);
    require(shown == 0 && selection->getDataCount() == 0, "a second click deselects");
    QObject::disconnect(BaseModule::IBaseSignal::getInstance(), nullptr, nullptr, nullptr);
}

void numberEntities()
{
    GeometryManager geometry;
    MeshManager mesh;
    require(geometry.generateSetID() == 1 && geometry.generateSetID() == 2, "sets are numbered from 1");
    mesh.setKernelMaxID(7);
    require(mesh.generateKernelID() == 8, "kernels go on from the number that was set");
}

void saveMaterial()
{
    const QTemporaryDir project;
    BaseModule::GlobalHelper::setProjectTempIODir(project.path());
    auto* const materials = DataManager::MaterialLibraryManager::getInstance();
    materials->initProjectMaterial();
    materials->createProjectMat(QStringLiteral("Copper"), QStringLiteral("Copper"), {}, {}, {}, {}, {});
    require(QFileInfo(project.filePath(QStringLiteral("MaterialLibrary.json"))).size() > 0, "the library is saved");
    ConfigOption::ConfigManager::getInstance()->setLanguage(QStringLiteral("Chinese"));
    require(materials->getMatDesByID(1) == QStringLiteral("Material: Copper"), "the material is described");
}

void catchRuntimeException()
{
    bool isCaught = false;
    try {
        DataManager::MeshQualityPredict::getinstance()->predict();
    } catch (const Ort::Exception& exception) {
        isCaught = exception.what()[0] != '\0';
    }
    require(isCaught, "without a model the runtime's exception arrives as its own type");
    require(DataManager::MeshQualityPredict::getinstance()->getOutput().size() == 10, "the history has ten values");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    selectAndListen();
    numberEntities();
    saveMaterial();
    catchRuntimeException();
    std::puts("consumer: ok");
    return 0;
}
