// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <datamanager/meshquality/MeshQualityReport.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLUnstructuredGridReader.h>

#include <cstring>

using DataManager::MeshQualityReport;
using Metric = MeshQualityReport::Metric;

/// What `meshquality report` writes for other programs, read by them again.
class MeshQualityFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsOneObjectALine();
    void writesGridForVtk_data();
    void writesGridForVtk();
    void keepsEveryBitInTheGrid();
    void tellsWhatCannotBeWritten_data();
    void tellsWhatCannotBeWritten();
    void keepsWhatWasThereWhenTheSpaceEnds_data();
    void keepsWhatWasThereWhenTheSpaceEnds();
    void showsProgressOnTerminalsOnly();

private:
    QString path(const char* name) const { return m_directory.filePath(QString::fromUtf8(name)); }
    QString file(const char* name, const QByteArray& content) const
    {
        MeshFiles::write(path(name), content);
        return path(name);
    }
    QTemporaryDir m_directory;
};

namespace {

const QString slivers = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/slivers.msh");
const QString housing = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");

ProgramRun report(const QStringList& arguments)
{
    return runMeshQuality(QStringList{QStringLiteral("report")} + arguments);
}

vtkSmartPointer<vtkUnstructuredGrid> readGrid(const QString& path)
{
    vtkNew<vtkXMLUnstructuredGridReader> reader;
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->Update();
    return reader->GetOutput();
}

bool isSameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

void MeshQualityFilesTest::printsOneObjectALine()
{
    const QString missing = path("none.msh");
    const ProgramRun run = report({QStringLiteral("--jsonl"), slivers, missing, housing});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.errors, "meshquality: " + missing.toUtf8() + ": no such file\n");
    const QList<QByteArray> lines = run.output.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(3), QByteArray());
    const QJsonObject first = QJsonDocument::fromJson(lines.at(0)).object();
    QCOMPARE(first.value(QStringLiteral("file")).toString(), slivers);
    QCOMPARE(first.value(QStringLiteral("tetrahedra")).toInt(), 3156);
    QCOMPARE(
        QJsonDocument::fromJson(lines.at(1)).object(),
        (QJsonObject{{QStringLiteral("file"), missing}, {QStringLiteral("problem"), QStringLiteral("no such file")}}));
    const QJsonObject last = QJsonDocument::fromJson(lines.at(2)).object();
    QCOMPARE(last.value(QStringLiteral("regions")).toArray().size(), 3);

    const ProgramRun indented = report({QStringLiteral("--json"), QStringLiteral("-"), slivers});
    QCOMPARE(QJsonDocument::fromJson(indented.output).array().first().toObject(), first);
}

void MeshQualityFilesTest::writesGridForVtk_data()
{
    QTest::addColumn<QString>("mesh");
    for (const QString& mesh : MeshFiles::samples()) {
        QTest::newRow(qPrintable(QFileInfo(mesh).fileName())) << mesh;
    }
}

void MeshQualityFilesTest::writesGridForVtk()
{
    QFETCH(QString, mesh);
    const ProgramRun run = report({QStringLiteral("--vtu"), path("mesh.vtu"), mesh});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    MeshQualityReport expected;
    QVERIFY(expected.measure(mesh));
    const auto grid = readGrid(path("mesh.vtu"));
    QCOMPARE(qint64(grid->GetNumberOfPoints()), expected.nodeCount());
    QCOMPARE(qint64(grid->GetNumberOfCells()), qint64(expected.elementCount()));
    vtkCellData* const data = grid->GetCellData();
    QCOMPARE(data->GetNumberOfArrays(), 3 + MeshQualityReport::metricCount);
    vtkNew<vtkIdList> corners;
    for (int element = 0; element < expected.elementCount(); ++element) {
        QCOMPARE(grid->GetCellType(element), 10);
        grid->GetCellPoints(element, corners);
        std::array<double, 3> centre{};
        for (vtkIdType corner = 0; corner < 4; ++corner) {
            const double* const point = grid->GetPoint(corners->GetId(corner));
            for (std::size_t axis = 0; axis < 3; ++axis) {
                centre[axis] += point[axis];
            }
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            QVERIFY(isSameBits(centre[axis] / 4.0, expected.centroid(element)[axis]));
        }
        QCOMPARE(int(data->GetArray("element")->GetTuple1(element)), expected.tag(element));
        QCOMPARE(int(data->GetArray("region")->GetTuple1(element)), expected.physicalTag(element));
        QCOMPARE(qint64(data->GetArray("line")->GetTuple1(element)), expected.line(element));
    }
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<Metric>(i);
        vtkDataArray* const array = data->GetArray(MeshQualityReport::metricName(metric).toLatin1().constData());
        QVERIFY(array != nullptr);
        for (int element = 0; element < expected.elementCount(); ++element) {
            QVERIFY(isSameBits(array->GetTuple1(element), expected.values(metric)[static_cast<std::size_t>(element)]));
        }
    }
}

