// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>

#include <basemodule/MaterialLibType.h>
#include <basemodule/SelectModel.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QTemporaryDir>

using DataManager::MaterialLibraryManager;
using DataManager::SelectedDataManager;
using namespace Workbench;

class tst_Managers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { Project::instance()->close(); }

    void opensInTheBackground();
    void putsTheMeshWhereThePredictorReads();
    void tellsWhyNot_data();
    void tellsWhyNot();
    void cancelKeepsWhatWasThere();
    void nodesAndElements();
    void groups();
    void meshSets();
    void meshesSurviveAFile();
    void damagedFilesChangeNothing_data();
    void damagedFilesChangeNothing();
    void componentsStandForVolumes();
    void meshingAgainKeepsMaterials();
    void unrelatedMeshInheritsNothing();
    void volumesAreFoundByGroupNames();
    void renamedGroupsRenameTheirVolumes();
    void earlierProjectsKeepTheirVolumes();
    void deletedMaterialIsDropped();
    void hiddenCannotBePicked();
    void hiddenElementsCannotBePicked();
    void hidingDeselects();
    void geometrySets();
    void geometrySurvivesAFile();

private:
    QTemporaryDir m_directory;
};

void tst_Managers::init()
{
    qRegisterMetaType<QMultiMap<int, int>>("QMultiMap<int,int>");
    QVERIFY(Project::instance()->create());
}

void tst_Managers::opensInTheBackground()
{
    MeshManager* meshes = MeshManager::instance();
    QStringList log;
    QObject context;
    connect(meshes, &MeshManager::signal_loadStarted, &context, [&log] { log << QStringLiteral("started"); });
    connect(meshes, &MeshManager::signal_kernalDataListChanged, &context, [&](const QList<int>& ids) {
        log << QStringLiteral("kernel %1, %2 volumes")
                   .arg(ids.first())
                   .arg(GeometryManager::instance()->getComponentCount());
    });
    connect(meshes, &MeshManager::signal_groupDataListChanged, &context,
            [&](const QMultiMap<int, int>& groups) { log << QStringLiteral("groups %1").arg(groups.size()); });
    connect(meshes, &MeshManager::signal_loadFinished, &context,
            [&log](int kernelID) { log << QStringLiteral("finished %1").arg(kernelID); });
    QSignalSpy progress(meshes, &MeshManager::signal_loadProgress);
    QCOMPARE(openMesh(samplePath("bearing-housing.msh")), 1);
    QCOMPARE(log, (QStringList{QStringLiteral("started"), QStringLiteral("kernel 1, 3 volumes"),
                               QStringLiteral("groups 3"), QStringLiteral("finished 1")}));
    QVERIFY(progress.size() >= 2);
    QCOMPARE(progress.last().at(0).toInt(), 100);
    // A second one takes the place of the first.
    QCOMPARE(openMesh(samplePath("plate-with-hole.msh")), 2);
    QCOMPARE(meshes->findKernels(QString()), QList<int>{2});
    QCOMPARE(meshes->getKernelName(2), QStringLiteral("plate-with-hole"));
}

void tst_Managers::putsTheMeshWhereThePredictorReads()
{
    const QString place = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    QFile::remove(place);
    QCOMPARE(openMesh(samplePath("slivers.msh")), 1);
    QFile copy(place);
    QFile source(samplePath("slivers.msh"));
    QVERIFY(copy.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), source.readAll());
}

void tst_Managers::tellsWhyNot_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another format") << QByteArray("$MeshFormat\n4.1 0 8\n$EndMeshFormat\n") << QStringLiteral("4.1");
    QTest::newRow("no elements") << QByteArray("$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n0\n$EndNodes\n")
                                 << QStringLiteral("tetrahedr");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("no such file");
}

void tst_Managers::tellsWhyNot()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QCOMPARE(openMesh(samplePath("slivers.msh")), 1);
    const QString path = m_directory.filePath(QStringLiteral("%1 bad.msh"));
    QFile::remove(path);
    if (!content.isEmpty()) {
        QVERIFY(!writeFile(path, content).isEmpty());
    }
    Messages messages;
    QCOMPARE(openMesh(path), 0);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().startsWith(QStringLiteral("2 The mesh ") + path), qPrintable(messages.list.first()));
    QVERIFY2(messages.list.first().contains(reason, Qt::CaseInsensitive), qPrintable(messages.list.first()));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{1});
}

