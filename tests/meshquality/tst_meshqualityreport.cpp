// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralPipeline.h"
#include "MeshFiles.h"
#include "SameValues.h"

#include "support/Nobody.h"

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <sys/stat.h>

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;
using Problem = MeshQualityReport::Problem;
using SkipReason = MeshQualityReport::SkipReason;

Q_DECLARE_METATYPE(MeshQualityReport::Problem)

class MeshQualityReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithLiteralPipeline_data();
    void agreesWithLiteralPipeline();
    void keepsPlacesInTheFile();
    void namesVolumeGroups();
    void countsBadElements();
    void countsRepeatedNodesWithVolume();
    void countsEachPairOfRepeatedNodes();
    void tellsTheMiddleOfAnElement();
    void tellsSkippedLines();
    void countsATypeAtTheEndOfTheFile();
    void keepsTheFirstSkippedLines();
    void tellsSkippedLinesWithoutTetrahedra();
    void warnsOfLayout_data();
    void warnsOfLayout();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void acceptsVersion2_data();
    void acceptsVersion2();
    void refusesUnreadableFiles();
    void forgetsTheMeshBefore();
    void tellsTheSizeAtOnce();
    void reportsProgressAndIsCancelled();

private:
    QString file(const QByteArray& content)
    {
        MeshFiles::write(m_directory.filePath(QStringLiteral("mesh.msh")), content);
        return m_directory.filePath(QStringLiteral("mesh.msh"));
    }

    QTemporaryDir m_directory;
};

void MeshQualityReportTest::agreesWithLiteralPipeline_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const QString& sample : MeshFiles::samples()) {
        QFile mesh(sample);
        QVERIFY(mesh.open(QIODevice::ReadOnly));
        QTest::newRow(qPrintable(sample)) << mesh.readAll();
    }
    for (const auto& [name, content] : MeshFiles::hostile()) {
        QTest::newRow(name.constData()) << content;
    }
}

void MeshQualityReportTest::agreesWithLiteralPipeline()
{
    QFETCH(QByteArray, content);
    const QString path = file(content);
    const LiteralPipeline::Mesh mesh = LiteralPipeline::read(path);
    MeshQualityReport report;
    if (!report.measure(path)) {
        QVERIFY(report.problem() == Problem::WrongFormat || mesh.elements.isEmpty());
        QCOMPARE(report.elementCount(), 0);
        return;
    }
    QCOMPARE(report.elementCount(), mesh.elements.size());
    QCOMPARE(report.nodeCount(), qint64(mesh.nodes.size()));
    const auto expected = LiteralPipeline::metrics(mesh);
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const std::vector<double>& values = report.values(static_cast<Metric>(i));
        QVERIFY(SameValues::same(QVector<double>(values.begin(), values.end()), expected[static_cast<std::size_t>(i)]));
    }
    QVERIFY(SameValues::same(report.features(), LiteralPipeline::features(path)));
}

void MeshQualityReportTest::keepsPlacesInTheFile()
{
    QByteArray content =
        MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 4 4 4"},
                        {"7 2 2 5 1 1 2 3", "8 4 2 6 1 1 2 3 4", "9 4 2 0 1 1 2 3 9", "30 4 2 7 1 2 3 4 5"});
    content.replace("$Nodes",
                    "$PhysicalNames\n3\n2 6 \"skin\"\n3 6 \"first part\"\n3 7 \"\xc3\xa9\"\n$EndPhysicalNames\n$Nodes");
    MeshQualityReport report;
    QVERIFY(report.measure(file(content)));
    QCOMPARE(report.elementCount(), 2);
    QCOMPARE(report.tag(0), 8);
    QCOMPARE(report.tag(1), 30);
    QCOMPARE(report.physicalTag(0), 6);
    QCOMPARE(report.physicalTag(1), 7);
    QCOMPARE(report.line(0), qint64(21));
    QCOMPARE(report.line(1), qint64(23));
    QCOMPARE(report.centroid(0), (std::array<double, 3>{0.25, 0.25, 0.25}));
    QCOMPARE(report.groupNames(), (QMap<int, QString>{{6, QStringLiteral("first part")}, {7, QStringLiteral("é")}}));
}

