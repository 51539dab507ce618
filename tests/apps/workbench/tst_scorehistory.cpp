// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/project/Project.h>
#include <workbench/quality/ScoreChart.h>
#include <workbench/quality/ScoreHistory.h>
#include <workbench/quality/ScorePanel.h>
#include <workbench/quality/ScoreText.h>

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <QHelpEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QToolTip>

#include <cmath>

using DataManager::MeshQualityPredict;
using DataManager::QualityModelCard;
using namespace Workbench;
using Outcome = ScoreHistory::Outcome;

namespace {

// A tetrahedron over half of the unit square.
QByteArray tetrahedron(double height, const char* corners = "1 2 3 4")
{
    return "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n4\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 " +
           QByteArray::number(height) + "\n$EndNodes\n$Elements\n1\n1 4 2 1 1 " + corners + "\n$EndElements\n";
}

// As another runtime's arithmetic has it.
float expectedScore(const char* sample)
{
    QFile file(QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/shipped-model/expected-scores.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QJsonObject scores = QJsonDocument::fromJson(file.readAll())[QStringLiteral("scores")].toObject();
    return static_cast<float>(scores[QString::fromLatin1(sample) + QStringLiteral(".msh")].toDouble(-1));
}

float scoreOf(const QString& path)
{
    DataManager::MeshQualityReport report;
    report.measure(path);
    QualityModelCard::Features means = report.features();
    return MeshQualityPredict::getinstance()->inferFigure(means.data());
}

} // namespace

// The predictor keeps its model and its history for the life of the process, so the order of the tests matters: first
// those without a model that can be used.
class tst_ScoreHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_panel.reset(); }
    void cleanupTestCase() { Project::instance()->close(); }

    void modelThatCannotBeUsed_data();
    void modelThatCannotBeUsed();
    void scoresEachSample_data();
    void scoresEachSample();
    void keepsTen();
    void sameMeshIsUnchanged();
    void failedOpeningScoresNothing();
    void noMeshWhereThePredictorReads();
    void otherMeshWhereThePredictorReads();
    void warnsOutsideOfTraining();
    void invertedElement();
    void forgetsTheMesh();
    void followsTheLanguage();

private:
    QString shown() const { return m_panel->findChild<QLabel*>(QStringLiteral("score"))->text(); }
    QString write(const QString& name, const QByteArray& content)
    {
        return writeFile(m_directory.filePath(name + QStringLiteral(".msh")), content);
    }

    QTemporaryDir m_directory;
    std::unique_ptr<ScorePanel> m_panel;
    ScoreHistory* m_history = nullptr;
};

void tst_ScoreHistory::initTestCase()
{
    m_history = ScoreHistory::instance();
    QCOMPARE(m_history->scores(), std::vector<float>(10, 0.0F));
    QCOMPARE(m_history->given(), 0);
}

void tst_ScoreHistory::init()
{
    QVERIFY(Project::instance()->create());
    QFile::remove(ScoreHistory::meshPath());
    QDir().rmdir(ScoreHistory::meshPath());
    m_panel = std::make_unique<ScorePanel>();
    m_panel->resize(400, 250);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    QCOMPARE(shown(), QStringLiteral("A mesh is scored when it is opened."));
}

void tst_ScoreHistory::modelThatCannotBeUsed_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("reason");
    const QString models = QStringLiteral(DATAMANAGER_SOURCE_DIR "/tests/meshquality/models/");
    QTest::newRow("missing") << QString() << QStringLiteral("no such file");
    QTest::newRow("no model") << samplePath("slivers.geo") << QString();
    QTest::newRow("another input") << models + QStringLiteral("other-input-name.onnx")
                                   << QStringLiteral("onnx::Gemm_0");
    QTest::newRow("another shape") << models + QStringLiteral("five-inputs.onnx") << QStringLiteral("[1, 5]");
    QTest::newRow("another type") << models + QStringLiteral("double-input.onnx") << QStringLiteral("double");
    QTest::newRow("empty when run") << models + QStringLiteral("empty-when-run.onnx") << QString();
}

void tst_ScoreHistory::modelThatCannotBeUsed()
{
    QFETCH(QString, model);
    QFETCH(QString, reason);
    QFile::remove(ScoreHistory::modelPath());
    QVERIFY(model.isEmpty() || QFile::copy(model, ScoreHistory::modelPath()));
    Messages messages;
    QVERIFY(openMesh(samplePath("slivers.msh")) > 0);
    QCOMPARE(m_history->outcome(), Outcome::NoModel);
    QCOMPARE(m_history->scores(), std::vector<float>(10, 0.0F));
    QCOMPARE(m_history->given(), 0);
    QCOMPARE(messages.list.size(), 1);
    const QString beginning = QStringLiteral("The mesh has no score: the quality model %1 cannot be used: ");
    const QString told = QStringLiteral("2 ") + beginning.arg(ScoreHistory::modelPath());
    QVERIFY2(messages.list[0].startsWith(told), qPrintable(messages.list[0]));
    QVERIFY2(messages.list[0].size() > told.size() && messages.list[0].contains(reason), qPrintable(messages.list[0]));
    QCOMPARE(shown(), messages.list[0].mid(2));
}

