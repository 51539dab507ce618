// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/project/Project.h>
#include <workbench/quality/HistogramView.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityDock.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>
#include <QTranslator>

#include <algorithm>
#include <cmath>

using DataManager::MeshQualityReport;
using DataManager::SelectedDataManager;
using Metric = MeshQualityReport::Metric;
using namespace Workbench;

namespace {

// The bin of a value, by another road than the program's: from the bounds of the histogram.
int binOf(double value, const MeshQualityReport::Histogram& histogram)
{
    const int count = static_cast<int>(histogram.counts.size());
    const double width = histogram.upper / 2 - histogram.lower / 2;
    const double share = width > 0 ? (value / 2 - histogram.lower / 2) / width : 0;
    return std::min(static_cast<int>(share * count), count - 1);
}

QSet<int> selectedElements(int kernelID)
{
    QSet<int> elements;
    const auto pairs = SelectedDataManager::getInstance()->getSelectedDataBySelectedModel(BaseModule::MeshElement);
    for (const QPair<int, int>& pair : pairs) {
        elements.insert(pair.first == kernelID ? pair.second : -1);
    }
    return elements;
}

// Each word is a translation of itself.
class Shouting : public QTranslator
{
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_QualityDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase() { Project::instance()->close(); }

    void isEmptyWithoutMesh();
    void choosesTheMetric();
    void showsTheSummary();
    void barsSelectTheirElements_data();
    void barsSelectTheirElements();
    void controlAdds();
    void barsLeaveADialogAlone();
    void barsTellTheirBounds();
    void draggedBarsAreMarked();
    void listsTheWorst_data();
    void listsTheWorst();
    void looksAtTheWorst();
    void selectsTheWorst();
    void showsTheRegions();
    void showsInvertedElements();
    void allValuesAlike();
    void noFiniteValue();
    void followsTheMetricWhileWorking();
    void losesFiguresWithTheMesh();
    void followsTheLanguage();

private:
    void open(const QString& path);
    void colour(Metric metric);
    const MeshQualityReport& report() const { return m_mesh->report; }
    QSet<int> elementsOf(Metric metric, int first, int last) const;
    QTableWidget* table(const char* name) const { return m_dock->findChild<QTableWidget*>(QString::fromLatin1(name)); }
    QString text(const char* tableName, int row, int column) const
    {
        return table(tableName)->item(row, column)->text();
    }
    void drag(int from, int to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QPoint place(int bin) const { return m_histogram->column(bin).center(); }

    QTemporaryDir m_directory;
    std::unique_ptr<QualityDock> m_dock;
    HistogramView* m_histogram = nullptr;
    QSharedPointer<const KernelMesh> m_mesh;
    int m_kernelID = 0;
};

void tst_QualityDock::init()
{
    QVERIFY(Project::instance()->create());
    SelectedDataManager::getInstance()->setSelectModelInMainWindow(BaseModule::GeometryComponent);
    MeshDisplay::instance()->colourByMetric(Metric::ScaledJacobian);
    MeshFigures::instance()->setWorstCount(20);
    m_dock = std::make_unique<QualityDock>();
    m_dock->resize(420, 800);
    m_dock->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dock.get()));
    m_histogram = m_dock->findChild<HistogramView*>();
}

void tst_QualityDock::cleanup()
{
    m_dock.reset();
    m_mesh.reset();
}

void tst_QualityDock::open(const QString& path)
{
    m_kernelID = openMesh(path);
    QVERIFY(m_kernelID > 0);
    m_mesh = MeshManager::instance()->mesh(m_kernelID);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    QCOMPARE(MeshFigures::instance()->figures().request.kernelID, m_kernelID);
}

void tst_QualityDock::colour(Metric metric)
{
    MeshDisplay::instance()->colourByMetric(metric);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    QCOMPARE(MeshFigures::instance()->figures().request.metric, metric);
}

QSet<int> tst_QualityDock::elementsOf(Metric metric, int first, int last) const
{
    const MeshQualityReport::Histogram histogram = report().histogram(metric, 30);
    QSet<int> elements;
    for (int i = 0; i < report().elementCount(); ++i) {
        const double value = report().values(metric)[static_cast<std::size_t>(i)];
        const int bin = std::isfinite(value) ? binOf(value, histogram) : -1;
        if (bin >= first && bin <= last) {
            elements.insert(report().tag(i));
        }
    }
    return elements;
}

