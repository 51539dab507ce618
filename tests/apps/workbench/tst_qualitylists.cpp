// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "Widgets.h"
#include "WindowTest.h"

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/project/Project.h>
#include <workbench/quality/CheckProfile.h>
#include <workbench/quality/KernelChoice.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityDock.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QFileDialog>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>

#include <algorithm>

using DataManager::MeshQualityReport;
using DataManager::SelectedDataManager;
using Metric = MeshQualityReport::Metric;
using namespace Workbench;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Gives an open file dialog a name and accepts it.
void answerWith(const char* dialogName, const QString& path)
{
    auto* const dialog = dynamic_cast<QFileDialog*>(windowNamed(dialogName));
    QVERIFY(dialog != nullptr);
    dialog->selectFile(path);
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    QMetaObject::invokeMethod(dialog, "accept");
    finishClosing();
}

} // namespace

/// Several meshes, the thresholds and the lists that are written.
class tst_QualityLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { Project::instance()->close(); }

    void choosesAmongMeshes();
    void followsWhatIsShown();
    void dropsAChosenMeshThatGoes();
    void namesTheScoredMesh();
    void checksTheThresholds_data();
    void checksTheThresholds();
    void checksWithoutAMesh();
    void selectsWhatIsOutside();
    void takesAnotherProfile();
    void refusesAProfile_data();
    void refusesAProfile();
    void keepsTheProfile();
    void writesTheWorst();
    void tellsWhatCannotBeWritten();
    void writesNothingWhenCancelled();

private:
    void open(const char* sample);
    void settle() { QTRY_VERIFY(!MeshFigures::instance()->isWorking()); }
    int add(const char* sample, const QString& name);
    QStringList row(int row) const;
    QTableWidget& table(const char* name) const { return part<QTableWidget>(*m_dock, name); }
    QString write(const char* name, const QByteArray& content)
    {
        return writeFile(m_directory.filePath(QString::fromLatin1(name)), content);
    }

    QTemporaryDir m_directory;
    std::unique_ptr<QualityDock> m_dock;
};

// A profile that cannot be read at the start is told, the built-in one counts, and the settings keep the choice.
void tst_QualityLists::initTestCase()
{
    const QString path = m_directory.filePath(QStringLiteral("gone.json"));
    QSettings().setValue(QStringLiteral("quality/profile"), path);
    Messages messages;
    QCOMPARE(CheckProfile::instance()->path(), QString());
    QCOMPARE(CheckProfile::instance()->profile()->thresholds.size(), std::size_t(6));
    QCOMPARE(messages.list, QStringList{QStringLiteral("2 The profile %1 cannot be used: cannot be read").arg(path)});
    QCOMPARE(QSettings().value(QStringLiteral("quality/profile")).toString(), path);
}

void tst_QualityLists::init()
{
    QVERIFY(Project::instance()->create());
    MeshDisplay::instance()->colourByMetric(Metric::Shape);
    MeshFigures::instance()->setWorstCount(20);
    QVERIFY(CheckProfile::instance()->choose(QString()));
    m_dock = std::make_unique<QualityDock>();
    m_dock->resize(420, 900);
    m_dock->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dock.get()));
}

void tst_QualityLists::cleanup()
{
    m_dock.reset();
}

void tst_QualityLists::open(const char* sample)
{
    QVERIFY(openMesh(samplePath(sample)) > 0);
    settle();
}

int tst_QualityLists::add(const char* sample, const QString& name)
{
    return MeshManager::instance()->addKernel(name, samplePath(sample));
}

QStringList tst_QualityLists::row(int row) const
{
    QStringList texts;
    for (int column = 0; column < table("checks").columnCount(); ++column) {
        texts << table("checks").item(row, column)->text();
    }
    return texts;
}

