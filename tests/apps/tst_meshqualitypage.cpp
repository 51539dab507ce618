// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

/// The web page of `meshquality report`.
class MeshQualityPageTest : public QObject, private ScratchFiles
{
    Q_OBJECT

private Q_SLOTS:
    void writesWebPage();
    void escapesInWebPage();
    void tellsWhyScoresSayNothing_data();
    void tellsWhyScoresSayNothing();
    void tellsWhatMakesFiguresDoubtful();
    void writesWebPageWithoutNumbers();

private:
    /// The report's page on a mesh, empty when it is no well-formed XML.
    QString page(const QStringList& options, ProgramRun& run) const;
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QString housing = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");

ProgramRun report(const QStringList& arguments)
{
    return runMeshQuality(QStringList{QStringLiteral("report")} + arguments);
}

} // namespace

QString MeshQualityPageTest::page(const QStringList& options, ProgramRun& run) const
{
    run = report(QStringList{QStringLiteral("--html"), path("page.html")} + options);
    QFile written(path("page.html"));
    if (!written.open(QIODevice::ReadOnly)) {
        return QString();
    }
    const QString text = QString::fromUtf8(written.readAll());
    // All but the two tags that never end are written as XML has it.
    QString xml = text;
    xml.remove(QStringLiteral("<!DOCTYPE html>")).remove(QRegularExpression(QStringLiteral("<meta [^>]*>")));
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError() ? QString() : text;
}

void MeshQualityPageTest::writesWebPage()
{
    ProgramRun run;
    const QString text = page({QStringLiteral("--worst"), QStringLiteral("4"), QStringLiteral("--by"),
                               QStringLiteral("EdgeRatio"), slivers, housing},
                              run);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(text.count(QStringLiteral("<section>")), 2);
    QCOMPARE(text.count(QStringLiteral("<svg ")), 22);
    for (const char* reference : {"src=", "href=", "url(", "http", "@import", "<script"}) {
        QVERIFY2(!text.contains(QLatin1String(reference)), reference);
    }
    const QRegularExpressionMatch score =
        QRegularExpression(QStringLiteral("  score (\\S+) \\(")).match(QString::fromUtf8(run.output));
    QVERIFY(text.contains(QStringLiteral("<span class=\"score\">%1</span>").arg(score.captured(1))));

    MeshQualityReport expected;
    QVERIFY(expected.measure(slivers));
    int from = text.indexOf(QStringLiteral("Worst elements by EdgeRatio"));
    QVERIFY(from > 0);
    for (const int element : expected.worst(Metric::EdgeRatio, 4)) {
        from = text.indexOf(QStringLiteral("<tr><td>%1</td><td>%2</td><td>1 &quot;solid&quot;</td>")
                                .arg(expected.tag(element))
                                .arg(expected.line(element)),
                            from);
        QVERIFY(from > 0);
    }
    const QString cell = QStringLiteral("<td>%1</td>");
    QVERIFY(text.contains(cell.arg(QString::number(expected.summary(Metric::Shape).percentile5, 'g', 6))));
    QVERIFY(expected.measure(housing));
    for (const MeshQualityReport::Region& region : expected.regions()) {
        QVERIFY(text.contains(QStringLiteral("<tr><td>%1 &quot;%2&quot;</td><td>%3</td>")
                                  .arg(region.physicalTag)
                                  .arg(region.name)
                                  .arg(region.elementCount)));
    }
    // The bars of every picture hold every element once.
    QRegularExpressionMatchIterator bars =
        QRegularExpression(QStringLiteral("<title>\\S+ to \\S+: (\\d+)</title>")).globalMatch(text);
    qint64 total = 0;
    while (bars.hasNext()) {
        total += bars.next().captured(1).toLongLong();
    }
    QCOMPARE(total, 11 * (qint64(3156) + expected.elementCount()));
}

void MeshQualityPageTest::escapesInWebPage()
{
    QByteArray content = MeshFiles::oneTetrahedron(MeshFiles::regular());
    content.replace("1 4 2 0 1", "1 4 2 7 1")
        .replace("$Nodes", "$PhysicalNames\n1\n3 7 \"<b onclick='x'>&\"\n$EndPhysicalNames\n$Nodes");
    ProgramRun run;
    const QString text = page({file("a <i>&'\".msh", content)}, run);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(text.contains(QStringLiteral("a &lt;i&gt;&amp;&#39;&quot;.msh")));
    QVERIFY(text.contains(QStringLiteral("7 &quot;&lt;b onclick=&#39;x&#39;&gt;&amp;&quot;")));
    QVERIFY(!text.contains(QStringLiteral("<b") + QLatin1Char(' ')));
    QVERIFY(!text.contains(QStringLiteral("<i>")));
}