void tst_Managers::cancelKeepsWhatWasThere()
{
    MeshManager* meshes = MeshManager::instance();
    QCOMPARE(openMesh(samplePath("slivers.msh")), 1);
    Messages messages;
    QSignalSpy finished(meshes, &MeshManager::signal_loadFinished);
    meshes->openMesh(samplePath("bearing-housing.msh"));
    QVERIFY(meshes->isLoading());
    meshes->cancelLoad();
    QVERIFY(finished.wait());
    QCOMPARE(finished.last().at(0).toInt(), 0);
    QVERIFY(!meshes->isLoading());
    QCOMPARE(meshes->findKernels(QString()), QList<int>{1});
    QVERIFY(messages.list.isEmpty());
}

void tst_Managers::nodesAndElements()
{
    MeshManager* meshes = MeshManager::instance();
    const QByteArray mesh = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n"
                            "$Nodes\n5\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n5 1 1 2\n$EndNodes\n"
                            "$Elements\n2\n20 4 2 1 1 1 2 3 4\n15 4 2 1 1 2 3 4 5\n$EndElements\n";
    const int id =
        meshes->addKernel(QStringLiteral("pair"), writeFile(m_directory.filePath(QStringLiteral("pair.msh")), mesh));
    QCOMPARE(id, 1);
    QCOMPARE(meshes->addKernel(QStringLiteral("pair"), m_directory.filePath(QStringLiteral("pair.msh"))), 0);
    QCOMPARE(meshes->addKernel(QStringLiteral("absent"), m_directory.filePath(QStringLiteral("absent.msh"))), 0);
    QCOMPARE(meshes->getKernelMaxID(), 1);
    QCOMPARE(meshes->getNodeCount(id), 5);
    QCOMPARE(meshes->getNodePosition(id, 5), (QVector<double>{1, 1, 2}));
    QCOMPARE(meshes->getNodePosition(id, 6), QVector<double>());
    QCOMPARE(meshes->getNodePosition(id, 0), QVector<double>());
    QCOMPARE(meshes->getElementCount(id), 2);
    QCOMPARE(meshes->getElementNodes(id, 15), (QVector<int>{2, 3, 4, 5}));
    QCOMPARE(meshes->getElementNodes(id, 16), QVector<int>());
    QCOMPARE(meshes->getNodeElements(id, 2), (QVector<int>{15, 20}));
    QCOMPARE(meshes->getNodeElements(id, 1), QVector<int>{20});
    QCOMPARE(meshes->getBoundingBox({}), (QVector<double>{0, 1, 0, 1, 0, 2}));
    QCOMPARE(meshes->getBoundingBox({9}), QVector<double>());
    QCOMPARE(meshes->getNodeCount(9) + meshes->getElementCount(9), 0);
    QVERIFY(meshes->renameKernel(id, QStringLiteral("renamed")));
    QVERIFY(!meshes->renameKernel(id, QString()));
    QVERIFY(!meshes->renameKernel(9, QStringLiteral("other")));
    QCOMPARE(meshes->findKernels(QStringLiteral("renamed")), QList<int>{id});
    QCOMPARE(meshes->removeKernels({id, 9}), 1);
    QCOMPARE(meshes->getKernelCount(), 0);
}

