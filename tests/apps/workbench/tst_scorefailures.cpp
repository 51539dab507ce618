// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/project/Project.h>
#include <workbench/quality/ScoreChart.h>
#include <workbench/quality/ScoreHistory.h>
#include <workbench/quality/ScorePanel.h>

#include <QLabel>

#include <cmath>

Q_DECLARE_METATYPE(Workbench::ScoreHistory::Outcome)

using namespace Workbench;
using Outcome = ScoreHistory::Outcome;

namespace {

/// Holds the volume: a third of its height times the half of a square. A needle, or one with three equal edges: meshes
/// whose measures are nearly proportional count as the same.
QByteArray tetrahedronOf(double volume, bool isNeedle)
{
    const double side = isNeedle ? 1 : std::cbrt(volume * 6);
    const QByteArray width = QByteArray::number(side, 'g', 17);
    return "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n4\n1 0 0 0\n2 " + width + " 0 0\n3 0 " + width +
           " 0\n4 0 0 " + QByteArray::number(volume * 6 / (side * side), 'g', 17) +
           "\n$EndNodes\n$Elements\n1\n1 4 2 1 1 1 2 3 4\n$EndElements\n";
}

} // namespace

/// A model that meets the contract, gives odd scores and fails when it is run, by the volume: see make_models.py. The
/// predictor keeps it for the life of the process.
class tst_ScoreFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { Project::instance()->close(); }

    void scores_data();
    void scores();

private:
    QString shown() const { return m_panel->findChild<QLabel*>(QStringLiteral("score"))->text(); }

    QTemporaryDir m_directory;
    std::unique_ptr<ScorePanel> m_panel;
};

void tst_ScoreFailures::initTestCase()
{
    QVERIFY(Project::instance()->create());
    QFile::remove(ScoreHistory::modelPath());
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/models/fails-when-run.onnx"),
                        ScoreHistory::modelPath()));
    m_panel = std::make_unique<ScorePanel>();
    m_panel->show();
}

void tst_ScoreFailures::scores_data()
{
    QTest::addColumn<double>("volume");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("said");
    QTest::addColumn<QStringList>("history");
    const QString noScore = QStringLiteral("The mesh has no score: the quality model ");
    const QString score = QStringLiteral("Score %1 (0 worst, 1 best)");
    const QString dash = QString::fromUtf8("–");
    QStringList history;
    // Also the first one may fail, before any was scored, and the next may not.
    QTest::newRow("fails at first") << 4000.0 << Outcome::NoModel << noScore << history;
    history << QStringLiteral("0.5");
    QTest::newRow("a number") << 500.0 << Outcome::Scored << score.arg(QStringLiteral("0.5")) << history;
    QTest::newRow("fails") << 3500.0 << Outcome::NoModel << noScore << history;
    history << dash;
    QTest::newRow("no number") << 1500.0 << Outcome::Scored
                               << QStringLiteral("There is no score: the model gives no number for this mesh.")
                               << history;
    // The predictor takes what is above 1 as 1.
    history << QStringLiteral("1");
    QTest::newRow("more than one") << 2500.0 << Outcome::Scored << score.arg(QStringLiteral("1")) << history;
    QTest::newRow("fails again") << 9000.0 << Outcome::NoModel << noScore << history;
    history << QStringLiteral("0.5");
    QTest::newRow("and goes on") << 100.0 << Outcome::Scored << score.arg(QStringLiteral("0.5")) << history;
}

void tst_ScoreFailures::scores()
{
    QFETCH(double, volume);
    QFETCH(Outcome, outcome);
    QFETCH(QString, said);
    QFETCH(QStringList, history);
    const QString path = m_directory.filePath(QStringLiteral("v%1.msh").arg(volume));
    Messages messages;
    QVERIFY(openMesh(writeFile(path, tetrahedronOf(volume, history.size() % 2 == 0))) > 0);
    QCOMPARE(ScoreHistory::instance()->outcome(), outcome);
    QVERIFY2(shown().startsWith(said), qPrintable(shown()));
    if (outcome == Outcome::NoModel) {
        // In the words of the runtime.
        QCOMPARE(messages.list, QStringList{QStringLiteral("2 ") + shown()});
        QVERIFY2(shown().contains(QStringLiteral("Gather")), qPrintable(shown()));
    } else {
        QCOMPARE(messages.list, QStringList());
    }
    QCOMPARE(ScoreHistory::instance()->given(), history.size());
    const auto* const chart = m_panel->findChild<ScoreChart*>();
    for (int i = 0; i < history.size(); ++i) {
        const QString tip = chart->tip(10 - history.size() + i);
        QCOMPARE(tip.section(QStringLiteral(": "), 1), history.at(i));
        QVERIFY2(chart->accessibleDescription().contains(tip), qPrintable(chart->accessibleDescription()));
    }
    QVERIFY(!m_panel->grab().isNull());
}

WORKBENCH_TEST_MAIN(tst_ScoreFailures)
#include "tst_scorefailures.moc"
