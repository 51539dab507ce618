// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/mesh/MeshDisplay.h>
#include <workbench/project/Project.h>
#include <workbench/quality/HistogramView.h>
#include <workbench/quality/MeshFigures.h>
#include <workbench/quality/QualityDock.h>
#include <workbench/selection/SelectionUndo.h>

#include <basemodule/SelectModel.h>
#include <datamanager/selection/SelectedDataManager.h>

#include <QUndoStack>

#include <numeric>

using DataManager::MeshQualityReport;
using DataManager::SelectedDataManager;
using namespace Workbench;

namespace {

int selectedCount()
{
    return SelectedDataManager::getInstance()->getDataCount();
}

} // namespace

/// The histogram by keys, and what it selects as one step.
class tst_HistogramKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_dock.reset(); }
    void cleanupTestCase() { Project::instance()->close(); }

    void movesTheMark_data();
    void movesTheMark();
    void selectsTheMarked();
    void doesNothingWithoutBars();
    void keepsTheMarkWithinTheBars();
    void marksWhatTheMouseDid();
    void showsTheMark();
    void selectsInOneStep();
    void burstsNest();

private:
    int count(int first, int last) const
    {
        const auto begin = m_histogram->histogram().counts.begin();
        return std::accumulate(begin + first, begin + last + 1, 0);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_histogram, static_cast<Qt::Key>(key), modifiers);
    }

    std::unique_ptr<QualityDock> m_dock;
    HistogramView* m_histogram = nullptr;
};

void tst_HistogramKeys::init()
{
    QVERIFY(Project::instance()->create());
    MeshDisplay::instance()->colourByMetric(MeshQualityReport::Metric::Shape);
    m_dock = std::make_unique<QualityDock>();
    m_dock->resize(420, 900);
    m_dock->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dock.get()));
    m_histogram = m_dock->findChild<HistogramView*>();
    QVERIFY(openMesh(samplePath("bearing-housing.msh")) > 0);
    QTRY_VERIFY(!MeshFigures::instance()->isWorking());
    QApplication::setActiveWindow(m_dock.get());
    m_histogram->setFocus();
    QTRY_VERIFY(m_histogram->hasFocus());
    SelectionUndo::instance()->forget();
}

void tst_HistogramKeys::movesTheMark_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    const int shift = Qt::SHIFT;
    QTest::newRow("at first") << QVector<int>{} << 0 << 0;
    QTest::newRow("right") << QVector<int>{Qt::Key_Right, Qt::Key_Right} << 2 << 2;
    QTest::newRow("left") << QVector<int>{Qt::Key_Right, Qt::Key_Left} << 0 << 0;
    QTest::newRow("not before the first") << QVector<int>{Qt::Key_Left} << 0 << 0;
    QTest::newRow("end") << QVector<int>{Qt::Key_End} << 29 << 29;
    QTest::newRow("not behind the last") << QVector<int>{Qt::Key_End, Qt::Key_Right} << 29 << 29;
    QTest::newRow("home") << QVector<int>{Qt::Key_End, Qt::Key_Home} << 0 << 0;
    QTest::newRow("several") << QVector<int>{Qt::Key_Right, shift | Qt::Key_Right, shift | Qt::Key_Right} << 1 << 3;
    QTest::newRow("several to the left") << QVector<int>{Qt::Key_End, shift | Qt::Key_Left} << 28 << 29;
    QTest::newRow("all") << QVector<int>{shift | Qt::Key_End} << 0 << 29;
    QTest::newRow("one again") << QVector<int>{shift | Qt::Key_End, Qt::Key_Left} << 28 << 28;
}

void tst_HistogramKeys::movesTheMark()
{
    QFETCH(QVector<int>, keys);
    QFETCH(int, first);
    QFETCH(int, last);
    for (const int key : keys) {
        press(key & ~Qt::KeyboardModifierMask, Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
    }
    const MeshQualityReport::Histogram& histogram = m_histogram->histogram();
    const double width = (histogram.upper - histogram.lower) / 30;
    const QString expected = QStringLiteral("%1 to %2: %3 elements")
                                 .arg(QString::number(histogram.lower + first * width, 'g', 6),
                                      QString::number(histogram.lower + (last + 1) * width, 'g', 6))
                                 .arg(count(first, last));
    QCOMPARE(m_histogram->markText(), expected);
    QCOMPARE(m_histogram->accessibleDescription(), expected);
    QCOMPARE(selectedCount(), 0);
    press(Qt::Key_Space);
    QCOMPARE(selectedCount(), count(first, last));
}

void tst_HistogramKeys::selectsTheMarked()
{
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Right);
    }
    press(Qt::Key_Return);
    QCOMPARE(selectedCount(), count(5, 5));
    press(Qt::Key_Right);
    press(Qt::Key_Enter, Qt::ControlModifier);
    QCOMPARE(selectedCount(), count(5, 6));
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    QCOMPARE(selectedCount(), count(7, 7));
    // Other keys are passed on.
    QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(m_histogram, &other);
    QVERIFY(!other.isAccepted());
    QCOMPARE(selectedCount(), count(7, 7));
}

