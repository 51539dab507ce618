// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Draws the states of the 3-D view and compares them with the pictures in pictures/. After the look was changed on
// purpose, WORKBENCH_RENEW_PICTURES=1 in the environment replaces them; look at each before it is committed.

#include "PictureComparison.h"
#include "Samples.h"
#include "ViewFixture.h"
#include "WindowTest.h"

#include <workbench/coordinates/CoordinateSystems.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/mesh/MeshDisplay.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <vtkCamera.h>

#include <functional>
#include <map>

using DataManager::SelectedDataManager;
using Metric = DataManager::MeshQualityReport::Metric;
using namespace Workbench;

namespace {

using Change = std::function<void()>;

MeshDisplay& display()
{
    return *MeshDisplay::instance();
}

int kernel()
{
    return MeshManager::instance()->findKernels(QString()).value(0);
}

int volume(const char* name)
{
    return GeometryManager::instance()->findComponents(QString::fromLatin1(name)).value(0);
}

void select(BaseModule::SelectModel model, const QList<QPair<int, int>>& items)
{
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(model);
    SelectedDataManager::getInstance()->addSelectedTargetList(model, items);
}

int face(const char* volumeName, const char* name)
{
    GeometryManager* geometry = GeometryManager::instance();
    for (int faceID : geometry->getFaces(volume(volumeName))) {
        if (geometry->getFaceName(volume(volumeName), faceID) == QLatin1String(name)) {
            return faceID;
        }
    }
    return 0;
}

void selectFace()
{
    select(BaseModule::GeometryFace, {{volume("foot"), face("foot", "mounting face")}});
}

/// Those of every seventh place in the first volume's half of the file.
QList<QPair<int, int>> someElements(int from, int to)
{
    QList<QPair<int, int>> elements;
    const auto mesh = MeshManager::instance()->mesh(kernel());
    for (int place = from; place < to; place += 7) {
        elements.append({kernel(), mesh->elementNumbers.number(place)});
    }
    return elements;
}

void selectNodes(std::initializer_list<int> nodes)
{
    QList<QPair<int, int>> items;
    for (int node : nodes) {
        items.append({kernel(), node});
    }
    select(BaseModule::MeshNode, items);
}

int makeSystem(const char* name, const Vector3& offset, const Vector3& angles)
{
    return CoordinateSystems::instance()->create(0, {QString::fromLatin1(name), BaseModule::Cartesian, offset, angles});
}

void makeSystems()
{
    makeSystem("A", {40, 0, 60}, {0, 0, 0.5});
    makeSystem("B", {-50, 0, 40}, {1.2, 0, 0});
    CoordinateSystems::instance()->showAxes(true);
}

const std::map<QByteArray, Change>& states()
{
    static const std::map<QByteArray, Change> all = {
        {"mesh", [] {}},
        {"faces", [] { display().showEdges(false); }},
        {"side", [] { ViewCommands::instance()->lookFrom(ViewCommands::Direction::Front); }},
        {"volume-hidden", [] { GeometryManager::instance()->showComponents({volume("ring")}, false); }},
        {"volume-selected",
         [] {
             select(BaseModule::GeometryComponent, {{volume("bush"), -1}});
         }},
        {"face-selected",
         [] {
             ViewCommands::instance()->lookFrom(ViewCommands::Direction::Bottom);
             selectFace();
         }},
        {"elements-selected", [] { select(BaseModule::MeshElement, someElements(0, 1500)); }},
        {"nodes-selected",
         [] {
             selectNodes({1, 40, 70, 110, 150, 200, 250, 300});
         }},
        {"group-selected",
         [] {
             select(BaseModule::MeshGroup, {{kernel(), 1}});
         }},
        {"metric", [] { display().colourByMetric(Metric::Shape); }},
        {"transparent", [] { display().setTransparency(0.6); }},
        {"axes", makeSystems},
    };
    return all;
}

/// What is wrong in a picture of that state, small as it may be.
struct Fault
{
    QByteArray state;
    std::function<void(vtkCamera& camera)> make;
};

const std::map<QByteArray, Fault>& faults()
{
    const auto clear = [](vtkCamera&) { SelectedDataManager::getInstance()->clearAllSelectedTarget(); };
    static const std::map<QByteArray, Fault> all = {
        {"camera turned", {"mesh", [](vtkCamera& camera) { camera.Azimuth(2); }}},
        {"camera turned, no edges", {"faces", [](vtkCamera& camera) { camera.Azimuth(3); }}},
        {"camera nearer",
         {"mesh", [](vtkCamera& camera) { camera.SetParallelScale(camera.GetParallelScale() * 0.97); }}},
        {"no edges", {"mesh", [](vtkCamera&) { display().showEdges(false); }}},
        {"volume missing",
         {"side", [](vtkCamera&) { GeometryManager::instance()->showComponents({volume("bush")}, false); }}},
        {"volume not highlighted", {"volume-selected", clear}},
        {"face not highlighted", {"face-selected", clear}},
        {"another face highlighted",
         {"face-selected",
          [](vtkCamera&) {
              SelectedDataManager::getInstance()->clearAllSelectedTarget();
              select(BaseModule::GeometryFace, {{volume("bush"), face("bush", "bore")}});
          }}},
        {"elements not highlighted", {"elements-selected", clear}},
        {"a third of the elements missing",
         {"elements-selected",
          [](vtkCamera&) {
              SelectedDataManager::getInstance()->removeSelectedTargetList(BaseModule::MeshElement,
                                                                           someElements(0, 500));
          }}},
        {"half of the nodes not highlighted",
         {"nodes-selected",
          [](vtkCamera&) {
              SelectedDataManager::getInstance()->clearAllSelectedTarget();
              selectNodes({70, 110, 150, 200});
          }}},
        {"group not highlighted", {"group-selected", clear}},
        {"another metric", {"metric", [](vtkCamera&) { display().colourByMetric(Metric::RadiusRatio); }}},
        {"less transparent", {"transparent", [](vtkCamera&) { display().setTransparency(0.5); }}},
        {"no axes", {"axes", [](vtkCamera&) { CoordinateSystems::instance()->showAxes(false); }}},
        {"axes of one system missing", {"axes", [](vtkCamera&) { CoordinateSystems::instance()->showAxes(1, false); }}},
        {"axes turned",
         {"axes",
          [](vtkCamera&) {
              CoordinateSystems::instance()->change(
                  1, {QStringLiteral("A"), BaseModule::Cartesian, {40, 0, 60}, {0, 0, 0}});
          }}},
    };
    return all;
}

QString storedPath(const QByteArray& state)
{
    return QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/apps/workbench/pictures/%1.png")
        .arg(QString::fromLatin1(state));
}

bool isRenewing()
{
    return qEnvironmentVariableIsSet("WORKBENCH_RENEW_PICTURES");
}

} // namespace