void tst_Managers::groups()
{
    MeshManager* meshes = MeshManager::instance();
    const int kernel = openMesh(samplePath("bearing-housing.msh"));
    const QList<int> ofFile = meshes->findGroups(kernel, QString());
    QCOMPARE(ofFile.size(), 3);
    int elements = 0;
    for (int group : ofFile) {
        elements += meshes->getGroupSize(kernel, group);
    }
    QCOMPARE(elements, meshes->getElementCount(kernel));
    QSignalSpy changed(meshes, &MeshManager::signal_groupDataListChanged);
    QSignalSpy deleted(meshes, &MeshManager::signal_groupDataListDeleted);
    const int first = meshes->mesh(kernel)->elementNumbers.number(0);
    const int mine = meshes->addGroup(kernel, QStringLiteral("mine"), {first, first, -5});
    QCOMPARE(mine, 4);
    QCOMPARE(meshes->getGroupElements(kernel, mine), std::vector<int>{0});
    QCOMPARE(meshes->addGroup(kernel, QStringLiteral("mine"), {}), 0);
    QVERIFY(meshes->renameGroup(kernel, mine, QStringLiteral("ours")));
    QVERIFY(!meshes->renameGroup(kernel, mine, QStringLiteral("bush")));
    QCOMPARE(meshes->getGroupName(kernel, mine), QStringLiteral("ours"));
    QCOMPARE(changed.size(), 2);
    meshes->showGroups({{kernel, mine}}, false);
    QVERIFY(!meshes->isGroupShown(kernel, mine));
    QCOMPARE(meshes->shownElements(kernel)[0], '\0');
    QCOMPARE(meshes->shownElements(kernel)[1], '\1');
    SelectedDataManager::getInstance()->addSelectedTargetList(BaseModule::MeshGroup, {{kernel, mine}});
    QCOMPARE(meshes->removeGroups({{kernel, mine}, {kernel, 77}}), 1);
    QCOMPARE(deleted.size(), 1);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    QCOMPARE(meshes->getGroupCount(kernel), 3);
}

void tst_Managers::meshSets()
{
    MeshManager* meshes = MeshManager::instance();
    const int kernel = openMesh(samplePath("slivers.msh"));
    const int set = meshes->addSet(QStringLiteral("all"), {{kernel, -1}});
    QCOMPARE(set, 1);
    QCOMPARE(meshes->addSet(QStringLiteral("all"), {}), 0);
    QVERIFY(meshes->renameSet(set, QStringLiteral("everything")));
    QCOMPARE(meshes->getSetName(set), QStringLiteral("everything"));
    QCOMPARE(meshes->findSets(QString()), QList<int>{set});
    meshes->showSets({set}, false);
    QVERIFY(!meshes->isKernelShown(kernel));
    QCOMPARE(meshes->removeSets({set, 5}), 1);
    QCOMPARE(meshes->getSetCount(), 0);
}

void tst_Managers::meshesSurviveAFile()
{
    MeshManager* meshes = MeshManager::instance();
    const int kernel = openMesh(samplePath("bearing-housing.msh"));
    const int first = meshes->mesh(kernel)->elementNumbers.number(0);
    const int mine = meshes->addGroup(kernel, QStringLiteral("mine"), {first});
    meshes->showGroups({{kernel, mine}}, false);
    meshes->addSet(QStringLiteral("set"), {{kernel, first}});
    const QString path = BaseModule::GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh.json");
    QVERIFY(meshes->save(path));
    meshes->removeGroups({{kernel, mine}});
    meshes->removeSets({1});
    QVERIFY(meshes->load(path));
    QCOMPARE(meshes->findKernels(QString()), QList<int>{kernel});
    QCOMPARE(meshes->getGroupElements(kernel, mine), std::vector<int>{0});
    QVERIFY(!meshes->isGroupShown(kernel, mine));
    QCOMPARE(meshes->findSets(QStringLiteral("set")), QList<int>{1});
    QCOMPARE(meshes->getSetMaxID(), 1);
    QCOMPARE(meshes->getKernelMaxID(), kernel);
}

void tst_Managers::damagedFilesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{\"kernels\": [");
    QTest::newRow("no list") << QByteArray("{\"kernels\": 3}");
    QTest::newRow("a file elsewhere") << QByteArray("{\"kernels\": [{\"id\": 1, \"file\": \"../a.msh\"}]}");
    QTest::newRow("no identifier") << QByteArray("{\"kernels\": [{\"file\": \"a.msh\"}]}");
    QTest::newRow("a huge identifier") << QByteArray("{\"kernels\": [{\"id\": 2000000000, \"file\": \"a.msh\"}]}");
    QTest::newRow("a mesh that is not there") << QByteArray("{\"kernels\": [{\"id\": 1, \"file\": \"a.msh\"}]}");
}

