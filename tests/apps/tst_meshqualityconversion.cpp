// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshQualityProgram.h"

#include "meshquality/MeshFiles.h"

#include <meshquality/GmshConversion.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkUnstructuredGrid.h>
#include <vtkXMLUnstructuredGridWriter.h>

/// Meshes in other formats than MSH 2 ASCII.
class MeshQualityConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void takesOtherMshVersions_data();
    void takesOtherMshVersions();
    void ignoresOptionsBesideTheMesh();
    void tellsHowToConvertWithoutGmsh();
    void handsOnlyMeshesToGmsh_data();
    void handsOnlyMeshesToGmsh();
    void tellsWhatGmshSays_data();
    void tellsWhatGmshSays();
    void endsGmshThatTakesTooLong();
    void readsItsOwnGrids_data();
    void readsItsOwnGrids();
    void readsGridsOfVtk();
    void refusesDamagedGrids_data();
    void refusesDamagedGrids();

private:
    QString path(const QString& name) const { return m_directory->filePath(name); }
    QString file(const char* name, const QByteArray& content) const
    {
        MeshFiles::write(path(QString::fromUtf8(name)), content);
        return path(QString::fromUtf8(name));
    }
    /// Puts a script in the place of gmsh.
    void installGmsh(const QByteArray& script) const
    {
        const QString program = file("programs/gmsh", "#!/bin/sh\n" + script);
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        qputenv("PATH", QFile::encodeName(path(QStringLiteral("programs"))) + ":/usr/bin:/bin");
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QByteArray m_searchPath;
    QByteArray m_temporary;
};

namespace {

const QString housing = QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples/bearing-housing.msh");
const QByteArray newer("$MeshFormat\n4.1 0 8\n$EndMeshFormat\n");

ProgramRun report(const QString& mesh)
{
    return runMeshQuality({QStringLiteral("report"), QStringLiteral("--json"), QStringLiteral("-"), mesh});
}

QJsonObject only(const ProgramRun& run)
{
    return QJsonDocument::fromJson(run.output).array().first().toObject();
}

/// The numbers of the worst elements, of the worst first.
QVariantList worst(const QJsonObject& mesh)
{
    QVariantList numbers;
    for (const QJsonValue element : mesh.value(QStringLiteral("worst")).toArray()) {
        numbers.append(element.toObject().value(QStringLiteral("element")).toInt());
    }
    return numbers;
}

} // namespace

void MeshQualityConversionTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY2(m_directory->isValid(), qPrintable(m_directory->errorString()));
    m_searchPath = qgetenv("PATH");
    m_temporary = qgetenv("TMPDIR");
    for (const char* name : {"programs", "temporary"}) {
        QVERIFY(QDir(m_directory->path()).mkpath(QString::fromLatin1(name)));
    }
    qputenv("TMPDIR", QFile::encodeName(path(QStringLiteral("temporary"))));
}

void MeshQualityConversionTest::cleanup()
{
    qputenv("PATH", m_searchPath);
    qputenv("TMPDIR", m_temporary);
    // Whatever happened, no conversion stays. (The model's runtime leaves files of its own there.)
    const QDir::Filters directories = QDir::AllDirs | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(path(QStringLiteral("temporary"))).entryList(directories), QStringList());
    m_directory.reset();
}

void MeshQualityConversionTest::takesOtherMshVersions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("format");
    QTest::newRow("4.1") << QStringList{QStringLiteral("msh41")} << QStringLiteral("MSH 4.1 ASCII");
    QTest::newRow("4.0") << QStringList{QStringLiteral("msh40")} << QStringLiteral("MSH 4 ASCII");
    QTest::newRow("4.1 binary") << QStringList{QStringLiteral("msh41"), QStringLiteral("-bin")}
                                << QStringLiteral("MSH 4.1 binary");
    QTest::newRow("2.2 binary") << QStringList{QStringLiteral("msh22"), QStringLiteral("-bin")}
                                << QStringLiteral("MSH 2.2 binary");
}