void tst_QualityDock::drag(int from, int to, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(m_histogram, Qt::LeftButton, modifiers, place(from));
    if (to != from) {
        QTest::mouseMove(m_histogram, place((from + to) / 2));
        QTest::mouseMove(m_histogram, place(to));
    }
    QTest::mouseRelease(m_histogram, Qt::LeftButton, modifiers, place(to));
}

void tst_QualityDock::isEmptyWithoutMesh()
{
    QVERIFY(m_histogram->histogram().counts.empty());
    QTest::mouseClick(m_histogram, Qt::LeftButton);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    QCOMPARE(table("worst")->rowCount(), 0);
    QCOMPARE(table("regions")->rowCount(), 0);
    QVERIFY(m_dock->findChild<QLabel*>(QStringLiteral("summary"))->text().isEmpty());
    QVERIFY(!m_dock->findChild<QPushButton*>(QStringLiteral("selectWorst"))->isEnabled());
}

void tst_QualityDock::choosesTheMetric()
{
    auto* choice = m_dock->findChild<QComboBox*>(QStringLiteral("metric"));
    const MeshDisplay* display = MeshDisplay::instance();
    QCOMPARE(choice->count(), MeshQualityReport::metricCount + 1);
    QCOMPARE(choice->currentText(), QStringLiteral("ScaledJacobian"));
    QTest::keyClick(choice, Qt::Key_Down);
    QCOMPARE(display->metric(), Metric::Shape);
    QTest::keyClick(choice, Qt::Key_Home);
    QVERIFY(!display->isColouredByMetric());
    QTest::keyClick(choice, Qt::Key_Down);
    QVERIFY(display->isColouredByMetric());
    QCOMPARE(display->metric(), Metric::Volume);
    // It follows what others choose, too, and does not answer them.
    QSignalSpy changes(display, &MeshDisplay::signal_colouringChanged);
    MeshDisplay::instance()->colourByMetric(Metric::Condition);
    QCOMPARE(choice->currentText(), QStringLiteral("Condition"));
    MeshDisplay::instance()->colourByFace();
    QCOMPARE(choice->currentIndex(), 0);
    QCOMPARE(changes.size(), 2);
}

void tst_QualityDock::showsTheSummary()
{
    open(samplePath("slivers.msh"));
    colour(Metric::EdgeRatio);
    const QString shown = m_dock->findChild<QLabel*>(QStringLiteral("summary"))->text();
    const MeshQualityReport::Summary s = report().summary(Metric::EdgeRatio);
    for (double value :
         {s.minimum, s.percentile1, s.percentile5, s.median, s.mean, s.percentile95, s.percentile99, s.maximum}) {
        QVERIFY2(shown.contains(QStringLiteral("<b>%1</b>").arg(QString::number(value, 'g', 6))), qPrintable(shown));
    }
    QVERIFY(shown.contains(QStringLiteral("<b>0 / 0</b>")));
    // Coloured by face, the figures stay those of the metric chosen last.
    MeshDisplay::instance()->colourByFace();
    QCOMPARE(m_dock->findChild<QLabel*>(QStringLiteral("summary"))->text(), shown);
}

void tst_QualityDock::barsSelectTheirElements_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<int>("metric");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    const auto row = [](const char* name, const char* sample, Metric metric, int from, int to) {
        QTest::newRow(name) << samplePath(sample) << static_cast<int>(metric) << from << to;
    };
    row("the first", "slivers.msh", Metric::ScaledJacobian, 0, 0);
    row("the last", "slivers.msh", Metric::ScaledJacobian, 29, 29);
    row("one within", "slivers.msh", Metric::Shape, 13, 13);
    row("to the right", "bearing-housing.msh", Metric::Shape, 4, 11);
    row("to the left", "bearing-housing.msh", Metric::AspectRatio, 9, 3);
    row("all", "thin-walled.msh", Metric::Volume, 0, 29);
}

