// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

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
#include <basemodule/IBaseSignal.h>
#include <configoption/ConfigManager.h>
#include <configoption/TextCipher.h>
#include <datamodel/ExampleLibData.h>
#include <datamodel/MaterialData.h>
#include <support/FilesAndLog.h>

#include <QKeyEvent>
#include <QTemporaryDir>

using namespace DataManager;
using BaseModule::GlobalHelper;

/// Every singleton in one process: created, worked with, and left as it is when the process ends, which is what an
/// application does with them. Nothing is taken down, so that scripts/memcheck.sh sees what such an end leaves behind.
class ProcessLifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void createsEachOnce();
    void selects();
    void interacts();
    void keepsMaterials();
    void keepsExamples();
    void keepsSystems();
    void enciphers();
    void predicts();

private:
    static QString root() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../"); }

    QTemporaryDir m_project;
};

void ProcessLifeTest::initTestCase()
{
    const QString libraries = QCoreApplication::applicationDirPath() + text("/ConfigFiles/");
    for (const QString& path : {libraries + text("MaterialLibrary.json"), libraries + text("ExampleLibrary.json"),
                                root() + text("temp/mesh.msh"), root() + text("mesher/mesh.onnx")}) {
        QFile::remove(path);
    }
    GlobalHelper::setProjectTempIODir(m_project.path());
}

void ProcessLifeTest::createsEachOnce()
{
    const QString libraries = QCoreApplication::applicationDirPath() + text("/ConfigFiles/");
    expectLine(text("Read software material library file fail, please check path: ") + libraries +
               text("MaterialLibrary.json"));
    expectLine(text("read Example file fail, please check path: ") + libraries + text("ExampleLibrary.json"));
    QCOMPARE(BaseModule::IBaseSignal::getInstance(), BaseModule::IBaseSignal::getInstance());
    QCOMPARE(ConfigOption::ConfigManager::getInstance(), ConfigOption::ConfigManager::getInstance());
    QCOMPARE(ConfigOption::TextCipher::getInstance(), ConfigOption::TextCipher::getInstance());
    QCOMPARE(CaseData::getinstance(), CaseData::getinstance());
    QCOMPARE(GeometryData::getinstance(), GeometryData::getinstance());
    QCOMPARE(InteractionManager::getInstance(), InteractionManager::getInstance());
    QCOMPARE(SelectedDataManager::getInstance(), SelectedDataManager::getInstance());
    QCOMPARE(MaterialLibraryManager::getInstance(), MaterialLibraryManager::getInstance());
    QCOMPARE(ExampleLibraryManager::getInstance(), ExampleLibraryManager::getInstance());
    QCOMPARE(RelativeCoordinateSystemDate::getInstance(), RelativeCoordinateSystemDate::getInstance());
    QCOMPARE(MeshQualityPredict::getinstance(), MeshQualityPredict::getinstance());
}

void ProcessLifeTest::selects()
{
    SelectedDataManager& selection = *SelectedDataManager::getInstance();
    selection.init();
    selection.addSelectedTargetList(BaseModule::SelectModel(1), {{1, 2}, {3, 4}, {5, 6}});
    selection.removeSelectedTargetList(BaseModule::SelectModel(1), {{3, 4}});
    selection.setSelectModelInMainWindow(BaseModule::SelectModel(1));
    selection.clickViewObject(7, 8);
    // More than the pool holds, given back, and taken again: some of them stay selected to the end.
    QList<QPair<int, int>> many;
    for (int i = 100; i < 1100; ++i) {
        many.append({i, 1});
    }
    selection.addSelectedTargetList(BaseModule::SelectModel(1), many);
    selection.clearAllSelectedTarget();
    selection.addSelectedTargetList(BaseModule::SelectModel(1), {{1, 2}, {5, 6}, {7, 8}});
    QCOMPARE(selection.getSelectedDataBySelectedModel(BaseModule::SelectModel(1)),
             (QList<QPair<int, int>>{{1, 2}, {5, 6}, {7, 8}}));
}

