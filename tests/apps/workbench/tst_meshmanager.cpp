// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QTemporaryDir>

using DataManager::SelectedDataManager;
using namespace Workbench;

/// Meshes with their groups and sets: reading, naming, keeping, hiding.
class tst_MeshManager : public QObject
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
    void hiddenElementsCannotBePicked();
    void hidingDeselects();

private:
    QTemporaryDir m_directory;
};

void tst_MeshManager::init()
{
    qRegisterMetaType<QMultiMap<int, int>>("QMultiMap<int,int>");
    QVERIFY(Project::instance()->create());
}

void tst_MeshManager::opensInTheBackground()
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

void tst_MeshManager::putsTheMeshWhereThePredictorReads()
{
    const QString place = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    QFile::remove(place);
    QCOMPARE(openMesh(samplePath("slivers.msh")), 1);
    QFile copy(place);
    QFile source(samplePath("slivers.msh"));
    QVERIFY(copy.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), source.readAll());
}

void tst_MeshManager::tellsWhyNot_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another format") << QByteArray("$MeshFormat\n4.1 0 8\n$EndMeshFormat\n") << QStringLiteral("4.1");
    QTest::newRow("no elements") << QByteArray("$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n0\n$EndNodes\n")
                                 << QStringLiteral("tetrahedr");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("no such file");
}

void tst_MeshManager::tellsWhyNot()
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

void tst_MeshManager::cancelKeepsWhatWasThere()
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

void tst_MeshManager::nodesAndElements()
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

void tst_MeshManager::groups()
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

void tst_MeshManager::meshSets()
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

void tst_MeshManager::meshesSurviveAFile()
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

void tst_MeshManager::damagedFilesChangeNothing_data()
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

void tst_MeshManager::damagedFilesChangeNothing()
{
    QFETCH(QByteArray, content);
    const int kernel = openMesh(samplePath("slivers.msh"));
    const QString path = writeFile(m_directory.filePath(QStringLiteral("mesh.json")), content);
    QVERIFY(!MeshManager::instance()->load(path));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
    QCOMPARE(GeometryManager::instance()->load(path), content.contains("\"components\""));
    QCOMPARE(GeometryManager::instance()->getComponentCount(), 1);
}

void tst_MeshManager::hiddenElementsCannotBePicked()
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

void tst_MeshManager::hidingDeselects()
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

WORKBENCH_TEST_MAIN(tst_MeshManager)
#include "tst_meshmanager.moc"