void tst_Managers::damagedFilesChangeNothing()
{
    QFETCH(QByteArray, content);
    const int kernel = openMesh(samplePath("slivers.msh"));
    const QString path = writeFile(m_directory.filePath(QStringLiteral("mesh.json")), content);
    QVERIFY(!MeshManager::instance()->load(path));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
    QCOMPARE(GeometryManager::instance()->load(path), content.contains("\"components\""));
    QCOMPARE(GeometryManager::instance()->getComponentCount(), 1);
}

void tst_Managers::componentsStandForVolumes()
{
    GeometryManager* geometry = GeometryManager::instance();
    const int kernel = openMesh(samplePath("plate-with-hole.msh"));
    QCOMPARE(geometry->findComponents(QStringLiteral("plate")), QList<int>{1});
    QCOMPARE(geometry->getKernelID(1), kernel);
    QCOMPARE(geometry->componentOfVolume(kernel, geometry->getVolumeTag(1)), 1);
    QCOMPARE(geometry->getFaces(1), (QList<int>{2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(geometry->getFaceName(1, 4), QStringLiteral("hole"));
    QCOMPARE(geometry->getFaceName(1, 5), QStringLiteral("face 5"));
    QCOMPARE(geometry->getFaceName(1, 99), QString());
    const QVector<double> box = geometry->getBoundingBox({1});
    QCOMPARE(box, (QVector<double>{0, 0.2, 0, 0.1, 0, 0.012}));
    QVERIFY(geometry->renameComponent(1, QStringLiteral("sheet")));
    QVERIFY(!geometry->renameComponent(1, QString()));
    MeshManager::instance()->removeKernels({kernel});
    QCOMPARE(geometry->getFaces(1), QList<int>());
    QCOMPARE(geometry->getKernelID(1), 0);
}

void tst_Managers::meshingAgainKeepsMaterials()
{
    GeometryManager* geometry = GeometryManager::instance();
    openMesh(samplePath("plate-with-hole.msh"));
    geometry->setMaterialID({1}, 5);
    const int again = openMesh(samplePath("plate-with-hole.msh"));
    QCOMPARE(geometry->findComponents(QString()), QList<int>{1});
    QCOMPARE(geometry->getMaterialID(1), 5);
    QCOMPARE(geometry->getKernelID(1), again);
    // A mesh of something else drops what it does not hold.
    openMesh(samplePath("bearing-housing.msh"));
    QCOMPARE(geometry->getComponentCount(), 3);
}

// A box of two volume groups with these numbers and names; no name for an empty one.
static QByteArray twoVolumes(int first, const QByteArray& firstName, int second, const QByteArray& secondName)
{
    QByteArrayList names;
    for (const auto& [tag, name] : {std::pair(first, firstName), std::pair(second, secondName)}) {
        if (!name.isEmpty()) {
            names.append("3 " + QByteArray::number(tag) + " \"" + name + "\"\n");
        }
    }
    const auto element = [](int number, int tag, const QByteArray& nodes) {
        return QByteArray::number(number) + " 4 2 " + QByteArray::number(tag) + " 1 " + nodes + "\n";
    };
    return "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$PhysicalNames\n" + QByteArray::number(names.size()) + "\n" +
           names.join() +
           "$EndPhysicalNames\n$Nodes\n5\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n5 1 1 2\n$EndNodes\n"
           "$Elements\n2\n" +
           element(1, first, "1 2 3 4") + element(2, second, "2 3 4 5") + "$EndElements\n";
}

void tst_Managers::unrelatedMeshInheritsNothing()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QString a = writeFile(m_directory.filePath(QStringLiteral("a.msh")), twoVolumes(1, "core", 2, "shell"));
    const QString b = writeFile(m_directory.filePath(QStringLiteral("b.msh")), twoVolumes(1, "core", 2, "coil"));
    QVERIFY(openMesh(a) > 0);
    QVERIFY(geometry->renameComponent(2, QStringLiteral("my shell")));
    geometry->setMaterialID({1, 2}, 5);
    QSignalSpy removed(geometry, &GeometryManager::signal_componentListRemoved);
    QVERIFY(openMesh(b) > 0);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.first().at(0).value<QList<int>>(), (QList<int>{1, 2}));
    QCOMPARE(geometry->findComponents(QString()), (QList<int>{3, 4}));
    QCOMPARE(geometry->getComponentName(3), QStringLiteral("core"));
    QCOMPARE(geometry->getComponentName(4), QStringLiteral("coil"));
    QCOMPARE(geometry->findComponentsOfMaterial(5), QList<int>());
    // The same file anew, with what a mesher made of it meanwhile, keeps them.
    geometry->setMaterialID({4}, 6);
    writeFile(b, twoVolumes(1, "core", 2, "coil"));
    QVERIFY(openMesh(b) > 0);
    QCOMPARE(geometry->findComponents(QString()), (QList<int>{3, 4}));
    QCOMPARE(geometry->findComponentsOfMaterial(6), QList<int>{4});
}

void tst_Managers::volumesAreFoundByGroupNames()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QString path = writeFile(m_directory.filePath(QStringLiteral("swap.msh")), twoVolumes(1, "in", 2, "out"));
    QVERIFY(openMesh(path) > 0);
    geometry->setMaterialID({1}, 5);
    QVERIFY(geometry->renameComponent(1, QStringLiteral("mine")));
    writeFile(path, twoVolumes(1, "out", 2, "in"));
    const int kernel = openMesh(path);
    QCOMPARE(geometry->findComponents(QString()), (QList<int>{1, 2}));
    QCOMPARE(geometry->getVolumeTag(1), 2);
    QCOMPARE(geometry->componentOfVolume(kernel, 1), 2);
    QCOMPARE(geometry->getComponentName(1), QStringLiteral("mine"));
    QCOMPARE(geometry->getMaterialID(1), 5);
    QCOMPARE(geometry->getComponentName(2), QStringLiteral("out"));
}