void tst_QualityDock::barsSelectTheirElements()
{
    QFETCH(QString, sample);
    QFETCH(int, metric);
    QFETCH(int, from);
    QFETCH(int, to);
    open(sample);
    colour(static_cast<Metric>(metric));
    drag(from, to);
    const int first = std::min(from, to);
    const int last = std::max(from, to);
    const QSet<int> expected = elementsOf(static_cast<Metric>(metric), first, last);
    QCOMPARE(SelectedDataManager::getInstance()->getSelectModel(), BaseModule::MeshElement);
    QCOMPARE(selectedElements(m_kernelID), expected);
    int count = 0;
    for (int bin = first; bin <= last; ++bin) {
        count += report().histogram(static_cast<Metric>(metric), 30).counts[static_cast<std::size_t>(bin)];
    }
    QVERIFY(count > 0);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), count);
}

void tst_QualityDock::controlAdds()
{
    open(samplePath("slivers.msh"));
    drag(2, 2);
    drag(20, 22, Qt::ControlModifier);
    QSet<int> expected = elementsOf(Metric::ScaledJacobian, 2, 2);
    expected += elementsOf(Metric::ScaledJacobian, 20, 22);
    QCOMPARE(selectedElements(m_kernelID), expected);
    drag(5, 5);
    QCOMPARE(selectedElements(m_kernelID), elementsOf(Metric::ScaledJacobian, 5, 5));
    // Outside of the bars counts the nearest; other buttons do nothing.
    QTest::mouseClick(m_histogram, Qt::RightButton, Qt::NoModifier, place(9));
    QCOMPARE(selectedElements(m_kernelID), elementsOf(Metric::ScaledJacobian, 5, 5));
    QTest::mouseClick(m_histogram, Qt::LeftButton, Qt::NoModifier, QPoint(0, 50));
    QCOMPARE(selectedElements(m_kernelID), elementsOf(Metric::ScaledJacobian, 0, 0));
}

void tst_QualityDock::barsLeaveADialogAlone()
{
    open(samplePath("slivers.msh"));
    SelectedDataManager* selection = SelectedDataManager::getInstance();
    selection->setSelectModelInDialog(BaseModule::GeometryFace);
    drag(0, 29);
    QCOMPARE(selection->getDataCount(), 0);
    QCOMPARE(selection->getSelectModel(), BaseModule::GeometryFace);
    selection->setSwitchSelectModelEnable(true);
    drag(0, 29);
    QCOMPARE(selection->getDataCount(), report().elementCount());
}