class tst_ViewPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void looksAsBefore_data();
    void looksAsBefore();
    void everyPictureHasAState();
    void statesDiffer_data();
    void statesDiffer();
    void faultsAreSeen_data();
    void faultsAreSeen();
    void comparison();

private:
    std::unique_ptr<ViewFixture> m_view;
};

void tst_ViewPictures::initTestCase()
{
    m_view = std::make_unique<ViewFixture>(QSize(240, 180));
    QVERIFY(m_view->isReady());
    QVERIFY(openMesh(samplePath("bearing-housing.msh")) > 0);
}

void tst_ViewPictures::init()
{
    SelectedDataManager::getInstance()->clearAllSelectedTarget();
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryFace);
    GeometryManager::instance()->showComponents(GeometryManager::instance()->findComponents(QString()), true);
    display().colourByFace();
    display().setTransparency(0);
    display().showEdges(true);
    CoordinateSystems::instance()->clearProject();
    CoordinateSystems::instance()->showAxes(false);
    CoordinateSystems::instance()->showAxes(1, true);
    ViewCommands::instance()->lookFrom(ViewCommands::Direction::Isometric);
}

void tst_ViewPictures::cleanupTestCase()
{
    m_view.reset();
}

void tst_ViewPictures::looksAsBefore_data()
{
    QTest::addColumn<QByteArray>("state");
    for (const auto& entry : states()) {
        QTest::newRow(entry.first.constData()) << entry.first;
    }
}