void MeshQualityConversionTest::takesOtherMshVersions()
{
    QFETCH(QStringList, options);
    if (!MeshQuality::GmshConversion::isAvailable()) {
        QSKIP("gmsh is not installed");
    }
    const QString mesh = path(QStringLiteral("it's a mesh.msh"));
    QCOMPARE(QProcess::execute(QStringLiteral("gmsh"),
                               QStringList{QStringLiteral("-save"), QStringLiteral("-v"), QStringLiteral("0"),
                                           QStringLiteral("-o"), mesh, housing, QStringLiteral("-format")} +
                                   options),
             0);
    const ProgramRun run = report(mesh);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    const QJsonObject found = only(run);
    const QJsonObject expected = only(report(housing));
    QTEST(found.value(QStringLiteral("convertedFrom")).toString(), "format");
    // Programs may count on the order of what was there first.
    QVERIFY(run.output.indexOf("\"convertedFrom\"") > run.output.indexOf("\"firstSkippedLines\""));
    QVERIFY(!expected.contains(QStringLiteral("convertedFrom")));
    QCOMPARE(found.value(QStringLiteral("file")).toString(), mesh);
    for (const char* count : {"tetrahedra", "inverted", "flat", "skippedLines"}) {
        QCOMPARE(found.value(QLatin1String(count)), expected.value(QLatin1String(count)));
    }
    // Gmsh writes 16 digits, one fewer than a number may need.
    QVERIFY(qAbs(found.value(QStringLiteral("score")).toDouble() - expected.value(QStringLiteral("score")).toDouble()) <
            1e-5);
    QCOMPARE(worst(found), worst(expected));
    const QJsonArray regions = expected.value(QStringLiteral("regions")).toArray();
    QCOMPARE(found.value(QStringLiteral("regions")).toArray().size(), regions.size());
    for (int i = 0; i < regions.size(); ++i) {
        for (const char* key : {"tag", "name", "tetrahedra"}) {
            QCOMPARE(found.value(QStringLiteral("regions")).toArray().at(i).toObject().value(QLatin1String(key)),
                     regions.at(i).toObject().value(QLatin1String(key)));
        }
    }
}

void MeshQualityConversionTest::ignoresOptionsBesideTheMesh()
{
    if (!MeshQuality::GmshConversion::isAvailable()) {
        QSKIP("gmsh is not installed");
    }
    const QString trace = path(QStringLiteral("trace"));
    const QString mesh = file("newer.msh", newer);
    file("newer.msh.opt", "SystemCall \"touch " + trace.toUtf8() + "\";\n");
    const ProgramRun run = report(mesh);
    QCOMPARE(run.exitCode, 3);
    QVERIFY(!QFile::exists(trace));
}

void MeshQualityConversionTest::tellsHowToConvertWithoutGmsh()
{
    qputenv("PATH", QFile::encodeName(path(QStringLiteral("programs"))));
    const QString mesh = file("newer.msh", newer);
    const ProgramRun run = report(mesh);
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QByteArray("[]\n"));
    QCOMPARE(run.errors, "meshquality: " + mesh.toUtf8() +
                             ": MSH 4.1 ASCII, not MSH 2 ASCII; convert it with: gmsh -save -format msh22 -o "
                             "converted.msh '" +
                             mesh.toUtf8() + "'\n");
}

void MeshQualityConversionTest::handsOnlyMeshesToGmsh_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRun");
    QTest::newRow("version 4") << newer << true;
    QTest::newRow("version 1") << QByteArray("$NOD\n1\n1 0 0 0\n$ENDNOD\n") << true;
    QTest::newRow("script") << "SystemCall \"x\";\n" + newer << false;
    QTest::newRow("comment") << "// " + newer << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void MeshQualityConversionTest::handsOnlyMeshesToGmsh()
{
    QFETCH(QByteArray, content);
    const QString trace = path(QStringLiteral("trace"));
    installGmsh("touch '" + QFile::encodeName(trace) + "'\nexit 1\n");
    const ProgramRun run = report(file("mesh.msh", content));
    QCOMPARE(run.exitCode, 3);
    QTEST(QFile::exists(trace), "isRun");
}

