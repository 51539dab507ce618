// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>

#include <basemodule/SelectModel.h>
#include <datamanager/material/MaterialLibraryManager.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QTemporaryDir>

using DataManager::MaterialLibraryManager;
using DataManager::SelectedDataManager;
using namespace Workbench;

/// Volumes, which come with meshes, and sets of them.
class tst_GeometryManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { Project::instance()->close(); }

    void componentsStandForVolumes();
    void meshingAgainKeepsMaterials();
    void unrelatedMeshInheritsNothing();
    void volumesAreFoundByGroupNames();
    void renamedGroupsRenameTheirVolumes();
    void earlierProjectsKeepTheirVolumes();
    void deletedMaterialIsDropped();
    void hiddenCannotBePicked();
    void geometrySets();
    void geometrySurvivesAFile();

private:
    QTemporaryDir m_directory;
};

void tst_GeometryManager::init()
{
    QVERIFY(Project::instance()->create());
}

void tst_GeometryManager::componentsStandForVolumes()
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

void tst_GeometryManager::meshingAgainKeepsMaterials()
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

void tst_GeometryManager::unrelatedMeshInheritsNothing()
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

void tst_GeometryManager::volumesAreFoundByGroupNames()
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

void tst_GeometryManager::renamedGroupsRenameTheirVolumes()
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
void tst_GeometryManager::earlierProjectsKeepTheirVolumes()
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

void tst_GeometryManager::deletedMaterialIsDropped()
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

void tst_GeometryManager::hiddenCannotBePicked()
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

void tst_GeometryManager::geometrySets()
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

void tst_GeometryManager::geometrySurvivesAFile()
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

WORKBENCH_TEST_MAIN(tst_GeometryManager)
#include "tst_geometrymanager.moc"