void MeshQualityFilesTest::keepsEveryBitInTheGrid()
{
    // Flat and inverted: infinities and no numbers. A node that no element names stays.
    const QString mesh = file("odd.msh", MeshFiles::mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 1e-300 7 0.1"},
                                                         {"9 4 2 3 1 1 2 3 2", "8 4 2 4 1 1 3 2 4"}));
    QCOMPARE(report({QStringLiteral("--vtu"), path("odd.vtu"), mesh}).exitCode, 0);
    MeshQualityReport expected;
    QVERIFY(expected.measure(mesh));
    const auto grid = readGrid(path("odd.vtu"));
    QCOMPARE(int(grid->GetNumberOfPoints()), 5);
    QVERIFY(isSameBits(grid->GetPoint(4)[0], 1e-300) && isSameBits(grid->GetPoint(4)[2], 0.1));
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<Metric>(i);
        vtkDataArray* const array =
            grid->GetCellData()->GetArray(MeshQualityReport::metricName(metric).toLatin1().constData());
        for (std::size_t element = 0; element < 2; ++element) {
            QVERIFY(isSameBits(array->GetTuple1(static_cast<vtkIdType>(element)), expected.values(metric)[element]));
        }
    }
    QVERIFY(std::isnan(grid->GetCellData()->GetArray("Shape")->GetTuple1(1)));
    QCOMPARE(int(grid->GetCellData()->GetArray("region")->GetTuple1(1)), 4);
}

void MeshQualityFilesTest::tellsWhatCannotBeWritten_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("vtu") << QStringLiteral("--vtu");
    QTest::newRow("html") << QStringLiteral("--html");
}

void MeshQualityFilesTest::tellsWhatCannotBeWritten()
{
    QFETCH(QString, option);
    const QString impossible = path("no/such/directory/result");
    const ProgramRun run = report({option, impossible, slivers});
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.errors, "meshquality: " + impossible.toUtf8() + ": cannot be written\n");
}

void MeshQualityFilesTest::keepsWhatWasThereWhenTheSpaceEnds_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option : {"--csv", "--vtu", "--html"}) {
        QTest::newRow(option) << QString::fromLatin1(option);
    }
}

void MeshQualityFilesTest::keepsWhatWasThereWhenTheSpaceEnds()
{
    QFETCH(QString, option);
    QTemporaryDir directory;
    const QString result = directory.filePath(QStringLiteral("result"));
    MeshFiles::write(result, "old");
    // No file may grow above some kilobytes, and who tries gets an error instead of the signal.
    QProcess process;
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("trap '' XFSZ; ulimit -f 8; exec " MESHQUALITY_PROGRAM " report \"$@\""),
                   QStringLiteral("sh"), option, result, slivers});
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(process.readAllStandardError(), "meshquality: " + result.toUtf8() + ": cannot be written\n");
    QFile kept(result);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("old"));
    QCOMPARE(QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("result")});
}

void MeshQualityFilesTest::showsProgressOnTerminalsOnly()
{
    const QString terminal = QStandardPaths::findExecutable(QStringLiteral("script"));
    if (terminal.isEmpty()) {
        QSKIP("script, which gives a program a terminal, is not installed");
    }
    QByteArray content = MeshFiles::oneTetrahedron(MeshFiles::regular());
    content.replace("$EndElements", QByteArray("1 2 2 0 1 1 2 3\n").repeated(1100000) + "$EndElements");
    const QString large = file("large.msh", content);
    const auto onTerminal = [&terminal](const QString& mesh) {
        QProcess process;
        process.start(terminal, {QStringLiteral("-qec"), QStringLiteral(MESHQUALITY_PROGRAM " report '%1'").arg(mesh),
                                 QStringLiteral("/dev/null")});
        return process.waitForFinished(120000) ? process.readAllStandardOutput() : QByteArray();
    };
    const QByteArray shown = onTerminal(large);
    QVERIFY2(shown.contains("large.msh: 5"), shown.left(400).constData());
    QVERIFY(shown.contains("1 tetrahedra"));
    // The line is gone before the report begins.
    QVERIFY(shown.contains("\r\033[K" + large.toUtf8() + "\r\n"));
    QVERIFY(!onTerminal(slivers).contains('\033'));
    QCOMPARE(report({large}).errors, QByteArray());
}

QTEST_GUILESS_MAIN(MeshQualityFilesTest)
#include "tst_meshqualityfiles.moc"