void tst_ScoreHistory::scoresEachSample_data()
{
    QTest::addColumn<QString>("score");
    for (const char* sample : {"bearing-housing", "graded-block", "slivers"}) {
        QTest::newRow(sample) << scoreNumber(expectedScore(sample));
    }
}

void tst_ScoreHistory::scoresEachSample()
{
    QFETCH(QString, score);
    QFile::remove(ScoreHistory::modelPath());
    QVERIFY(QFile::copy(QStringLiteral(DATAMANAGER_SOURCE_DIR "/model/mesh.onnx"), ScoreHistory::modelPath()));
    const int before = m_history->given();
    Messages messages;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(openMesh(samplePath(QTest::currentDataTag()) + QStringLiteral(".msh")) > 0);
    QCOMPARE(messages.list, QStringList());
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    QCOMPARE(scoreNumber(m_history->score()), score);
    QCOMPARE(m_history->scores(), MeshQualityPredict::getinstance()->getOutput());
    QCOMPARE(m_history->scores().back(), m_history->score());
    QCOMPARE(m_history->given(), before + 1);
    QCOMPARE(m_history->meshNames().last(), name);
    const QString explanation = m_history->card().explanation(m_history->score());
    QVERIFY(!explanation.isEmpty());
    QCOMPARE(shown(),
             QStringLiteral("Score %1 (0 worst, 1 best)\n%2: %3").arg(score, m_history->card().title(), explanation));
    const auto* chart = m_panel->findChild<ScoreChart*>();
    QCOMPARE(chart->tip(9), name + QStringLiteral(": ") + score);
    QCOMPARE(chart->tip(9 - m_history->given()), QString());
}

void tst_ScoreHistory::keepsTen()
{
    QStringList names;
    std::vector<float> scores;
    for (int i = 1; i <= 12; ++i) {
        const QString path = write(QStringLiteral("t%1").arg(i), tetrahedron(0.3 + 0.1 * i));
        QVERIFY(openMesh(path) > 0);
        QCOMPARE(m_history->outcome(), Outcome::Scored);
        names << QStringLiteral("t%1").arg(i);
        scores.push_back(scoreOf(path));
        QCOMPARE(m_history->scores().size(), std::size_t(10));
    }
    QCOMPARE(m_history->given(), 10);
    QCOMPARE(m_history->meshNames(), names.mid(2));
    QCOMPARE(m_history->scores(), std::vector<float>(scores.begin() + 2, scores.end()));
    auto* chart = m_panel->findChild<ScoreChart*>();
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(chart->tip(i),
                 names[i + 2] + QStringLiteral(": ") + scoreNumber(scores[static_cast<std::size_t>(i + 2)]));
    }
    QCOMPARE(chart->tip(-1) + chart->tip(10), QString());
    const QPoint last(chart->width() - 3, chart->height() / 2);
    QHelpEvent help(QEvent::ToolTip, last, chart->mapToGlobal(last));
    QApplication::sendEvent(chart, &help);
    QCOMPARE(QToolTip::text(), chart->tip(9));
    QToolTip::hideText();
}

void tst_ScoreHistory::sameMeshIsUnchanged()
{
    const QString path = write(QStringLiteral("same"), tetrahedron(2.5));
    QVERIFY(openMesh(path) > 0);
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    const std::vector<float> before = m_history->scores();
    const QStringList names = m_history->meshNames();
    QVERIFY(openMesh(path) > 0);
    QCOMPARE(m_history->outcome(), Outcome::Unchanged);
    QCOMPARE(m_history->scores(), before);
    QCOMPARE(m_history->meshNames(), names);
    QCOMPARE(m_history->score(), scoreOf(path));
    QVERIFY2(shown().endsWith(QStringLiteral("so the history has no new entry.")), qPrintable(shown()));
}

void tst_ScoreHistory::failedOpeningScoresNothing()
{
    QVERIFY(openMesh(write(QStringLiteral("good"), tetrahedron(1.9))) > 0);
    const std::vector<float> before = m_history->scores();
    QSignalSpy changes(m_history, &ScoreHistory::signal_changed);
    Messages messages;
    QCOMPARE(openMesh(write(QStringLiteral("bad"), "nothing")), 0);
    QCOMPARE(messages.list.size(), 1); // of the mesh, none of a score
    QCOMPARE(changes.size(), 0);
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    QCOMPARE(m_history->scores(), before);
}