void tst_QualityLists::choosesAmongMeshes()
{
    const KernelChoice& choice = part<KernelChoice>(*m_dock, "kernel");
    QVERIFY(!choice.isVisible());
    const int slivers = add("slivers.msh", QStringLiteral("slivers"));
    QVERIFY(slivers > 0);
    QVERIFY(!choice.isVisible());
    const int plate = add("plate-with-hole.msh", QStringLiteral("plate"));
    QVERIFY(plate > slivers);
    QVERIFY(choice.isVisible());
    QCOMPARE(choice.count(), 3);
    QCOMPARE(choice.itemText(0), QStringLiteral("The mesh that is shown (plate)"));
    QCOMPARE(choice.itemText(1), QStringLiteral("slivers"));
    settle();
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, plate);

    QTest::keyClick(&part<KernelChoice>(*m_dock, "kernel"), Qt::Key_Down);
    QCOMPARE(choice.currentIndex(), 1);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, slivers);
    settle();
    const MeshQualityReport& report = MeshManager::instance()->mesh(slivers)->report;
    QCOMPARE(table("worst").item(0, 0)->text(), QString::number(report.tag(report.worst(Metric::Shape, 1).front())));
    // What is selected is selected in that mesh.
    click(*m_dock, "selectWorst");
    const auto items = SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(BaseModule::MeshElement);
    QCOMPARE(items.size(), 20);
    QCOMPARE(items.first().first, slivers);
}

void tst_QualityLists::followsWhatIsShown()
{
    const int slivers = add("slivers.msh", QStringLiteral("slivers"));
    const int plate = add("plate-with-hole.msh", QStringLiteral("plate"));
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, plate);
    MeshManager::instance()->showKernels({plate}, false);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, slivers);
    QCOMPARE(part<KernelChoice>(*m_dock, "kernel").itemText(0), QStringLiteral("The mesh that is shown (slivers)"));
    MeshManager::instance()->showKernels({slivers}, false);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, plate);
    // A chosen one stays, shown or not.
    MeshFigures::instance()->chooseKernel(slivers);
    QCOMPARE(part<KernelChoice>(*m_dock, "kernel").currentIndex(), 1);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, slivers);
    MeshManager::instance()->showKernels({plate}, true);
    settle();
    QCOMPARE(MeshFigures::instance()->figures().request.kernelID, slivers);
}

void tst_QualityLists::dropsAChosenMeshThatGoes()
{
    const int slivers = add("slivers.msh", QStringLiteral("slivers"));
    const int plate = add("plate-with-hole.msh", QStringLiteral("plate"));
    MeshFigures::instance()->chooseKernel(slivers);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, slivers);
    MeshManager::instance()->removeKernels({slivers});
    QCOMPARE(MeshFigures::instance()->chosenKernel(), 0);
    QVERIFY(!part<KernelChoice>(*m_dock, "kernel").isVisible());
    QTRY_COMPARE(MeshFigures::instance()->figures().request.kernelID, plate);
}

void tst_QualityLists::namesTheScoredMesh()
{
    open("slivers.msh");
    const QString alone = shown(*m_dock, "score");
    add("plate-with-hole.msh", QStringLiteral("plate"));
    settle();
    QTRY_COMPARE(shown(*m_dock, "score"), QStringLiteral("Of the mesh that was read last, slivers:\n") + alone);
    // When that mesh goes, so does its score.
    MeshManager::instance()->removeKernels({MeshManager::instance()->findKernels(QStringLiteral("slivers")).first()});
    QCOMPARE(shown(*m_dock, "score"), QStringLiteral("A mesh is scored when it is opened."));
}

// Expected as `meshquality check` counts them, here in another way: from the values in order of size.
void tst_QualityLists::checksTheThresholds_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<QString>("verdict");
    QTest::newRow("few outside") << QByteArray("graded-block.msh") << QStringLiteral("warn");
    QTest::newRow("bad") << QByteArray("slivers.msh") << QStringLiteral("fail");
}

