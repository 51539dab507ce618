// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
//
// Makes the calls that the pages in docs/ show, one sequence a page, and prints after each what a listener hears.
//   sequences frame|selection|materials|coordinates|meshquality

#include <basemodule/GlobalConfig.h>
#include <basemodule/GlobalHelper.h>
#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/frame/InteractionManager.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/meshquality/MeshQualityPredict.h>
#include <datamanager/selection/SelectedDataManager.h>
#include <datamodel/SelectedDataBase.h>

#include <support/SignalLog.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

namespace {

void say(const QString& line)
{
    std::fputs((line + QLatin1Char('\n')).toUtf8().constData(), stdout);
}

/// Prints a call as it stands in the source, then what was heard meanwhile.
#define CALL(log, call)                                                                                                \
    do {                                                                                                               \
        say(QString::fromUtf8(#call));                                                                                 \
        call;                                                                                                          \
        hear(log);                                                                                                     \
    } while (false)

void hear(SignalLog& log)
{
    for (const QString& entry : log.take()) {
        say(QStringLiteral("    ") + entry);
    }
}

void press(int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    DataManager::InteractionManager::getInstance()->onKeyPress(&event);
}

void release(int key)
{
    QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier);
    DataManager::InteractionManager::getInstance()->onKeyRelease(&event);
}

void showFrame()
{
    auto* const interaction = DataManager::InteractionManager::getInstance();
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    selection->init();
    SignalLog log([interaction] { return QStringLiteral("mode %1").arg(interaction->getInteractionMode()); });
    CALL(log, interaction->setInteractionMode(BaseModule::Rotate));
    CALL(log, press(Qt::Key_Shift));
    CALL(log, release(Qt::Key_Shift));
    CALL(log, press(Qt::Key_Control));
    CALL(log, selection->clickViewObject(3, -1));
    CALL(log, release(Qt::Key_Control));
    CALL(log, interaction->setInteractionMode(BaseModule::MouseDraw));
}

void showSelection()
{
    using Targets = QList<QPair<int, int>>;
    auto* const selection = DataManager::SelectedDataManager::getInstance();
    selection->init();
    SignalLog log([selection] { return QStringLiteral("%1 selected").arg(selection->getDataCount()); });
    CALL(log, selection->setSelectModelInMainWindow(BaseModule::GeometryBody));
    CALL(log, selection->clickViewObject(3, -1));
    CALL(log, selection->addSelectedTargetList(BaseModule::GeometryBody, Targets({{3, -1}, {5, -1}})));
    CALL(log, selection->setSelectModelInDialog(BaseModule::GeometryFace));
    CALL(log, selection->clickViewObject(5, 2));
    CALL(log, selection->setSelectModelInMainWindow(BaseModule::MeshNode));
    CALL(log, selection->setSwitchSelectModelEnable(true));
    CALL(log, selection->clearAllSelectedTarget());
}

void showMaterials()
{
    const QTemporaryDir project;
    BaseModule::GlobalHelper::setProjectTempIODir(project.path());
    auto* const materials = DataManager::MaterialLibraryManager::getInstance();
    const QString file = project.filePath(QStringLiteral("MaterialLibrary.json"));
    SignalLog log(
        [&file] { return QFileInfo::exists(file) ? QStringLiteral("file is there") : QStringLiteral("no file"); });
    CALL(log, materials->initProjectMaterial());
    CALL(log, materials->createProjectMat(QStringLiteral("铜"), QStringLiteral("Copper"), {}, {}, {}, {}, {}));
    CALL(log, materials->createProjectMat(QStringLiteral("铝"), QStringLiteral("Aluminium"), {}, {}, {}, {}, {}));
    CALL(log, materials->deleteProjectMat(1));
    CALL(log, materials->deleteProjectMat(1));
    CALL(log, materials->deleteProjectMat(2));
    CALL(log, materials->importMaterial(BaseModule::SoftwareLib, {99}));
    CALL(log, materials->clearProjectMaterial());
}

DataManager::RelativeCoordinateSystem* makeSystem(int id)
{
    auto* const system = new DataManager::RelativeCoordinateSystem;
    system->setID(id);
    return system;
}

void showCoordinates()
{
    const QTemporaryDir project;
    BaseModule::GlobalHelper::setProjectTempIODir(project.path());
    using Registry = DataManager::RelativeCoordinateSystemDate;
    Registry* const registry = Registry::getInstance();
    SignalLog log(
        [registry] { return QStringLiteral("%1 systems").arg(registry->getRelativeCoordinateSystemDateCount()); });
    const auto logIDs = [&log](const char* name) {
        return [&log, name](const QList<int>& ids) {
            QStringList texts;
            for (const int id : ids) {
                texts.append(QString::number(id));
            }
            log.append(QStringLiteral("%1 [%2]").arg(QString::fromLatin1(name), texts.join(QLatin1Char(','))));
        };
    };
    QObject::connect(registry, &Registry::signal_dataChanged, logIDs("dataChanged"));
    QObject::connect(registry, &Registry::signal_dataDeleted, logIDs("dataDeleted"));
    CALL(log, registry->appendCoordinateSystem(makeSystem(0)));
    CALL(log, registry->appendCoordinateSystem(makeSystem(3)));
    CALL(log, registry->appendCoordinateSystem(makeSystem(5)));
    CALL(log, registry->setCurrentCoordinateSystemID(5));
    CALL(log, registry->removeCoordinateSystemByID({5}));
    CALL(log, registry->resetData());
}

void showMeshQuality()
{
    auto* const predictor = DataManager::MeshQualityPredict::getinstance();
    SignalLog log;
    const auto scores = [predictor] {
        QStringList texts;
        for (const float score : predictor->getOutput()) {
            texts.append(QString::number(static_cast<double>(score)));
        }
        say(QStringLiteral("    history ") + texts.join(QLatin1Char(' ')));
    };
    CALL(log, predictor->predict());
    scores();
    CALL(log, predictor->predict());
    scores();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const std::map<QString, void (*)()> sequences = {{QStringLiteral("frame"), showFrame},
                                                     {QStringLiteral("selection"), showSelection},
                                                     {QStringLiteral("materials"), showMaterials},
                                                     {QStringLiteral("coordinates"), showCoordinates},
                                                     {QStringLiteral("meshquality"), showMeshQuality}};
    const auto found = sequences.find(QCoreApplication::arguments().value(1));
    if (found == sequences.end()) {
        say(QStringLiteral("sequences: name a page"));
        return 2;
    }
    found->second();
    return 0;
}