void tst_ScoreHistory::noMeshWhereThePredictorReads()
{
    // A directory cannot be overwritten.
    QVERIFY(QDir().mkpath(ScoreHistory::meshPath()));
    const std::vector<float> before = m_history->scores();
    Messages messages;
    QVERIFY(openMesh(samplePath("slivers.msh")) > 0);
    QCOMPARE(m_history->outcome(), Outcome::NoMeshFile);
    QCOMPARE(m_history->scores(), before);
    const QString expected =
        QStringLiteral("The mesh has no score: it could not be copied to %1, where the predictor reads.");
    QCOMPARE(messages.list, QStringList{QStringLiteral("2 ") + expected.arg(ScoreHistory::meshPath())});
    QCOMPARE(shown(), messages.list[0].mid(2));
}

void tst_ScoreHistory::otherMeshWhereThePredictorReads()
{
    QObject anotherProgram;
    connect(MeshManager::instance(), &MeshManager::signal_kernalDataListChanged, &anotherProgram,
            [] { writeFile(ScoreHistory::meshPath(), tetrahedron(0.15)); });
    Messages messages;
    QVERIFY(openMesh(samplePath("thin-walled.msh")) > 0);
    QCOMPARE(m_history->outcome(), Outcome::OtherMesh);
    QCOMPARE(scoreNumber(m_history->score()), scoreNumber(expectedScore("thin-walled")));
    QCOMPARE(m_history->scores().back(), scoreOf(ScoreHistory::meshPath()));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list[0].contains(QStringLiteral("is not that of this mesh")), qPrintable(messages.list[0]));
    QVERIFY(shown().endsWith(messages.list[0].mid(2)));
}

void tst_ScoreHistory::warnsOutsideOfTraining()
{
    const auto* warnings = m_panel->findChild<QLabel*>(QStringLiteral("scoreWarnings"));
    QVERIFY(openMesh(samplePath("plate-with-hole.msh")) > 0);
    QVERIFY(!warnings->isVisible());
    QVERIFY(openMesh(write(QStringLiteral("needle"), tetrahedron(1000))) > 0);
    const auto excesses = m_history->card().outsideOfTraining(m_history->means());
    QVERIFY(!excesses.empty());
    QCOMPARE(warnings->text().count(QLatin1Char('\n')) + 1, static_cast<int>(excesses.size()));
    QVERIFY(warnings->isVisible());
    const QString first = QStringLiteral("Mean %1 %2 lies outside of the range that the model was trained on, ")
                              .arg(DataManager::MeshQualityReport::metricName(excesses[0].feature),
                                   QString::number(excesses[0].value, 'g', 6));
    QVERIFY2(warnings->text().startsWith(first), qPrintable(warnings->text()));
}

void tst_ScoreHistory::invertedElement()
{
    QVERIFY(openMesh(write(QStringLiteral("inverted"), tetrahedron(1, "1 3 2 4"))) > 0);
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    QVERIFY(std::isnan(m_history->score()));
    QVERIFY2(shown().startsWith(
                 QStringLiteral("The score means nothing, because the mean of a metric is no finite number.\n") +
                 m_history->card().title()),
             qPrintable(shown()));
    auto* chart = m_panel->findChild<ScoreChart*>();
    QCOMPARE(chart->tip(9), QStringLiteral("inverted: ") + QString::fromUtf8("–"));
    QVERIFY(!chart->grab().isNull());
    // No number is no similarity: opened again, it is scored again.
    QVERIFY(openMesh(write(QStringLiteral("again"), tetrahedron(1, "1 3 2 4"))) > 0);
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    QCOMPARE(m_history->meshNames().mid(8), (QStringList{QStringLiteral("inverted"), QStringLiteral("again")}));
}

void tst_ScoreHistory::forgetsTheMesh()
{
    const int kernelID = openMesh(samplePath("slivers.msh"));
    QCOMPARE(m_history->outcome(), Outcome::Scored);
    MeshManager::instance()->removeKernels({kernelID});
    QCOMPARE(m_history->outcome(), Outcome::None);
    QCOMPARE(m_history->meshNames().last(), QStringLiteral("slivers"));
    QCOMPARE(shown(), QStringLiteral("A mesh is scored when it is opened."));
}

void tst_ScoreHistory::followsTheLanguage()
{
    const QString old = shown();
    m_panel->findChild<QLabel*>(QStringLiteral("score"))->clear();
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_panel.get(), &change);
    QCOMPARE(shown(), old);
}

WORKBENCH_TEST_MAIN(tst_ScoreHistory)
#include "tst_scorehistory.moc"