void MeshQualityReportTest::namesVolumeGroups()
{
    const QByteArray names = "$PhysicalNames\n9\n3 6 \"first part\"\n2 8 \"skin\"\n2 3 \"face\"\n3 9 \"open\n"
                             "3 10 unquoted\n\"3 11\"\n3 12 \"say \"so\" twice\"\n  3   7   \"\"\n$EndPhysicalNames\n"
                             "3 13 \"too late\"\n$Nodes";
    MeshQualityReport report;
    QVERIFY(report.measure(file(MeshFiles::oneTetrahedron(MeshFiles::regular()).replace("$Nodes", names))));
    QCOMPARE(report.groupNames(),
             (QMap<int, QString>{
                 {6, QStringLiteral("first part")}, {7, QString()}, {12, QStringLiteral("say \"so\" twice")}}));
}

void MeshQualityReportTest::countsBadElements()
{
    MeshQualityReport report;
    QVERIFY(report.measure(file(MeshFiles::mesh(
        {"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 1 1 0"},
        {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 1 3 2 4", "3 4 2 0 1 1 2 3 5", "4 4 2 0 1 1 1 2 3", "5 4 2 0 1 2 1 3 4"}))));
    QCOMPARE(report.elementCount(), 5);
    QCOMPARE(report.invertedCount(), 2);
    QCOMPARE(report.flatCount(), 2);
    QCOMPARE(report.duplicateNodeCount(), 1);
}

// Rounding leaves a volume of about -6e-19.
void MeshQualityReportTest::countsRepeatedNodesWithVolume()
{
    MeshQualityReport report;
    QVERIFY(report.measure(
        file(MeshFiles::mesh({"1 0.3 0.1 0.7", "2 0.0 0.6 0.6", "3 0.9 0.0 0.7"}, {"1 4 2 0 1 1 2 3 2"}))));
    QVERIFY(report.values(Metric::Volume).front() != 0.0);
    QCOMPARE(report.duplicateNodeCount(), 1);
    QCOMPARE(report.flatCount(), 0);
}

void MeshQualityReportTest::countsEachPairOfRepeatedNodes()
{
    MeshQualityReport report;
    QVERIFY(report.measure(
        file(MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 1 1 1"},
                             {"1 4 2 0 1 1 1 2 3", "2 4 2 0 1 2 1 2 3", "3 4 2 0 1 1 2 3 1", "4 4 2 0 1 1 2 2 3",
                              "5 4 2 0 1 1 2 3 2", "6 4 2 0 1 1 2 3 3", "7 4 2 0 1 1 2 3 4", "8 4 2 0 1 2 3 4 5"}))));
    QCOMPARE(report.elementCount(), 8);
    QCOMPARE(report.duplicateNodeCount(), 6);
}

// Every sum of four different coordinates is another one.
void MeshQualityReportTest::tellsTheMiddleOfAnElement()
{
    MeshQualityReport report;
    QVERIFY(report.measure(
        file(MeshFiles::mesh({"1 1 2 4", "2 8 16 32", "3 64 128 256", "4 512 1024 2048"}, {"1 4 2 0 1 1 2 3 4"}))));
    QCOMPARE(report.centroid(0), (std::array<double, 3>{146.25, 292.5, 585}));
}

void MeshQualityReportTest::tellsSkippedLines()
{
    const QByteArray content =
        "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n"
        "$Elements\n4\n1 4 2 0 1 1 2 3 4\n2 4 2 0 1 1 2 3 5\n3 4 2 0 1\n4 4 2 0 1 0 2 3 4\n$EndElements\n"
        "$Nodes\n5\n1 0 0 0\n1 2 3\n2 1 0 0\n3 0 1 0\n4 0 0 1\n$EndNodes\n";
    MeshQualityReport report;
    QVERIFY(report.measure(file(content)));
    QCOMPARE(report.elementCount(), 1);
    QCOMPARE(report.nodeCount(), qint64(4));
    const std::vector<MeshQualityReport::SkippedLine>& lines = report.skippedLines();
    QCOMPARE(lines.size(), std::size_t(4));
    const QVector<QPair<qint64, SkipReason>> expected{{7, SkipReason::MissingNode},
                                                      {8, SkipReason::ShortTetrahedron},
                                                      {9, SkipReason::MissingNode},
                                                      {14, SkipReason::ShortNode}};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(lines[static_cast<std::size_t>(i)].line, expected.at(i).first);
        QVERIFY(lines[static_cast<std::size_t>(i)].reason == expected.at(i).second);
    }
}

void MeshQualityReportTest::countsATypeAtTheEndOfTheFile()
{
    QByteArray content = MeshFiles::oneTetrahedron(MeshFiles::regular()).replace("$EndElements\n", "9 4");
    MeshQualityReport report;
    QVERIFY(report.measure(file(content)));
    QCOMPARE(report.skippedLineCount(SkipReason::ShortTetrahedron), qint64(1));
    QCOMPARE(report.skippedLines().front().line, qint64(14));
    // Elsewhere the line terminator makes another type of it.
    QVERIFY(report.measure(file(content + '\n')));
    QCOMPARE(report.skippedLineCount(), qint64(0));
}

void MeshQualityReportTest::keepsTheFirstSkippedLines()
{
    QList<QByteArray> elements{"1 4 2 0 1 1 2 3 4"};
    for (int i = 0; i < 1500; ++i) {
        elements.append("1 4 2");
        elements.append("1 4 2 0 1 1 2 3 5");
    }
    MeshQualityReport report;
    QVERIFY(report.measure(file(MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5"}, elements))));
    QCOMPARE(report.skippedLineCount(), qint64(3001));
    QCOMPARE(report.skippedLineCount(SkipReason::ShortNode), qint64(1));
    QCOMPARE(report.skippedLineCount(SkipReason::ShortTetrahedron), qint64(1500));
    QCOMPARE(report.skippedLineCount(SkipReason::MissingNode), qint64(1500));
    QCOMPARE(report.skippedLines().size(), std::size_t(1000));
    QCOMPARE(report.skippedLines()[0].line, qint64(10));
    for (int i = 1; i < 1000; ++i) {
        const MeshQualityReport::SkippedLine& line = report.skippedLines()[static_cast<std::size_t>(i)];
        QCOMPARE(line.line, qint64(14 + i));
        QVERIFY(line.reason == (i % 2 == 1 ? SkipReason::ShortTetrahedron : SkipReason::MissingNode));
    }
}

void MeshQualityReportTest::tellsSkippedLinesWithoutTetrahedra()
{
    MeshQualityReport report;
    QVERIFY(!report.measure(file(MeshFiles::mesh({"1 0 0 0"}, {"1 4 0 1 1 1 1", "2 4 2 0 1 1 1 1 2", "3 4"}))));
    QVERIFY(report.problem() == Problem::NoTetrahedra);
    QCOMPARE(report.problemText(),
             QStringLiteral("no tetrahedra (2 lines skipped, first: line 10: a tetrahedron needs nine columns)"));
    QCOMPARE(report.skippedLineCount(), qint64(2));
    QCOMPARE(report.skippedLines().size(), std::size_t(2));
    QCOMPARE(report.otherTagCounts().count, qint64(1));
    QCOMPARE(report.warnings(QString()).size(), 1);
    // The next mesh knows nothing of it.
    QVERIFY(report.measure(file(MeshFiles::oneTetrahedron(MeshFiles::regular()))));
    QCOMPARE(report.skippedLineCount(), qint64(0));
    QCOMPARE(report.otherTagCounts().firstLine, qint64(0));
    QCOMPARE(report.warnings(QString()), QStringList());
}

void MeshQualityReportTest::warnsOfLayout_data()
{
    QTest::addColumn<QList<QByteArray>>("nodes");
    QTest::addColumn<QList<QByteArray>>("elements");
    QTest::addColumn<qint64>("misnumbered");
    QTest::addColumn<qint64>("firstMisnumbered");
    QTest::addColumn<qint64>("otherTags");
    QTest::addColumn<qint64>("firstOtherTags");
    const QList<QByteArray> nodes{"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"};
    const QList<QByteArray> elements{"9 4 2 0 1 1 2 3 4"};
    const auto row = [](const char* name, const QList<QByteArray>& nodeLines, const QList<QByteArray>& elementLines,
                        qint64 misnumbered, qint64 firstMisnumbered, qint64 otherTags, qint64 firstOtherTags) {
        QTest::newRow(name) << nodeLines << elementLines << misnumbered << firstMisnumbered << otherTags
                            << firstOtherTags;
    };
    row("as it should be", nodes, elements, 0, 0, 0, 0);
    row("from 0", {"0 0 0 0", "1 1 0 0", "2 0 1 0", "3 0 0 1"}, elements, 4, 6, 0, 0);
    row("exchanged", {"1 0 0 0", "3 1 0 0", "2 0 1 0", "4 0 0 1"}, elements, 2, 7, 0, 0);
    row("a gap", {"1 0 0 0", "2 1 0 0", "3 0 1 0", "5 0 0 1"}, elements, 1, 9, 0, 0);
    row("moved up by a short line", {"1 0 0 0", "2", "3 1 0 0", "4 0 1 0", "5 0 0 1"}, elements, 3, 8, 0, 0);
    row("no number", {"1 0 0 0", "2 1 0 0", "x 0 1 0", "4 0 0 1"}, elements, 1, 8, 0, 0);
    row("three tags", nodes, {"9 4 2 0 1 1 2 3 4", "9 4 3 0 1 1 2 3 4", "9 4 3 0 1 1 2 3 4"}, 0, 0, 2, 14);
    row("no tags", nodes, {"9 4 2 0 1 1 2 3 4", "9 4 0 1 2 3 4"}, 0, 0, 1, 14);
    row("another type", nodes, {"9 4 2 0 1 1 2 3 4", "9 2 3 0 1 1 2 3 4", "9 4"}, 0, 0, 0, 0);
    row("a missing node, too", nodes, {"9 4 4 0 1 2 1 2 3 4", "9 4 4 0 1 9 1 2 3 4"}, 0, 0, 2, 13);
}

void MeshQualityReportTest::warnsOfLayout()
{
    QFETCH(QList<QByteArray>, nodes);
    QFETCH(QList<QByteArray>, elements);
    QFETCH(qint64, misnumbered);
    QFETCH(qint64, otherTags);
    const QString path = file(MeshFiles::mesh(nodes, elements));
    MeshQualityReport report;
    QVERIFY(report.measure(path));
    QCOMPARE(report.misnumberedNodes().count, misnumbered);
    QTEST(report.misnumberedNodes().firstLine, "firstMisnumbered");
    QCOMPARE(report.otherTagCounts().count, otherTags);
    QTEST(report.otherTagCounts().firstLine, "firstOtherTags");
    QCOMPARE(report.warnings(path).size(), (misnumbered > 0 ? 1 : 0) + (otherTags > 0 ? 1 : 0));
    for (const QString& warning : report.warnings(path)) {
        const MeshQualityReport::Places places = misnumbered > 0 ? report.misnumberedNodes() : report.otherTagCounts();
        QVERIFY(warning.startsWith(QString::number(places.count)));
        QVERIFY(warning.contains(QStringLiteral("(first: line %1)").arg(places.firstLine)));
        QVERIFY(warning.contains(QStringLiteral("gmsh -save -format msh22 -o ")));
        QVERIFY(warning.endsWith(QStringLiteral(".msh '%1'").arg(path)));
    }
    // As the described reader takes them, warning or not.
    QVERIFY(SameValues::same(report.features(), LiteralPipeline::features(path)));
}

void MeshQualityReportTest::tellsWhatIsWrong_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Problem>("problem");
    QTest::addColumn<QString>("text");

    const QString pipe = m_directory.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("missing") << m_directory.filePath(QStringLiteral("none")) << Problem::Missing << "no such file";
    QTest::newRow("directory") << m_directory.path() << Problem::NotRegularFile << "not a regular file";
    QTest::newRow("pipe") << pipe << Problem::NotRegularFile << "not a regular file";
    QTest::newRow("device") << QStringLiteral("/dev/zero") << Problem::NotRegularFile << "not a regular file";

    const auto row = [this](const char* name, const QByteArray& content, Problem problem, const QString& text) {
        const QString path = m_directory.filePath(QStringLiteral("it's %1.msh").arg(QString::fromLatin1(name)));
        MeshFiles::write(path, content);
        QTest::newRow(name) << path << problem << QString(text).replace(QStringLiteral("%1"), m_directory.path());
    };
    const auto advice = [](const char* format, const char* name) {
        return QStringLiteral("%2, not MSH 2 ASCII; convert it with: gmsh -save -format msh22 -o converted.msh "
                              "'%1/it'\\''s %3.msh'")
            .arg(QStringLiteral("%1"), QString::fromLatin1(format), QString::fromLatin1(name));
    };
    row("empty", "", Problem::WrongFormat, advice("a file without $MeshFormat", "empty"));
    row("version 1", "$NOD\n1\n1 0 0 0\n$ENDNOD\n", Problem::WrongFormat, advice("MSH 1 ASCII", "version 1"));
    row("version 1 first", "$NOD\n1\n1 0 0 0\n$ENDNOD\n$MeshFormat\n2.2 0 8\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("MSH 1 ASCII", "version 1 first"));
    row("version 4.1 first", "$MeshFormat\n4.1 0 8\n$EndMeshFormat\n$MeshFormat\n2.2 0 8\n$EndMeshFormat\n",
        Problem::WrongFormat, advice("MSH 4.1 ASCII", "version 4.1 first"));
    row("version 4.1", "$MeshFormat\n4.1 0 8\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("MSH 4.1 ASCII", "version 4.1"));
    row("version 2.x", "$MeshFormat\n2.x 0 8\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("MSH 2.x ASCII", "version 2.x"));
    row("version 3", "$MeshFormat\n3 0 8\n$EndMeshFormat\n", Problem::WrongFormat, advice("MSH 3 ASCII", "version 3"));
    row("version 1.9", "$MeshFormat\n1.9 0 8\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("MSH 1.9 ASCII", "version 1.9"));
    row("binary", QByteArray("$MeshFormat\n2.2 1 8\n\1\0\0\0\n$EndMeshFormat\n", 40), Problem::WrongFormat,
        advice("MSH 2.2 binary", "binary"));
    row("no file type", "$MeshFormat\n2.2\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("MSH 2.2 of file type ''", "no file type"));
    row("blank after the marker", "$MeshFormat\n \n2.2 0 8\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("a file with a blank line after $MeshFormat", "blank after the marker"));
    row("cut after the marker", "$MeshFormat\n", Problem::WrongFormat,
        advice("a file with nothing after $MeshFormat", "cut after the marker"));
    row("nothing in the format", "$MeshFormat\n$EndMeshFormat\n", Problem::WrongFormat,
        advice("a file with nothing after $MeshFormat", "nothing in the format"));
    row("long version and file type", "$MeshFormat\n2.34567890123456789012 abcdefghijklmnopqrstuvw 8\n$EndMeshFormat\n",
        Problem::WrongFormat,
        advice("MSH 2.345678901234567890 of file type 'abcdefghijklmnopqrst'", "long version and file type"));
    row("no header", "$Nodes\n1\n1 0 0 0\n$EndNodes\n", Problem::WrongFormat,
        advice("a file without $MeshFormat", "no header"));
    row("no tetrahedra", MeshFiles::mesh({"1 0 0 0"}, {"1 15 2 0 1 1"}), Problem::NoTetrahedra,
        QStringLiteral("no tetrahedra"));
}

void MeshQualityReportTest::tellsWhatIsWrong()
{
    QFETCH(QString, path);
    MeshQualityReport report;
    QVERIFY(!report.measure(path));
    QTEST(report.problem(), "problem");
    QTEST(report.problemText(), "text");
    QCOMPARE(report.elementCount(), 0);
}

void MeshQualityReportTest::acceptsVersion2_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::newRow("2.2") << QByteArray("2.2 0 8");
    QTest::newRow("2") << QByteArray("2 0 8");
    QTest::newRow("2.0 CRLF") << QByteArray("2.0 0 8\r");
    QTest::newRow("2.1, blanks") << QByteArray(" 2.1  0  8 ");
    QTest::newRow("2.9") << QByteArray("2.9 0 8");
    QTest::newRow("only the first line counts") << QByteArray("2.2 0 8\n4.1 1 8\n \n3 7 \"no group\"");
}

void MeshQualityReportTest::acceptsVersion2()
{
    QFETCH(QByteArray, header);
    MeshQualityReport report;
    QVERIFY(report.measure(file(MeshFiles::oneTetrahedron(MeshFiles::regular()).replace("2.2 0 8", header))));
    QVERIFY(report.problem() == Problem::None);
    QVERIFY(report.problemText().isEmpty());
    QVERIFY(report.groupNames().isEmpty());
}

void MeshQualityReportTest::refusesUnreadableFiles()
{
    const QString path = file(MeshFiles::oneTetrahedron(MeshFiles::regular()));
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    QVERIFY(QFile::setPermissions(m_directory.path(), QFile::Permissions(0x7755)));
    MeshQualityReport report;
    {
        const Nobody nobody;
        QVERIFY(!report.measure(path));
    }
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x6644)));
    QVERIFY(report.problem() == Problem::Unreadable);
    QCOMPARE(report.problemText(), QStringLiteral("cannot be opened"));
}

void MeshQualityReportTest::tellsTheSizeAtOnce()
{
    const QByteArray content = MeshFiles::oneTetrahedron(MeshFiles::regular());
    QVector<QPair<qint64, qint64>> calls;
    MeshQualityReport report;
    QVERIFY(report.measure(file(content), [&calls](qint64 read, qint64 total) {
        calls.append({read, total});
        return true;
    }));
    QCOMPARE(calls, (QVector<QPair<qint64, qint64>>{{0, content.size()}}));
}

void MeshQualityReportTest::forgetsTheMeshBefore()
{
    MeshQualityReport report;
    QVERIFY(report.measure(MeshFiles::samples().first()));
    QVERIFY(report.measure(file(MeshFiles::oneTetrahedron(MeshFiles::regular()))));
    QCOMPARE(report.elementCount(), 1);
    QCOMPARE(report.values(Metric::Shape).size(), std::size_t(1));
    QVERIFY(!report.measure(m_directory.path()));
    QCOMPARE(report.elementCount(), 0);
    QCOMPARE(report.nodeCount(), qint64(0));
    QVERIFY(report.values(Metric::Shape).empty());
    QVERIFY(report.problem() != MeshQualityReport::Problem::None && !report.problemText().isEmpty());
    QVERIFY(!report.measure(file("$MeshFormat\n4.1 0 8\n$EndMeshFormat\n")));
    QVERIFY(!report.otherFormat().isEmpty());
    QVERIFY(report.measure(MeshFiles::samples().first()));
    QVERIFY(report.problem() == MeshQualityReport::Problem::None);
    QCOMPARE(report.problemText() + report.otherFormat(), QString());
}

void MeshQualityReportTest::reportsProgressAndIsCancelled()
{
    QList<QByteArray> lines;
    for (int i = 0; i < 200000; ++i) {
        lines.append("1 0 0 0");
    }
    const QString path = file(MeshFiles::mesh(lines, {"1 4 2 0 1 1 2 3 4"}));
    const qint64 size = QFileInfo(path).size();
    MeshQualityReport report;
    qint64 last = -1;
    int calls = 0;
    QVERIFY(report.measure(path, [&](qint64 read, qint64 total) {
        const bool isForward = (calls == 0 ? read == 0 : read >= last) && total == size;
        last = read;
        ++calls;
        return isForward;
    }));
    QVERIFY(calls > 3);
    QVERIFY(last > size / 2);
    QVERIFY(last <= size);

    calls = 0;
    QVERIFY(!report.measure(path, [&calls](qint64, qint64) { return ++calls < 3; }));
    QCOMPARE(calls, 3);
    QVERIFY(report.problem() == Problem::Cancelled);
}

QTEST_GUILESS_MAIN(MeshQualityReportTest)
#include "tst_meshqualityreport.moc"