void MeshQualityConversionTest::tellsWhatGmshSays_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("problem");
    const QByteArray failed("MSH 4.1 ASCII, and gmsh cannot convert it: ");
    QTest::newRow("error") << QByteArray("echo Info; echo 'Error   : no licence' >&2; exit 1\n")
                           << failed + "Error : no licence";
    QTest::newRow("the first error is the cause")
        << QByteArray("echo 'Error : no nodes'; echo 'Error : cannot load'; exit 1\n") << failed + "Error : no nodes";
    QTest::newRow("no error") << QByteArray("echo Info; echo '  Bye   now'; exit 1\n") << failed + "Bye now";
    QTest::newRow("the name of the mesh")
        << QByteArray("while [ $# -gt 1 ]; do shift; done\necho \"Error : loading $1\"; exit 1\n")
        << failed + "Error : loading MESH";
    QTest::newRow("silence") << QByteArray("exit 2\n") << failed + "gmsh gave no reason";
    QTest::newRow("crash") << QByteArray("kill -KILL $$\n") << failed + "gmsh crashed";
    QTest::newRow("no result") << QByteArray("exit 0\n") << failed + "it wrote no file";
    QTest::newRow("still another format")
        << QByteArray("while [ $# -gt 2 ]; do shift; done\nprintf '$MeshFormat\\n4.1 0 8\\n' > \"$1\"\n")
        << QByteArray("MSH 4.1 ASCII, and gmsh cannot convert it: it wrote MSH 4.1 ASCII");
}

void MeshQualityConversionTest::tellsWhatGmshSays()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, problem);
    installGmsh(script);
    const QString mesh = file("newer.msh", newer);
    const ProgramRun run = report(mesh);
    QCOMPARE(run.errors, "meshquality: " + mesh.toUtf8() + ": " + problem.replace("MESH", mesh.toUtf8()) + '\n');
    QCOMPARE(run.exitCode, 3);
}

void MeshQualityConversionTest::endsGmshThatTakesTooLong()
{
    const QString trace = path(QStringLiteral("trace"));
    installGmsh("echo $$ > '" + QFile::encodeName(trace) + "'\nexec sleep 600\n");
    const QTemporaryDir directory;
    QString problem;
    const QString mesh = file("newer.msh", newer);
    QCOMPARE(MeshQuality::GmshConversion(1500).convert(mesh, directory.path(), problem), QString());
    QCOMPARE(problem, QStringLiteral("gmsh took longer than 1.5 seconds"));
    QFile written(trace);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray process = written.readAll().trimmed();
    QVERIFY(process.toInt() > 1);
    QVERIFY(!QFile::exists(QStringLiteral("/proc/") + QString::fromLatin1(process)));
}

void MeshQualityConversionTest::readsItsOwnGrids_data()
{
    QTest::addColumn<QString>("mesh");
    for (const QString& mesh : MeshFiles::samples()) {
        QTest::newRow(qPrintable(QFileInfo(mesh).fileName())) << mesh;
    }
}

void MeshQualityConversionTest::readsItsOwnGrids()
{
    QFETCH(QString, mesh);
    const QString grid = path(QStringLiteral("grid.vtu"));
    QCOMPARE(runMeshQuality({QStringLiteral("report"), QStringLiteral("--vtu"), grid, mesh}).exitCode, 0);
    const ProgramRun run = report(grid);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.exitCode, 0);
    const QJsonObject found = only(run);
    const QJsonObject expected = only(report(mesh));
    QCOMPARE(found.value(QStringLiteral("convertedFrom")).toString(), QStringLiteral("VTK XML"));
    for (const char* key : {"nodes", "tetrahedra", "inverted", "flat", "features", "score", "metrics"}) {
        QCOMPARE(found.value(QLatin1String(key)), expected.value(QLatin1String(key)));
    }
    QCOMPARE(worst(found), worst(expected));
    const auto regionTag = [](const QJsonObject& object) {
        return object.value(QStringLiteral("regions")).toArray().last().toObject().value(QStringLiteral("tag"));
    };
    QCOMPARE(regionTag(found), regionTag(expected));
}