void tst_QualityDock::barsTellTheirBounds()
{
    open(samplePath("slivers.msh"));
    const MeshQualityReport::Histogram histogram = report().histogram(Metric::ScaledJacobian, 30);
    QHelpEvent help(QEvent::ToolTip, place(0), m_histogram->mapToGlobal(place(0)));
    QApplication::sendEvent(m_histogram, &help);
    const double upper = histogram.lower + (histogram.upper - histogram.lower) / 30;
    const QString expected = QStringLiteral("%1 to %2: %3 elements");
    QVERIFY2(QToolTip::text().startsWith(
                 expected.arg(QString::number(histogram.lower, 'g', 6), QString::number(upper, 'g', 6))
                     .arg(histogram.counts[0])),
             qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void tst_QualityDock::draggedBarsAreMarked()
{
    open(samplePath("slivers.msh"));
    const auto orange = [this] { return m_histogram->grab().toImage().pixelColor(place(10)) != QColor(Qt::white); };
    const QImage before = m_histogram->grab().toImage();
    QTest::mousePress(m_histogram, Qt::LeftButton, Qt::NoModifier, place(8));
    QTest::mouseMove(m_histogram, place(12));
    QVERIFY(orange());
    QVERIFY(m_histogram->grab().toImage() != before);
    // Another metric, chosen while the button is down: these bars are gone, and letting go selects nothing.
    colour(Metric::Shape);
    QTest::mouseRelease(m_histogram, Qt::LeftButton, Qt::NoModifier, place(12));
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
}

void tst_QualityDock::listsTheWorst_data()
{
    QTest::addColumn<int>("metric");
    QTest::addColumn<int>("count");
    QTest::newRow("smaller is worse") << static_cast<int>(Metric::Shape) << 20;
    QTest::newRow("larger is worse") << static_cast<int>(Metric::AspectRatio) << 7;
    QTest::newRow("one") << static_cast<int>(Metric::Volume) << 1;
    QTest::newRow("most") << static_cast<int>(Metric::Condition) << 1000;
}

void tst_QualityDock::listsTheWorst()
{
    QFETCH(int, metric);
    QFETCH(int, count);
    open(samplePath("bearing-housing.msh"));
    colour(static_cast<Metric>(metric));
    m_dock->findChild<QSpinBox*>()->setValue(count);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    const std::vector<int> worst = report().worst(static_cast<Metric>(metric), count);
    QCOMPARE(table("worst")->rowCount(), count);
    for (int row = 0; row < count; ++row) {
        const int element = worst[static_cast<std::size_t>(row)];
        const double value = report().values(static_cast<Metric>(metric))[static_cast<std::size_t>(element)];
        QCOMPARE(text("worst", row, 0), QString::number(report().tag(element)));
        QCOMPARE(text("worst", row, 1), report().groupNames().value(report().physicalTag(element)));
        QCOMPARE(text("worst", row, 2), QString::number(value, 'g', 6));
    }
}

void tst_QualityDock::looksAtTheWorst()
{
    open(samplePath("bearing-housing.msh"));
    QTableWidget* list = table("worst");
    const std::vector<int> worst = report().worst(Metric::ScaledJacobian, 20);
    QSignalSpy looks(MeshDisplay::instance(), &MeshDisplay::signal_focusElement);
    const QPoint third = list->visualItemRect(list->item(2, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, third);
    QCOMPARE(looks.size(), 0);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, third);
    QCOMPARE(looks.size(), 1);
    QCOMPARE(looks[0], (QVariantList{m_kernelID, report().tag(worst[2])}));
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(looks.size(), 2);
    QCOMPARE(looks[1], (QVariantList{m_kernelID, report().tag(worst[3])}));
}

void tst_QualityDock::selectsTheWorst()
{
    open(samplePath("slivers.msh"));
    auto* button = m_dock->findChild<QPushButton*>(QStringLiteral("selectWorst"));
    const std::vector<int> worst = report().worst(Metric::ScaledJacobian, 20);
    QTest::mouseClick(button, Qt::LeftButton);
    QSet<int> expected;
    for (int element : worst) {
        expected.insert(report().tag(element));
    }
    QCOMPARE(selectedElements(m_kernelID), expected);
    table("worst")->selectRow(4);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(selectedElements(m_kernelID), QSet<int>{report().tag(worst[4])});
}

void tst_QualityDock::showsTheRegions()
{
    open(samplePath("bearing-housing.msh"));
    colour(Metric::RadiusRatio);
    const std::vector<MeshQualityReport::Region> regions = report().regions();
    QCOMPARE(table("regions")->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        const MeshQualityReport::Region& region = regions[static_cast<std::size_t>(row)];
        const MeshQualityReport::Summary& s = region.summaries[static_cast<std::size_t>(Metric::RadiusRatio)];
        QStringList expected{region.name, QString::number(region.elementCount)};
        for (double value :
             {s.minimum, s.percentile1, s.percentile5, s.median, s.mean, s.percentile95, s.percentile99, s.maximum}) {
            expected << QString::number(value, 'g', 6);
        }
        expected << QStringLiteral("0") << QStringLiteral("0") << QStringLiteral("0");
        QStringList shown;
        for (int column = 0; column < table("regions")->columnCount(); ++column) {
            shown << text("regions", row, column);
        }
        QCOMPARE(shown, expected);
    }
}

// Beside a sound element an inverted one, which has no Shape, and a flat one. Their group has no name.
void tst_QualityDock::showsInvertedElements()
{
    open(writeFile(m_directory.filePath(QStringLiteral("bad.msh")),
                   "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n5\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n5 1 1 0\n"
                   "$EndNodes\n$Elements\n3\n11 4 2 7 1 1 2 3 4\n12 4 2 7 1 1 3 2 4\n13 4 2 7 1 1 2 3 5\n"
                   "$EndElements\n"));
    colour(Metric::Shape);
    const MeshQualityReport::Summary s = report().summary(Metric::Shape);
    QCOMPARE(s.nonFinite, 1);
    const QString shown = m_dock->findChild<QLabel*>(QStringLiteral("summary"))->text();
    QVERIFY2(shown.contains(QStringLiteral("Not finite</td><td align=right><b>1</b>")), qPrintable(shown));
    QVERIFY2(shown.contains(QStringLiteral("<b>1 / 1</b>")), qPrintable(shown));
    QCOMPARE(text("worst", 0, 0), QStringLiteral("12"));
    QCOMPARE(text("worst", 0, 1), QStringLiteral("7"));
    QCOMPARE(text("worst", 0, 2), QStringLiteral("nan"));
    QCOMPARE(text("worst", 1, 0), QStringLiteral("13"));
    QCOMPARE(text("regions", 0, 10) + text("regions", 0, 11) + text("regions", 0, 12), QStringLiteral("111"));
    // What has no value is in no bar.
    drag(0, 29);
    QCOMPARE(selectedElements(m_kernelID), (QSet<int>{11, 13}));
}

void tst_QualityDock::allValuesAlike()
{
    open(writeFile(m_directory.filePath(QStringLiteral("one.msh")),
                   "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n4\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n$EndNodes\n"
                   "$Elements\n1\n5 4 2 1 1 1 2 3 4\n$EndElements\n"));
    drag(1, 29);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    drag(0, 0);
    QCOMPARE(selectedElements(m_kernelID), QSet<int>{5});
}

void tst_QualityDock::noFiniteValue()
{
    open(writeFile(m_directory.filePath(QStringLiteral("inverted.msh")),
                   "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n4\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n$EndNodes\n"
                   "$Elements\n1\n5 4 2 1 1 1 3 2 4\n$EndElements\n"));
    colour(Metric::Shape);
    QVERIFY(m_histogram->histogram().counts.empty());
    QVERIFY(!m_histogram->grab().isNull());
    QTest::mouseClick(m_histogram, Qt::LeftButton);
    QCOMPARE(SelectedDataManager::getInstance()->getDataCount(), 0);
    QCOMPARE(text("worst", 0, 2), QStringLiteral("nan"));
}

void tst_QualityDock::followsTheMetricWhileWorking()
{
    open(samplePath("bearing-housing.msh"));
    MeshDisplay::instance()->colourByMetric(Metric::Volume);
    MeshDisplay::instance()->colourByMetric(Metric::EdgeRatio);
    MeshFigures::instance()->setWorstCount(3);
    MeshDisplay::instance()->colourByMetric(Metric::Jacobian);
    QTRY_COMPARE(MeshFigures::instance()->figures().request.metric, Metric::Jacobian);
    QTRY_COMPARE(table("worst")->rowCount(), 3);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    QCOMPARE(text("worst", 0, 0), QString::number(report().tag(report().worst(Metric::Jacobian, 1).front())));
}

void tst_QualityDock::losesFiguresWithTheMesh()
{
    open(samplePath("slivers.msh"));
    QCOMPARE(table("worst")->rowCount(), 20);
    MeshDisplay::instance()->colourByMetric(Metric::Volume); // figures of the mesh are on their way
    MeshManager::instance()->removeKernels({m_kernelID});
    QCOMPARE(table("worst")->rowCount(), 0);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    isEmptyWithoutMesh();
}

void tst_QualityDock::followsTheLanguage()
{
    open(samplePath("slivers.msh"));
    Shouting translator;
    QApplication::installTranslator(&translator);
    QTRY_COMPARE(m_dock->windowTitle(), QStringLiteral("QUALITY"));
    QCOMPARE(m_dock->findChild<QComboBox*>(QStringLiteral("metric"))->itemText(0), QStringLiteral("COLOUR BY FACE"));
    QCOMPARE(m_dock->findChild<QTabWidget*>()->tabText(1), QStringLiteral("REGIONS"));
    QCOMPARE(table("regions")->horizontalHeaderItem(0)->text(), QStringLiteral("REGION"));
    QCOMPARE(table("worst")->horizontalHeaderItem(2)->text(), QStringLiteral("VALUE"));
    QCOMPARE(m_dock->findChild<QPushButton*>(QStringLiteral("selectWorst"))->text(), QStringLiteral("SELECT"));
    QVERIFY(m_dock->findChild<QLabel*>(QStringLiteral("summary"))->text().contains(QStringLiteral("MEDIAN")));
    QApplication::removeTranslator(&translator);
    QTRY_COMPARE(m_dock->windowTitle(), QStringLiteral("Quality"));
}

WORKBENCH_TEST_MAIN(tst_QualityDock)
#include "tst_qualitydock.moc"