void tst_Managers::renamedGroupsRenameTheirVolumes()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QString path = writeFile(m_directory.filePath(QStringLiteral("rename.msh")), twoVolumes(1, "in", 2, "out"));
    QVERIFY(openMesh(path) > 0);
    geometry->setMaterialID({1, 2}, 5);
    QVERIFY(geometry->renameComponent(2, QStringLiteral("mine")));
    writeFile(path, twoVolumes(1, "inner", 2, "outer"));
    QVERIFY(openMesh(path) > 0);
    QCOMPARE(geometry->findComponents(QString()), (QList<int>{1, 2}));
    QCOMPARE(geometry->getComponentName(1), QStringLiteral("inner"));
    QCOMPARE(geometry->getComponentName(2), QStringLiteral("mine"));
    QCOMPARE(geometry->findComponentsOfMaterial(5), (QList<int>{1, 2}));
    // Groups without names are known by their numbers.
    writeFile(path, twoVolumes(1, "", 2, ""));
    QVERIFY(openMesh(path) > 0);
    QCOMPARE(geometry->findComponents(QString()), (QList<int>{1, 2}));
    QCOMPARE(geometry->getComponentName(1), QStringLiteral("volume 1"));
}

// Their files do not tell where volumes come from.
void tst_Managers::earlierProjectsKeepTheirVolumes()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QString path = m_directory.filePath(QStringLiteral("earlier.json"));
    writeFile(path, R"({"components": [{"id": 2, "name": "named", "material": 3, "volumeGroup": 1}], "sets": []})");
    QVERIFY(geometry->load(path));
    QVERIFY(openMesh(samplePath("plate-with-hole.msh")) > 0);
    QCOMPARE(geometry->findComponents(QString()), QList<int>{2});
    QCOMPARE(geometry->getComponentName(2), QStringLiteral("named"));
    QCOMPARE(geometry->getMaterialID(2), 3);
}