void ProcessLifeTest::interacts()
{
    InteractionManager& interaction = *InteractionManager::getInstance();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
    interaction.onKeyPress(&press);
    QVERIFY(interaction.isActiveMultipleSelect());
    interaction.onKeyRelease(&press);
    QVERIFY(!interaction.isActiveMultipleSelect());
}

void ProcessLifeTest::keepsMaterials()
{
    MaterialLibraryManager& materials = *MaterialLibraryManager::getInstance();
    auto property = QSharedPointer<DataModel::MaterialPropertyData>::create();
    property->label = text("density");
    property->components = {7.85, 0, 0, 0, 7.85, 0, 0, 0, 7.85};
    materials.createSoftwareMat(text("钢"), text("steel"), property, {}, {}, {}, {});
    QVERIFY(materials.importMaterial(BaseModule::SoftwareLib, {1}));
    materials.createProjectMat(text("铜"), text("copper"), property, property, {}, {}, {});
    materials.deleteProjectMat(1);
    const QString written = materials.convertMaterialPropertToQString(property);
    QCOMPARE(materials.convertQStringToMaterialPropertyData(written)->components, property->components);
    // What the caller still holds outlives the library that it came from.
    const auto held = materials.getProjectMatByID(2);
    materials.initProjectMaterial();
    QCOMPARE(held->englishName, text("copper"));
    QCOMPARE(materials.getProjectMatByID(2)->englishName, text("copper"));
}

void ProcessLifeTest::keepsExamples()
{
    ExampleLibraryManager& examples = *ExampleLibraryManager::getInstance();
    const auto example = QSharedPointer<DataModel::ExampleData>::create();
    example->englishTitle = text("beam");
    examples.getExampleLibData()->exampleList = {example};
    examples.saveData();
    QCOMPARE(ExampleLibraryManager::getInstance()->getExampleLibData()->exampleList.size(), 1);
}

void ProcessLifeTest::keepsSystems()
{
    RelativeCoordinateSystemDate& systems = *RelativeCoordinateSystemDate::getInstance();
    systems.appendCoordinateSystem(new RelativeCoordinateSystem);
    double vector[3] = {1, 2, 3};
    auto* const system = new RelativeCoordinateSystem;
    system->setID(1);
    system->setName(text("local"));
    system->setOffsetCoordinate(vector, 1, 0, -1);
    systems.appendCoordinateSystem(system);
    systems.setCurrentCoordinateSystemID(1);
    systems.resetData();
    QCOMPARE(systems.getRelativeCoordinateSystemDateCount(), 1);
    systems.readConfig();
    QCOMPARE(systems.getRelativeCoordinateSystemDateCount(), 2);
    QCOMPARE(systems.getCoordinateSystemByID(1)->getName(), text("local"));
}

void ProcessLifeTest::enciphers()
{
    ConfigOption::TextCipher& cipher = *ConfigOption::TextCipher::getInstance();
    QCOMPARE(cipher.decryptData_CBC(cipher.encryptData_CBC(text("plain 文"))), text("plain 文"));
    ConfigOption::ConfigManager::getInstance()->setLanguage(text("English"));
    QCOMPARE(ConfigOption::ConfigManager::getInstance()->getLanguage(), text("English"));
}

void ProcessLifeTest::predicts()
{
    const QString source = QStringLiteral(DATAMANAGER_SOURCE_DIR);
    QVERIFY(QFile::copy(source + text("/model/mesh.onnx"), root() + text("mesher/mesh.onnx")));
    QVERIFY(QFile::copy(source + text("/samples/slivers.msh"), root() + text("temp/mesh.msh")));
    MeshQualityPredict& predict = *MeshQualityPredict::getinstance();
    predict.predict();
    const std::vector<float> scores = predict.getOutput();
    QCOMPARE(scores.size(), std::size_t(10));
    QVERIFY(scores.back() > 0.0F && scores.back() < 1.0F);
}

QTEST_GUILESS_MAIN(ProcessLifeTest)
#include "tst_processlife.moc"