void tst_QualityLists::checksTheThresholds()
{
    QFETCH(QByteArray, sample);
    QFETCH(QString, verdict);
    open(sample.constData());
    QCOMPARE(part<QLabel>(*m_dock, "profile").text(), QStringLiteral("Profile: default (built in)"));
    QCOMPARE(table("checks").rowCount(), 6);
    const MeshQualityReport& report = MeshFigures::instance()->figures().request.mesh->report;
    std::vector<double> shapes = report.values(Metric::Shape);
    std::sort(shapes.begin(), shapes.end());
    const auto failing = std::lower_bound(shapes.begin(), shapes.end(), 0.3) - shapes.begin();
    const double percent = 100.0 * static_cast<double>(failing) / report.elementCount();
    const QString shapeVerdict = failing == 0     ? QStringLiteral("pass")
                                 : percent <= 0.1 ? QStringLiteral("warn")
                                                  : QStringLiteral("fail");
    QCOMPARE(row(5), (QStringList{QStringLiteral("Shape"), QStringLiteral("at least 0.3"),
                                  QStringLiteral("%1 (%2 %)").arg(failing).arg(QString::number(percent, 'g', 6)),
                                  QStringLiteral("0.1 %"), shapeVerdict}));
    QCOMPARE(row(1).at(1), QStringLiteral("at most 3"));
    QVERIFY(table("checks").item(5, 4)->toolTip().contains(QStringLiteral("SAND2007-1751")));
    QCOMPARE(m_dock->findChild<QTabWidget*>()->tabText(2), QStringLiteral("Check: ") + verdict);
}

void tst_QualityLists::checksWithoutAMesh()
{
    QCOMPARE(table("checks").rowCount(), 0);
    QVERIFY(!part<QPushButton>(*m_dock, "selectOutside").isEnabled());
    QCOMPARE(m_dock->findChild<QTabWidget*>()->tabText(2), QStringLiteral("Check"));
}

void tst_QualityLists::selectsWhatIsOutside()
{
    open("slivers.msh");
    m_dock->findChild<QTabWidget*>()->setCurrentIndex(2);
    const MeshQualityReport& report = MeshFigures::instance()->figures().request.mesh->report;
    int flatShapes = 0;
    int any = 0;
    for (std::size_t i = 0; i < report.values(Metric::Shape).size(); ++i) {
        const bool isShapeBad = report.values(Metric::Shape)[i] < 0.3;
        flatShapes += isShapeBad ? 1 : 0;
        any += isShapeBad || report.values(Metric::Volume)[i] < 2.2250738585072014e-308 ||
                       report.values(Metric::EdgeRatio)[i] > 3 || report.values(Metric::AspectRatio)[i] > 3 ||
                       report.values(Metric::AspectGamma)[i] > 3 || report.values(Metric::ScaledJacobian)[i] < 0.2
                   ? 1
                   : 0;
    }
    table("checks").selectRow(5);
    click(*m_dock, "selectOutside");
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), flatShapes);
    table("checks").clearSelection();
    click(*m_dock, "selectOutside");
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), any);
    QVERIFY(any > flatShapes);
}

void tst_QualityLists::takesAnotherProfile()
{
    open("slivers.msh");
    const QString path = write("strict.json", R"({"name": "strict", "thresholds": [
        {"metric": "Shape", "minimum": 0.1, "maximum": 0.9, "allowedPercent": 50, "source": "<b>made up</b>"}]})");
    m_dock->findChild<QTabWidget*>()->setCurrentIndex(2);
    click(*m_dock, "openProfile");
    answerWith("profileDialog", path);
    QCOMPARE(CheckProfile::instance()->path(), path);
    QTRY_COMPARE(table("checks").rowCount(), 1);
    settle();
    QCOMPARE(part<QLabel>(*m_dock, "profile").text(), QStringLiteral("Profile: strict (strict.json)"));
    QCOMPARE(row(0).at(1), QStringLiteral("0.1 to 0.9"));
    QCOMPARE(table("checks").item(0, 0)->toolTip(), QStringLiteral("<qt>&lt;b&gt;made up&lt;/b&gt;</qt>"));
    click(*m_dock, "builtInProfile");
    QTRY_COMPARE(table("checks").rowCount(), 6);
    QVERIFY(!part<QPushButton>(*m_dock, "builtInProfile").isEnabled());
    QVERIFY(CheckProfile::instance()->choose(
        write("lenient.json", R"({"thresholds": [{"metric": "Shape", "minimum": 0, "maximum": 1}]})")));
    QTRY_COMPARE(m_dock->findChild<QTabWidget*>()->tabText(2), QStringLiteral("Check: pass"));
}

void tst_QualityLists::refusesAProfile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("{") << QStringLiteral("unterminated object at byte 1");
    QTest::newRow("no thresholds") << QByteArray("{}") << QStringLiteral("has no list of thresholds");
    QTest::newRow("no such metric") << QByteArray(R"({"thresholds": [{"metric": "Beauty", "minimum": 1}]})")
                                    << QStringLiteral("there is no metric 'Beauty'");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("cannot be read");
}