void tst_Managers::deletedMaterialIsDropped()
{
    GeometryManager* geometry = GeometryManager::instance();
    openMesh(samplePath("bearing-housing.msh"));
    MaterialLibraryManager* library = MaterialLibraryManager::getInstance();
    library->createProjectMat(QStringLiteral("steel"), QStringLiteral("steel"), {}, {}, {}, {}, {});
    const QList<int> volumes = geometry->findComponents(QString());
    geometry->setMaterialID({volumes[0], volumes[2]}, 1);
    QCOMPARE(geometry->findComponentsOfMaterial(1), (QList<int>{volumes[0], volumes[2]}));
    QSignalSpy changed(geometry, &GeometryManager::signal_componentListDataChanged);
    library->deleteProjectMat(1);
    QCOMPARE(geometry->findComponentsOfMaterial(1), QList<int>());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).value<QList<int>>(), (QList<int>{volumes[0], volumes[2]}));
}

void tst_Managers::hiddenCannotBePicked()
{
    GeometryManager* geometry = GeometryManager::instance();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    openMesh(samplePath("plate-with-hole.msh"));
    selection->setSelectModelInMainWindow(BaseModule::GeometryFace);
    selection->clickViewObject(1, 4);
    QCOMPARE(selection->getDataCount(), 1);
    geometry->showComponents({1}, false);
    QCOMPARE(selection->getDataCount(), 0);
    selection->clickViewObject(1, 4);
    QCOMPARE(selection->getDataCount(), 0);
    geometry->showComponents({1}, true);
    selection->clickViewObject(1, 99); // no such face
    QCOMPARE(selection->getDataCount(), 0);
    const int kernel = geometry->getKernelID(1);
    for (const auto& [model, good] : {std::pair(BaseModule::MeshNode, 1), std::pair(BaseModule::MeshGroup, 1)}) {
        selection->setSelectModelInMainWindow(model);
        selection->clickViewObject(kernel, good);
        QCOMPARE(selection->getDataCount(), 1);
        selection->clickViewObject(kernel, 1000000);
        selection->clickViewObject(kernel + 1, good);
        QCOMPARE(selection->getDataCount(), 1);
    }
}

void tst_Managers::hiddenElementsCannotBePicked()
{
    MeshManager* meshes = MeshManager::instance();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const int kernel = openMesh(samplePath("bearing-housing.msh"));
    const auto mesh = meshes->mesh(kernel);
    const int element = mesh->elementNumbers.number(0);
    const auto isPicked = [&] {
        selection->clearAllSelectedTarget();
        selection->clickViewObject(kernel, element);
        return selection->getDataCount() == 1;
    };
    selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    QVERIFY(isPicked());
    const int own = meshes->addGroup(kernel, QStringLiteral("own"), {element});
    int ofFile = 0;
    for (const int group : meshes->findGroups(kernel, QString())) {
        ofFile = meshes->getGroupPhysicalTag(kernel, group) == mesh->report.physicalTag(0) ? group : ofFile;
    }
    for (const int group : {own, ofFile}) {
        meshes->showGroups({{kernel, group}}, false);
        QVERIFY(!isPicked());
        meshes->showGroups({{kernel, group}}, true);
        QVERIFY(isPicked());
    }
    GeometryManager* geometry = GeometryManager::instance();
    const int component = geometry->componentOfVolume(kernel, mesh->report.physicalTag(0));
    QVERIFY(component > 0);
    geometry->showComponents({component}, false);
    QVERIFY(!isPicked());
    geometry->showComponents({component}, true);
    QVERIFY(isPicked());
}

