// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ProjectWindowTest.h"

#include <workbench/mesh/MeshDisplay.h>

using namespace Workbench;

/// The marks of the actions Edges and Transparent say how the mesh is shown, whoever changes that.
class tst_DisplayActions : public ProjectWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void cleanupTestCase() { end(); }

    void beginWithWhatHolds_data();
    void beginWithWhatHolds();
    void followTheDisplay();
    void changeTheDisplay();

private:
    void check(bool areEdgesShown, bool isTransparent) const
    {
        QCOMPARE(action("Edges")->isChecked(), areEdgesShown);
        QCOMPARE(action("Transparent")->isChecked(), isTransparent);
    }

    MeshDisplay* m_display = MeshDisplay::instance();
};

void tst_DisplayActions::init()
{
    m_display->showEdges(true);
    m_display->setTransparency(0);
}

void tst_DisplayActions::beginWithWhatHolds_data()
{
    QTest::addColumn<bool>("areEdgesShown");
    QTest::addColumn<double>("transparency");
    QTest::newRow("as at first") << true << 0.0;
    QTest::newRow("without edges") << false << 0.0;
    QTest::newRow("transparent") << true << 0.01;
}

void tst_DisplayActions::beginWithWhatHolds()
{
    QFETCH(bool, areEdgesShown);
    QFETCH(double, transparency);
    m_display->showEdges(areEdgesShown);
    m_display->setTransparency(transparency);
    showWindow();
    check(areEdgesShown, transparency > 0);
}

void tst_DisplayActions::followTheDisplay()
{
    showWindow();
    m_display->showEdges(false);
    check(false, false);
    m_display->setTransparency(0.3);
    check(false, true);
    m_display->showEdges(true);
    check(true, true);
    m_display->setTransparency(-1); // which is 0
    check(true, false);
}

// Each does what its mark says, also after another has changed the display.
void tst_DisplayActions::changeTheDisplay()
{
    showWindow();
    m_display->showEdges(false);
    m_display->setTransparency(0.3);
    trigger("Edges");
    QVERIFY(m_display->areEdgesShown());
    check(true, true);
    trigger("Transparent");
    QCOMPARE(m_display->transparency(), 0.0);
    check(true, false);
    trigger("Edges");
    trigger("Transparent");
    QVERIFY(!m_display->areEdgesShown() && m_display->transparency() > 0);
    check(false, true);
}

WORKBENCH_TEST_MAIN(tst_DisplayActions)
#include "tst_displayactions.moc"