void MeshQualityPageTest::tellsWhyScoresSayNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("sentence");
    const QByteArray regular = MeshFiles::oneTetrahedron(MeshFiles::regular());
    const QByteArray inverted = MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner()));
    const auto row = [](const char* name, const QByteArray& content, const QString& model, const char* sentence) {
        QTest::newRow(name) << content << model << QString::fromLatin1(sentence);
    };
    row("good", regular, model("above-one"), "");
    row("no model", regular, path("none.onnx"), "There is no score, because the model cannot be used.");
    row("no number", regular, model("not-a-number"), "There is no score, because the model gives no number.");
    row("no mean", inverted, model("not-a-number"), "There is no score, because a mean is no finite number.");
    row("no mean, yet a score", inverted, model("above-one"),
        "The score means nothing, because a mean is no finite number.");
}

void MeshQualityPageTest::tellsWhyScoresSayNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, model);
    QFETCH(QString, sentence);
    ProgramRun run;
    const QString text = page({QStringLiteral("--model"), model, file("mesh.msh", content)}, run);
    QVERIFY(!text.isEmpty());
    const QString warning = QStringLiteral("<p class=\"warning\">%1</p>");
    QCOMPARE(text.count(QStringLiteral("score, because")) + text.count(QStringLiteral("nothing, because")),
             sentence.isEmpty() ? 0 : 1);
    QVERIFY2(sentence.isEmpty() || text.contains(warning.arg(sentence)), qPrintable(text));
}

void MeshQualityPageTest::tellsWhatMakesFiguresDoubtful()
{
    const QString mesh =
        file("doubtful.msh", MeshFiles::mesh({"1 0 0 0", "3 1 0 0", "2 0 1 0", "4 0 0 1"},
                                             {"1 4 2 0 1 1 2 3 4", "2 4 3 0 1 1 2 3 4", "3 4 2 0 1 1 2 3 3",
                                              "4 4 2 0 1 1 2 3 5", "5 4 2 0 1 1 2 3"}));
    ProgramRun run;
    const QString text = page({mesh}, run);
    MeshQualityReport measures;
    QVERIFY(measures.measure(mesh));
    const QString paragraph = QStringLiteral("<p class=\"warning\">%1</p>");
    QCOMPARE(measures.warnings(mesh).size(), 2);
    for (const QString& warning : measures.warnings(mesh)) {
        QVERIFY2(text.contains(paragraph.arg(QStringLiteral("Warning: ") +
                                             QString(warning).replace(QLatin1Char('\''), QLatin1String("&#39;")))),
                 qPrintable(text));
    }
    QVERIFY(text.contains(paragraph.arg(
        QStringLiteral("2 lines skipped: line 16: names a node that is not there (nodes are numbered by their place in "
                       "the file); line 17: a tetrahedron needs nine columns"))));
    QVERIFY(
        text.contains(QStringLiteral("<p>4 nodes, 3 tetrahedra, 0 inverted, 1 flat, 1 that name a node twice</p>")));
    const QString good = page({file("good.msh", MeshFiles::oneTetrahedron(MeshFiles::regular()))}, run);
    QVERIFY(good.contains(QStringLiteral("<p>4 nodes, 1 tetrahedra, 0 inverted, 0 flat</p>")));
    QVERIFY(!good.contains(QStringLiteral("Warning: ")) && !good.contains(QStringLiteral("skipped")));
}

void MeshQualityPageTest::writesWebPageWithoutNumbers()
{
    const QString mesh = file("turned.msh", MeshFiles::oneTetrahedron(MeshFiles::inverted(MeshFiles::rightCorner())));
    ProgramRun run;
    const QString text = page({mesh}, run);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(text.contains(QStringLiteral("There is no score")));
    QVERIFY(text.contains(QStringLiteral("no finite value")));
    QVERIFY(text.contains(QStringLiteral("1 inverted")));
}

QTEST_GUILESS_MAIN(MeshQualityPageTest)
#include "tst_meshqualitypage.moc"