void tst_HistogramKeys::doesNothingWithoutBars()
{
    MeshManager::instance()->clear();
    QCOMPARE(m_histogram->markText(), QString());
    for (const int key : {Qt::Key_Right, Qt::Key_End, Qt::Key_Space, Qt::Key_Return}) {
        press(key);
    }
    QCOMPARE(selectedCount(), 0);
    QVERIFY(!m_histogram->grab().isNull());
}

void tst_HistogramKeys::keepsTheMarkWithinTheBars()
{
    press(Qt::Key_End);
    m_histogram->setHistogram({0, 1, {3, 4}});
    QCOMPARE(m_histogram->markText(), QStringLiteral("0.5 to 1: 4 elements"));
    QVERIFY(!m_histogram->grab().isNull());
}

void tst_HistogramKeys::marksWhatTheMouseDid()
{
    QTest::mousePress(m_histogram, Qt::LeftButton, Qt::NoModifier, m_histogram->column(12).center());
    QTest::mouseMove(m_histogram, m_histogram->column(14).center());
    QTest::mouseRelease(m_histogram, Qt::LeftButton, Qt::NoModifier, m_histogram->column(14).center());
    QCOMPARE(selectedCount(), count(12, 14));
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    QCOMPARE(selectedCount(), count(15, 15));
}

void tst_HistogramKeys::showsTheMark()
{
    const QImage first = m_histogram->grab().toImage();
    press(Qt::Key_Right);
    const QImage second = m_histogram->grab().toImage();
    // A line stands at the left of the marked bar, where the background was.
    const QPoint edge(m_histogram->column(1).left(), m_histogram->column(1).top() + 4);
    QVERIFY(first.pixelColor(edge + QPoint(2, 0)) == second.pixelColor(edge + QPoint(2, 0)));
    QVERIFY(first != second);
    m_histogram->clearFocus();
    const QImage without = m_histogram->grab().toImage();
    QVERIFY(without != second);
    QCOMPARE(without.pixelColor(edge), m_histogram->palette().color(QPalette::Base));
    QCOMPARE(m_histogram->markText(), QString());
}

void tst_HistogramKeys::selectsInOneStep()
{
    QUndoStack& steps = *SelectionUndo::instance()->stack();
    press(Qt::Key_Space);
    QCOMPARE(steps.count(), 1);
    press(Qt::Key_End);
    press(Qt::Key_Space);
    QCOMPARE(steps.count(), 2);
    QTest::mouseClick(m_histogram, Qt::LeftButton, Qt::NoModifier, m_histogram->column(15).center());
    QCOMPARE(steps.count(), 3);
    // The same again is no step.
    QTest::mouseClick(m_histogram, Qt::LeftButton, Qt::NoModifier, m_histogram->column(15).center());
    QCOMPARE(steps.count(), 3);
    QCOMPARE(selectedCount(), count(15, 15));
    steps.undo();
    QCOMPARE(selectedCount(), count(29, 29));
    steps.undo();
    QCOMPARE(selectedCount(), count(0, 0));
    steps.undo();
    QCOMPARE(selectedCount(), 0);
    steps.redo();
    QCOMPARE(selectedCount(), count(0, 0));
}

void tst_HistogramKeys::burstsNest()
{
    SelectedDataManager* const selection = SelectedDataManager::getInstance();
    selection->setSelectModelInMainWindow(BaseModule::MeshElement);
    const int kernelID = MeshManager::instance()->findKernels(QString()).first();
    QUndoStack& steps = *SelectionUndo::instance()->stack();
    {
        const SelectionUndo::Burst outer;
        selection->addSelectedTargetList(BaseModule::MeshElement, {{kernelID, 1}});
        {
            const SelectionUndo::Burst inner;
            selection->addSelectedTargetList(BaseModule::MeshElement, {{kernelID, 2}});
        }
        QCOMPARE(steps.count(), 0);
    }
    QCOMPARE(steps.count(), 1);
    steps.undo();
    QCOMPARE(selectedCount(), 0);
    {
        const SelectionUndo::Burst andBack;
        selection->addSelectedTargetList(BaseModule::MeshElement, {{kernelID, 3}});
        selection->clearAllSelectedTarget();
    }
    QCOMPARE(steps.count(), 1);
    QVERIFY(steps.canRedo());
}

WORKBENCH_TEST_MAIN(tst_HistogramKeys)
#include "tst_histogramkeys.moc"