void MeshQualityConversionTest::readsGridsOfVtk()
{
    vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    for (const double z : {0.0, 1.0}) {
        points->InsertNextPoint(0, 0, z);
        points->InsertNextPoint(1, 0, z);
        points->InsertNextPoint(0, 1, z);
    }
    vtkNew<vtkUnstructuredGrid> grid;
    grid->SetPoints(points);
    const vtkIdType wedge[] = {0, 1, 2, 3, 4, 5};
    const vtkIdType tetrahedron[] = {0, 1, 2, 3};
    grid->InsertNextCell(VTK_WEDGE, 6, wedge);
    grid->InsertNextCell(VTK_TETRA, 4, tetrahedron);
    vtkNew<vtkXMLUnstructuredGridWriter> writer;
    const QString written = path(QStringLiteral("compressed.VTU"));
    writer->SetFileName(QFile::encodeName(written).constData());
    writer->SetInputData(grid);
    QCOMPARE(writer->Write(), 1);
    const ProgramRun run = report(written);
    QCOMPARE(run.errors, QByteArray());
    const QJsonObject mesh = only(run);
    QCOMPARE(mesh.value(QStringLiteral("nodes")).toInt(), 6);
    QCOMPARE(mesh.value(QStringLiteral("tetrahedra")).toInt(), 1);
    QCOMPARE(worst(mesh), QVariantList{2});
    QCOMPARE(mesh.value(QStringLiteral("features")).toObject().value(QStringLiteral("Jacobian")).toDouble(), 1.0);
    QVERIFY(runMeshQuality({QStringLiteral("report"), written})
                .output.contains("  converted from VTK XML; line numbers are those of the conversion\n"));
}

void MeshQualityConversionTest::refusesDamagedGrids_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QByteArray>("problem");
    const auto row = [](const char* name, const char* before, const char* after, const char* problem) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QByteArray(problem);
    };
    row("whole", "x", "x", "");
    row("other type", "UnstructuredGrid", "PolyData", "not a VTK XML unstructured grid");
    row("no XML", "<?xml version=\"1.0\"?>\n<", "", "not a VTK XML unstructured grid");
    const QByteArray noTetrahedra = "no tetrahedra ";
    const QByteArray missingNode = "names a node that is not there (nodes are numbered by their place in the file))";
    row("negative corner", "0 1 2 3", "0 1 2 -1", noTetrahedra + "(1 lines skipped, first: line 13: " + missingNode);
    row("corner beyond the points", "0 1 2 3", "0 1 2 4",
        noTetrahedra + "(1 lines skipped, first: line 13: " + missingNode);
    row("offset beyond the corners", "offsets\" format=\"ascii\">4", "offsets\" format=\"ascii\">4000000",
        "a damaged VTK XML unstructured grid");
    row("negative offset", "offsets\" format=\"ascii\">4", "offsets\" format=\"ascii\">-4",
        "a damaged VTK XML unstructured grid");
    row("other cells", "types\" format=\"ascii\">10", "types\" format=\"ascii\">9", "no tetrahedra");
    row("no points", "NumberOfPoints=\"4\"", "NumberOfPoints=\"0\"",
        noTetrahedra + "(1 lines skipped, first: line 9: " + missingNode);
    row("too many points", "NumberOfPoints=\"4\"", "NumberOfPoints=\"4000\"", "a damaged VTK XML unstructured grid");
    row("cut", "</DataArray></Points>", "", "a damaged VTK XML unstructured grid");
}

void MeshQualityConversionTest::refusesDamagedGrids()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QByteArray, problem);
    QByteArray content =
        "<?xml version=\"1.0\"?>\n<VTKFile type=\"UnstructuredGrid\" version=\"0.1\" byte_order=\"LittleEndian\">"
        "<UnstructuredGrid><Piece NumberOfPoints=\"4\" NumberOfCells=\"1\">"
        "<Points><DataArray type=\"Float64\" NumberOfComponents=\"3\" format=\"ascii\">0 0 0 1 0 0 0 1 0 0 0 1"
        "</DataArray></Points>"
        "<Cells><DataArray type=\"Int64\" Name=\"connectivity\" format=\"ascii\">0 1 2 3</DataArray>"
        "<DataArray type=\"Int64\" Name=\"offsets\" format=\"ascii\">4</DataArray>"
        "<DataArray type=\"UInt8\" Name=\"types\" format=\"ascii\">10</DataArray></Cells>"
        "</Piece></UnstructuredGrid></VTKFile>\n";
    const QString mesh = file("grid.vtu", content.replace(before, after));
    const ProgramRun run = report(mesh);
    QCOMPARE(run.errors, problem.isEmpty() ? QByteArray() : "meshquality: " + mesh.toUtf8() + ": " + problem + '\n');
    QCOMPARE(run.exitCode, problem.isEmpty() ? 0 : 3);
}

QTEST_GUILESS_MAIN(MeshQualityConversionTest)
#include "tst_meshqualityconversion.moc"