void tst_ViewPictures::looksAsBefore()
{
    QFETCH(QByteArray, state);
    states().at(state)();
    const QImage picture = m_view->picture();
    QCOMPARE(picture.size(), QSize(240, 180));
    if (isRenewing()) {
        QVERIFY(picture.convertToFormat(QImage::Format_RGB32).save(storedPath(state)));
    }
    const PictureDifference difference = differenceOf(QImage(storedPath(state)), picture);
    if (!difference.isSmall()) {
        picture.save(QString::fromLatin1(state) + QStringLiteral(".png"));
    }
    QVERIFY2(difference.isSmall(), qPrintable(difference.text()));
}

void tst_ViewPictures::everyPictureHasAState()
{
    QStringList expected;
    for (const auto& entry : states()) {
        expected.append(QString::fromLatin1(entry.first) + QStringLiteral(".png"));
    }
    QCOMPARE(QFileInfo(storedPath("mesh")).dir().entryList(QDir::Files, QDir::Name), expected);
}

void tst_ViewPictures::statesDiffer_data()
{
    looksAsBefore_data();
}

void tst_ViewPictures::statesDiffer()
{
    QFETCH(QByteArray, state);
    for (const auto& other : states()) {
        const PictureDifference difference = differenceOf(QImage(storedPath(state)), QImage(storedPath(other.first)));
        QVERIFY2(difference.isSmall() == (other.first == state),
                 qPrintable(QString::fromLatin1(other.first) + QLatin1Char(' ') + difference.text()));
    }
}

void tst_ViewPictures::faultsAreSeen_data()
{
    QTest::addColumn<QByteArray>("fault");
    for (const auto& entry : faults()) {
        QTest::newRow(entry.first.constData()) << entry.first;
    }
}

void tst_ViewPictures::faultsAreSeen()
{
    QFETCH(QByteArray, fault);
    const Fault& made = faults().at(fault);
    states().at(made.state)();
    m_view->picture();
    made.make(*m_view->renderer().GetActiveCamera());
    const PictureDifference difference = differenceOf(QImage(storedPath(made.state)), m_view->picture());
    QVERIFY2(!difference.isSmall(), qPrintable(difference.text()));
}

// By hand: lines next to where they were are alike, a patch of another colour is not.
void tst_ViewPictures::comparison()
{
    QImage grey(100, 100, QImage::Format_RGB32);
    grey.fill(qRgb(100, 100, 100));
    QVERIFY(differenceOf(grey, grey).isSmall());
    QVERIFY(!differenceOf(grey, QImage()).isSmall());
    QVERIFY(!differenceOf(grey, grey.scaled(100, 99)).isSmall());
    QImage lighter = grey;
    lighter.fill(qRgb(103, 103, 103));
    QCOMPARE(differenceOf(grey, lighter).mean, 3.0);
    QCOMPARE(differenceOf(grey, lighter).strange, 0.0);
    QImage line = grey;
    QImage lineBeside = grey;
    QImage lineFarOff = grey;
    for (int x = 0; x < 30; ++x) {
        line.setPixel(x, 20, qRgb(0, 0, 0));
        lineBeside.setPixel(x, 21, qRgb(0, 0, 0));
        lineFarOff.setPixel(x, 23, qRgb(0, 0, 0));
    }
    QCOMPARE(differenceOf(line, lineBeside).strange, 0.0);
    QCOMPARE(differenceOf(line, lineBeside).mean, 60.0 * 100 / 10000);
    QVERIFY(differenceOf(line, lineBeside).isSmall());
    QCOMPARE(differenceOf(line, lineFarOff).strange, 30.0 / 10000);
    QCOMPARE(differenceOf(grey, line).strange, 30.0 / 10000); // whichever of the two has something more
    QCOMPARE(differenceOf(line, grey).strange, 30.0 / 10000);
    QVERIFY(!differenceOf(line, lineFarOff).isSmall());
}

WORKBENCH_TEST_MAIN(tst_ViewPictures)
#include "tst_viewpictures.moc"