void tst_Managers::hidingDeselects()
{
    MeshManager* meshes = MeshManager::instance();
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    const int kernel = openMesh(samplePath("bearing-housing.msh"));
    using Pairs = QList<QPair<int, int>>;
    const auto selected = [selection](BaseModule::SelectModel model) {
        return selection->getSelectedDataBySelectedModel(model);
    };
    selection->addSelectedTargetList(BaseModule::MeshGroup, {{kernel, 1}, {kernel, 2}});
    meshes->showGroups({{kernel, 1}, {kernel, 77}}, false);
    QCOMPARE(selected(BaseModule::MeshGroup), (Pairs{{kernel, 2}}));
    meshes->showGroups({{kernel, 1}}, true);
    QCOMPARE(selected(BaseModule::MeshGroup), (Pairs{{kernel, 2}}));
    selection->addSelectedTargetList(BaseModule::MeshNode, {{kernel, 1}, {kernel + 1, 1}});
    selection->addSelectedTargetList(BaseModule::MeshElement, {{kernel, 1000}});
    selection->addSelectedTargetList(BaseModule::GeometryComponent, {{kernel, -1}});
    meshes->showKernels({kernel}, true);
    QCOMPARE(selection->getDataCount(), 5);
    meshes->showKernels({kernel}, false);
    QVERIFY(selected(BaseModule::MeshGroup).isEmpty());
    QVERIFY(selected(BaseModule::MeshElement).isEmpty());
    QCOMPARE(selected(BaseModule::MeshNode), (Pairs{{kernel + 1, 1}}));
    QCOMPARE(selection->getDataCount(), 2);
    selection->clearAllSelectedTarget();
}

void tst_Managers::geometrySets()
{
    GeometryManager* geometry = GeometryManager::instance();
    openMesh(samplePath("bearing-housing.msh"));
    QSignalSpy changed(geometry, &GeometryManager::signal_geoSetListDataChanged);
    QSignalSpy removed(geometry, &GeometryManager::signal_geoSetListRemoved);
    const QList<int> volumes = geometry->findComponents(QString());
    const int set = geometry->addSet(QStringLiteral("both"), {{volumes[0], -1}, {volumes[1], -1}});
    QCOMPARE(set, 1);
    QCOMPARE(geometry->addSet(QStringLiteral("both"), {}), 0);
    QCOMPARE(geometry->addSet(QString(), {}), 0);
    QVERIFY(geometry->renameSet(set, QStringLiteral("two")));
    QVERIFY(!geometry->renameSet(9, QStringLiteral("nine")));
    QCOMPARE(geometry->getSetName(set), QStringLiteral("two"));
    geometry->showSets({set}, false);
    QVERIFY(!geometry->isComponentShown(volumes[0]) && !geometry->isComponentShown(volumes[1]));
    QVERIFY(geometry->isComponentShown(volumes[2]));
    QCOMPARE(geometry->removeComponents({volumes[0]}), 1);
    QCOMPARE(geometry->getSetMembers(set), (QList<QPair<int, int>>{{volumes[1], -1}}));
    QCOMPARE(changed.size(), 3);
    QCOMPARE(geometry->removeSets({set, 9}), 1);
    QCOMPARE(removed.first().at(0).value<QList<int>>(), QList<int>{set});
    QCOMPARE(geometry->getSetCount(), 0);
}

void tst_Managers::geometrySurvivesAFile()
{
    GeometryManager* geometry = GeometryManager::instance();
    const QString source = writeFile(m_directory.filePath(QStringLiteral("box.step")), "x");
    QCOMPARE(geometry->addComponent(QStringLiteral("imported"), source), 1);
    QCOMPARE(geometry->addComponent(QStringLiteral("imported"), source), 0);
    QCOMPARE(geometry->addComponent(QStringLiteral("absent"), source + QStringLiteral("x")), 0);
    geometry->setMaterialID({1}, 3);
    geometry->addSet(QStringLiteral("set"), {{1, -1}});
    const QString path = m_directory.filePath(QStringLiteral("geometry.json"));
    QVERIFY(geometry->save(path));
    geometry->clear();
    QVERIFY(geometry->load(path));
    QCOMPARE(geometry->getComponentName(1), QStringLiteral("imported"));
    QCOMPARE(geometry->getMaterialID(1), 3);
    QCOMPARE(geometry->getSetMembers(1), (QList<QPair<int, int>>{{1, -1}}));
    QCOMPARE(geometry->generateComponentID(), 2);
    QCOMPARE(geometry->generateSetID(), 2);
    QVERIFY(!geometry->load(m_directory.filePath(QStringLiteral("absent.json"))));
    QCOMPARE(geometry->getComponentCount(), 1);
}

WORKBENCH_TEST_MAIN(tst_Managers)
#include "tst_managers.moc"
