// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "WindowTest.h"

#include <workbench/quality/BarChart.h>

#include <cstdlib>

using namespace Workbench;

namespace {

const QColor red(200, 0, 0);
const QColor blue(0, 0, 200);

} // namespace

/// The chart of bars, by the pixels on the screen: four bars in 200 x 100 pixels, each in the middle four fifths of
/// its 50.
class tst_BarChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void drawsBars();
    void keepsWithinTheChart();
    void drawsLines();
    void shadesAndFrames();
    void noSuchPlaces();
    void oneBar();
    void noBars();
    void followsThePalette();
    void followsTheSize();
    void movesToAnotherWindow();
    void leavesTheMouseToTheWindow();

private:
    QColor at(int x, int y) { return m_chart->grab().toImage().pixelColor(x, y); }
    QColor base() const { return m_chart->palette().color(QPalette::Base); }
    QColor highlight() const { return m_chart->palette().color(QPalette::Highlight); }

    std::unique_ptr<QWidget> m_window;
    BarChart* m_chart = nullptr;
};

void tst_BarChart::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(240, 140);
    m_chart = new BarChart(0.8, m_window.get());
    m_chart->setGeometry(20, 20, 200, 100);
    m_chart->setBars({{0.25, red}, {0.75, blue}, {1, red}, {0, blue}});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_BarChart::drawsBars()
{
    const QImage image = m_chart->grab().toImage();
    QCOMPARE(image.size(), QSize(200, 100));
    const auto pixel = [&image](int x, int y) { return image.pixelColor(x, y); };
    // To the left and right of a bar, and above it.
    QCOMPARE(pixel(3, 90), base());
    QCOMPARE(pixel(7, 90), red);
    QCOMPARE(pixel(43, 90), red);
    QCOMPARE(pixel(47, 90), base());
    QCOMPARE(pixel(25, 77), red);
    QCOMPARE(pixel(25, 72), base());
    QCOMPARE(pixel(75, 27), blue);
    QCOMPARE(pixel(75, 22), base());
    QCOMPARE(pixel(125, 4), red);
    QCOMPARE(pixel(175, 90), base());
}

void tst_BarChart::keepsWithinTheChart()
{
    m_chart->setBars({{7, red}, {-3, blue}, {0.5, blue}, {0.5, red}});
    QCOMPARE(at(25, 5), red);
    QCOMPARE(at(75, 90), base());
    QCOMPARE(at(125, 60), blue);
    QCOMPARE(at(175, 60), red);
}

void tst_BarChart::drawsLines()
{
    m_chart->setBars({{0, red}, {0, blue}});
    const QImage image = m_chart->grab().toImage();
    QVector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(100, y) != base()) {
            rows << y;
        }
    }
    QCOMPARE(rows.size(), 3);
    // At 1, a half and 0; within the chart, so a row or two from its edges.
    QVERIFY2(rows[0] <= 1 && std::abs(rows[1] - 50) <= 1 && rows[2] >= 98, qPrintable(QString::number(rows[2])));
}

void tst_BarChart::shadesAndFrames()
{
    m_chart->setShaded({0, 1});
    QVERIFY(at(2, 10) != base());
    QCOMPARE(at(98, 10), at(2, 10));
    QCOMPARE(at(25, 90), red); // the bars are in front
    QCOMPARE(at(102, 10), base());
    m_chart->setShaded({-1, -1});
    QCOMPARE(at(2, 10), base());
    m_chart->setFramed({1, 2});
    QCOMPARE(at(50, 10), highlight());
    QCOMPARE(at(149, 10), highlight());
    QCOMPARE(at(53, 10), base()); // nothing but its edge
    QCOMPARE(at(46, 10), base());
    QCOMPARE(at(153, 10), base());
    m_chart->setFramed({-1, -1});
    QCOMPARE(at(50, 10), base());
}

void tst_BarChart::noSuchPlaces()
{
    const QImage before = m_chart->grab().toImage();
    m_chart->setShaded({2, 4});
    m_chart->setFramed({3, 9});
    QCOMPARE(m_chart->grab().toImage(), before);
}

void tst_BarChart::oneBar()
{
    m_chart->setBars({{0.5, blue}});
    QCOMPARE(at(15, 80), base());
    QCOMPARE(at(25, 80), blue);
    QCOMPARE(at(175, 80), blue);
    QCOMPARE(at(185, 80), base());
    QCOMPARE(at(100, 40), base());
}

void tst_BarChart::noBars()
{
    m_chart->setBars({});
    QCOMPARE(at(25, 90), base());
    m_chart->setBars({{1, red}, {1, red}});
    QCOMPARE(at(25, 90), red);
}

void tst_BarChart::followsThePalette()
{
    QPalette dark = m_chart->palette();
    dark.setColor(QPalette::Base, QColor(20, 30, 40));
    m_chart->setPalette(dark);
    QCOMPARE(at(25, 20), QColor(20, 30, 40));
    QCOMPARE(at(25, 90), red);
}

void tst_BarChart::followsTheSize()
{
    m_chart->setFramed({3, 3});
    m_chart->resize(100, 60);
    QCOMPARE(m_chart->grab().toImage().size(), QSize(100, 60));
    QCOMPARE(at(12, 55), red);
    QCOMPARE(at(12, 40), base());
    QCOMPARE(at(75, 10), highlight());
    QCOMPARE(at(35, 5), base());
}

/// As when a dock floats: the graphics of the window before are gone.
void tst_BarChart::movesToAnotherWindow()
{
    m_chart->setFramed({1, 2});
    const QImage before = m_chart->grab().toImage();
    QWidget other;
    other.resize(m_window->size());
    m_chart->setParent(&other);
    m_chart->show();
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QTRY_COMPARE(m_chart->grab().toImage(), before);
    m_chart->setBars({{1, blue}, {0.5, red}});
    QCOMPARE(at(50, 10), blue);
    m_chart->setParent(m_window.get());
    m_chart->show();
    QTRY_COMPARE(at(50, 10), blue);
}

void tst_BarChart::leavesTheMouseToTheWindow()
{
    QCOMPARE(m_window->childAt(100, 60), nullptr);
    QCOMPARE(m_chart->focusPolicy(), Qt::NoFocus);
}

WORKBENCH_TEST_MAIN(tst_BarChart)
#include "tst_barchart.moc"