void tst_QualityLists::refusesAProfile()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    open("slivers.msh");
    const QString path = m_directory.filePath(QStringLiteral("bad.json"));
    QFile::remove(path);
    if (!content.isEmpty()) {
        write("bad.json", content);
    }
    Messages messages;
    QVERIFY(!CheckProfile::instance()->choose(path));
    QCOMPARE(messages.list, QStringList{QStringLiteral("2 The profile %1 cannot be used: %2").arg(path, reason)});
    QCOMPARE(table("checks").rowCount(), 6);
    QCOMPARE(CheckProfile::instance()->path(), QString());
}

void tst_QualityLists::keepsTheProfile()
{
    const QString path = write("kept.json", R"({"thresholds": [{"metric": "Volume", "minimum": 0}]})");
    QVERIFY(CheckProfile::instance()->choose(path));
    QCOMPARE(CheckProfile::instance()->title(), QStringLiteral("kept.json"));
    QCOMPARE(QSettings().value(QStringLiteral("quality/profile")).toString(), path);
    QVERIFY(CheckProfile::instance()->choose(QString()));
    QCOMPARE(QSettings().value(QStringLiteral("quality/profile")).toString(), QString());
}

void tst_QualityLists::writesTheWorst()
{
    open("slivers.msh");
    MeshFigures::instance()->setWorstCount(3);
    settle();
    const QString path = m_directory.filePath(QStringLiteral("worst.csv"));
    click(*m_dock, "saveWorst");
    answerWith("saveDialog", path);
    const QList<QByteArray> lines = contentOf(path).split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines[0], QByteArray("file,element,region,line,x,y,z,Volume,EdgeRatio,AspectRatio,AspectGamma,Condition,"
                                  "Jacobian,RadiusRatio,RelativeSizeSquared,ScaledJacobian,Shape,ShapeAndSize"));
    const MeshQualityReport& report = MeshFigures::instance()->figures().request.mesh->report;
    const std::vector<int> worst = report.worst(Metric::Shape, 3);
    for (int i = 0; i < 3; ++i) {
        const int element = worst[static_cast<std::size_t>(i)];
        const QList<QByteArray> cells = lines[i + 1].split(',');
        QCOMPARE(cells.size(), 18);
        QCOMPARE(cells[0], QByteArray("\"slivers\""));
        QCOMPARE(cells[1].toInt(), report.tag(element));
        QCOMPARE(cells[3].toLongLong(), report.line(element));
        QCOMPARE(cells[4].toDouble(), report.centroid(element)[0]);
        QCOMPARE(cells[16].toDouble(), report.values(Metric::Shape)[static_cast<std::size_t>(element)]);
    }
}

void tst_QualityLists::tellsWhatCannotBeWritten()
{
    open("slivers.msh");
    const QString path = m_directory.filePath(QStringLiteral("no/such/worst.csv"));
    Messages messages;
    click(*m_dock, "saveWorst");
    // As when the directory goes while the dialog is open.
    Q_EMIT dynamic_cast<QFileDialog*>(windowNamed("saveDialog"))->fileSelected(path);
    QCOMPARE(messages.list, QStringList{QStringLiteral("2 The list could not be written to %1.").arg(path)});
    QTest::keyClick(windowNamed("saveDialog"), Qt::Key_Escape);
    finishClosing();
}

void tst_QualityLists::writesNothingWhenCancelled()
{
    open("slivers.msh");
    click(*m_dock, "saveWorst");
    QWidget* const dialog = windowNamed("saveDialog");
    QVERIFY(dialog != nullptr);
    QTest::keyClick(dialog, Qt::Key_Escape);
    finishClosing();
    QVERIFY(windowNamed("saveDialog") == nullptr);
    m_dock->findChild<QTabWidget*>()->setCurrentIndex(2);
    click(*m_dock, "openProfile");
    QTest::keyClick(windowNamed("profileDialog"), Qt::Key_Escape);
    finishClosing();
    QCOMPARE(CheckProfile::instance()->path(), QString());
}

WORKBENCH_TEST_MAIN(tst_QualityLists)
#include "tst_qualitylists.moc"
