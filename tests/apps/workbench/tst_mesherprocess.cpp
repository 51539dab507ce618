// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>

#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <cmath>

using namespace Workbench;

class tst_MesherProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { Project::instance()->close(); }

    void progressOfOutput();
    void geometryNames();
    void meshes();
    void smallerElementsOnDemand();
    void meshesOtherFormats_data();
    void meshesOtherFormats();
    void meshesUnderOddNames();
    void failureKeepsThePredictorsMesh_data();
    void failureKeepsThePredictorsMesh();
    void takesThePlaceOfAMeshBeingRead();
    void failureLetsAReadingGoOn();
    void endsWhatTheMesherStarted();
    void endsWithTheProgram();
    void tellsErrorsOfTheGeometry();
    void tellsWhenMissing();
    void tellsWhenItCannotBeStarted();
    void tellsWhenTheMeshCannotBeMoved();
    void tellsACrash();
    void tellsWhenNothingWasWritten();
    void cancels();

private:
    QString script(const QByteArray& commands);
    /// The outcome of a run; -1 when it did not end.
    static int run(const QString& geometry, double size = 0);

    QTemporaryDir m_directory;
};

void tst_MesherProcess::init()
{
    qunsetenv("WORKBENCH_GMSH");
    QVERIFY(Project::instance()->create());
}

QString tst_MesherProcess::script(const QByteArray& commands)
{
    const QString path = writeFile(m_directory.filePath(QStringLiteral("mesher")), "#!/bin/sh\n" + commands + "\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("WORKBENCH_GMSH", QFile::encodeName(path));
    return path;
}

int tst_MesherProcess::run(const QString& geometry, double size)
{
    MesherProcess* mesher = MesherProcess::instance();
    QSignalSpy finished(mesher, &MesherProcess::signal_finished);
    if (!mesher->start(geometry, size)) {
        return -1;
    }
    return finished.wait(60000) ? static_cast<int>(finished.last().at(0).toBool()) : -1;
}

void tst_MesherProcess::progressOfOutput()
{
    MesherProgress progress;
    QList<int> percents;
    for (const QByteArray& piece :
         {QByteArray("Info    : Meshing 1D...\nInfo    : [ 50%] Meshing cur"), QByteArray("ve 2 (Line)\n"),
          QByteArray("Info    : Meshing 2D...\r\nInfo    : [ 50%] Meshing surface 3 (Plane)\n"),
          QByteArray("Info    : Meshing 3D...\n"), QByteArray("Info    : Meshing 2D...\n"),
          QByteArray("Warning : 3 ill-shaped tets\nError   : Could not do it\nunknown\n"),
          QByteArray("Info    : Done writing 'mesh.msh'\n")}) {
        progress.take(piece);
        percents.append(progress.percent());
    }
    QCOMPARE(percents, (QList<int>{6, 9, 24, 36, 36, 36, 100}));
    QCOMPARE(progress.errors(), QStringList{QStringLiteral("Could not do it")});
    QCOMPARE(progress.warnings(), QStringList{QStringLiteral("3 ill-shaped tets")});
}

void tst_MesherProcess::geometryNames()
{
    QVERIFY(MesherProcess::isGeometry(QStringLiteral("a.b.STEP")));
    QVERIFY(MesherProcess::isGeometry(QStringLiteral("/x/a.geo")));
    QVERIFY(!MesherProcess::isGeometry(QStringLiteral("a.msh")));
    QVERIFY(!MesherProcess::isGeometry(QStringLiteral("geo")));
}

void tst_MesherProcess::meshes()
{
    MesherProcess* mesher = MesherProcess::instance();
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    QSignalSpy progress(mesher, &MesherProcess::signal_progress);
    QSignalSpy output(mesher, &MesherProcess::signal_output);
    Messages messages;
    QCOMPARE(run(samplePath("plate-with-hole.geo")), 1);
    QVERIFY2(messages.list.isEmpty(), qPrintable(messages.list.join(QLatin1Char('\n'))));
    QCOMPARE(progress.last().at(0).toInt(), 100);
    QVERIFY(progress.size() > 2 && !output.isEmpty());
    QVERIFY(loaded.isEmpty() ? loaded.wait(60000) : true);
    const int kernel = loaded.last().at(0).toInt();
    QCOMPARE(MeshManager::instance()->getKernelName(kernel), QStringLiteral("plate-with-hole"));
    QVERIFY(MeshManager::instance()->getElementCount(kernel) > 1000);
    QVERIFY(QFileInfo(MesherProcess::outputPath()).size() > 0);
}

void tst_MesherProcess::smallerElementsOnDemand()
{
    const QString geometry = writeFile(m_directory.filePath(QStringLiteral("box.geo")),
                                       "SetFactory(\"OpenCASCADE\");\nBox(1) = {0, 0, 0, 1, 1, 1};\n");
    QList<int> counts;
    for (double size : {0.0, 0.06}) {
        QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
        QCOMPARE(run(geometry, size), 1);
        QVERIFY(!loaded.isEmpty() || loaded.wait(60000));
        counts.append(MeshManager::instance()->getElementCount(loaded.last().at(0).toInt()));
    }
    QVERIFY2(counts[1] > 8 * counts[0], qPrintable(QStringLiteral("%1, %2").arg(counts[0]).arg(counts[1])));
}

void tst_MesherProcess::meshesOtherFormats_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char* suffix : {"brep", "step", "stp"}) {
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
    }
}

// A plate of 2 by 1 by 0.5 with a round hole, which the mesher's own kernel writes in the format of a CAD program.
void tst_MesherProcess::meshesOtherFormats()
{
    QFETCH(QString, suffix);
    const QString source = writeFile(m_directory.filePath(QStringLiteral("plate.geo")), R"(
SetFactory("OpenCASCADE");
Box(1) = {0, 0, 0, 2, 1, 0.5};
Cylinder(2) = {1, 0.5, 0, 0, 0, 0.5, 0.2};
BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }
)");
    const QString geometry = m_directory.filePath(QStringLiteral("plate.") + suffix);
    QProcess mesher;
    mesher.start(QStringLiteral("gmsh"), {source, QStringLiteral("-0"), QStringLiteral("-o"), geometry});
    QVERIFY(mesher.waitForFinished() && QFileInfo(geometry).size() > 0);
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    Messages messages;
    QCOMPARE(run(geometry, 0.2), 1);
    QVERIFY(!loaded.isEmpty() || loaded.wait(60000));
    QVERIFY2(messages.list.isEmpty(), qPrintable(messages.list.join(QLatin1Char('\n'))));
    const QSharedPointer<const KernelMesh> mesh = MeshManager::instance()->mesh(loaded.last().at(0).toInt());
    QVERIFY(mesh);
    const std::array<double, 6> box{0, 2, 0, 1, 0, 0.5};
    for (std::size_t i = 0; i < box.size(); ++i) {
        QVERIFY2(std::abs(mesh->box[i] - box[i]) < 1e-6, qPrintable(QString::number(mesh->box[i])));
    }
    // The hole is a prism of chords: its mesh is larger than the plate, and smaller than the block.
    double volume = 0;
    for (int place = 0; place < mesh->report.elementCount(); ++place) {
        const std::array<int, 4>& corners = mesh->report.corners(place);
        const std::array<double, 3>& o = mesh->report.node(corners[0]);
        std::array<std::array<double, 3>, 3> e{};
        for (std::size_t i = 0; i < 3; ++i) {
            const std::array<double, 3>& p = mesh->report.node(corners[i + 1]);
            e[i] = {p[0] - o[0], p[1] - o[1], p[2] - o[2]};
        }
        volume += std::abs(e[0][0] * (e[1][1] * e[2][2] - e[1][2] * e[2][1]) +
                           e[0][1] * (e[1][2] * e[2][0] - e[1][0] * e[2][2]) +
                           e[0][2] * (e[1][0] * e[2][1] - e[1][1] * e[2][0])) /
                  6;
    }
    QVERIFY2(volume > 1 - 0.02 * M_PI && volume < 0.97, qPrintable(QString::number(volume)));
}

void tst_MesherProcess::meshesUnderOddNames()
{
    const QString name = QString::fromUtf8("a box %1 — 盒.geo");
    const QString geometry =
        writeFile(m_directory.filePath(name), "SetFactory(\"OpenCASCADE\");\nBox(1) = {0, 0, 0, 1, 1, 1};\n");
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    QCOMPARE(run(geometry), 1);
    QVERIFY(!loaded.isEmpty() || loaded.wait(60000));
    QCOMPARE(MeshManager::instance()->getKernelName(loaded.last().at(0).toInt()), QString::fromUtf8("a box %1 — 盒"));
}

void tst_MesherProcess::failureKeepsThePredictorsMesh_data()
{
    QTest::addColumn<QByteArray>("commands");
    // The sixth argument is where the mesh goes.
    QTest::newRow("crash") << QByteArray("echo half > \"$6\"; kill -SEGV $$");
    QTest::newRow("error") << QByteArray("echo half > \"$6\"; echo 'Error   : no'; exit 1");
    QTest::newRow("cancelled") << QByteArray("echo half > \"$6\"; exec sleep 600");
}

void tst_MesherProcess::failureKeepsThePredictorsMesh()
{
    QFETCH(QByteArray, commands);
    QVERIFY(openMesh(samplePath("slivers.msh")) > 0);
    QFile mesh(MesherProcess::outputPath());
    QVERIFY(mesh.open(QIODevice::ReadOnly));
    const QByteArray before = mesh.readAll();
    mesh.close();
    const QString unfinished = MesherProcess::outputPath() + QStringLiteral(".unfinished");
    script(commands);
    MesherProcess* mesher = MesherProcess::instance();
    QVERIFY(mesher->start(samplePath("slivers.geo")));
    if (commands.contains("sleep")) {
        QTRY_VERIFY(QFileInfo(unfinished).size() > 0);
        mesher->cancel();
    }
    QTRY_VERIFY(!mesher->isRunning());
    QVERIFY(mesh.open(QIODevice::ReadOnly));
    QCOMPARE(mesh.readAll(), before);
    QCOMPARE(QFileInfo(unfinished).exists(), false);
}

// Opens a mesh at the moment when the mesher has ended and what it made is not in place yet.
static void openWhenTheMesherHasEnded(const QObject& scope)
{
    const MesherProcess* mesher = MesherProcess::instance();
    QObject::connect(mesher, &MesherProcess::signal_output, &scope, [mesher] {
        if (!mesher->isRunning()) {
            MeshManager::instance()->openMesh(samplePath("bearing-housing.msh"));
        }
    });
}

// The other mesh begins to be read when the mesher has ended and its mesh is not in place yet; what of that is under
// way when it is, ends before it is opened.
void tst_MesherProcess::takesThePlaceOfAMeshBeingRead()
{
    script("cp '" + QFile::encodeName(samplePath("slivers.msh")) + "' \"$6\"");
    MeshManager* meshes = MeshManager::instance();
    const MesherProcess* mesher = MesherProcess::instance();
    QObject scope;
    openWhenTheMesherHasEnded(scope);
    connect(mesher, &MesherProcess::signal_finished, &scope, [meshes] { meshes->waitForLoad(); });
    QSignalSpy started(meshes, &MeshManager::signal_loadStarted);
    QSignalSpy loaded(meshes, &MeshManager::signal_loadFinished);
    Messages messages;
    QCOMPARE(run(samplePath("slivers.geo")), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!meshes->isLoading(), 60000);
    QVERIFY2(messages.list.isEmpty(), qPrintable(messages.list.join(QLatin1Char('\n'))));
    QCOMPARE(started.size(), 2);
    QCOMPARE(loaded.size(), 2);
    const int kernel = loaded.last().at(0).toInt();
    QCOMPARE(meshes->getKernelName(kernel), QStringLiteral("slivers"));
    QCOMPARE(meshes->getElementCount(kernel), 3156);
    QCOMPARE(meshes->findKernels(QString()), QList<int>{kernel});
    QCOMPARE(loaded.first().at(0).toInt(), 0);
    QFile placed(MesherProcess::outputPath());
    QFile wanted(samplePath("slivers.msh"));
    QVERIFY(placed.open(QIODevice::ReadOnly) && wanted.open(QIODevice::ReadOnly));
    QVERIFY(placed.readAll() == wanted.readAll());
}

void tst_MesherProcess::failureLetsAReadingGoOn()
{
    script("echo 'Error   : no'; exit 1");
    MeshManager* meshes = MeshManager::instance();
    QObject scope;
    openWhenTheMesherHasEnded(scope);
    QCOMPARE(run(samplePath("slivers.geo")), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!meshes->isLoading(), 60000);
    QCOMPARE(meshes->findKernels(QString()).size(), 1);
    QCOMPARE(meshes->getElementCount(meshes->findKernels(QString()).first()), 6811);
}

// Whether there is a process of that number that is not only waiting for its parent to look at it.
static bool isAlive(const QString& number)
{
    QFile status(QStringLiteral("/proc/%1/stat").arg(number));
    return status.open(QIODevice::ReadOnly) &&
           QString::fromLatin1(status.readAll()).section(QLatin1String(") "), -1).at(0) != QLatin1Char('Z');
}

void tst_MesherProcess::endsWhatTheMesherStarted()
{
    const QString numbers = m_directory.filePath(QStringLiteral("numbers"));
    script("sleep 600 &\necho $$ $! > '" + QFile::encodeName(numbers) + "'\nwait");
    MesherProcess* mesher = MesherProcess::instance();
    QVERIFY(mesher->start(samplePath("slivers.geo")));
    QTRY_VERIFY(QFileInfo(numbers).size() > 0);
    QFile file(numbers);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList processes = QString::fromLatin1(file.readAll()).trimmed().split(QLatin1Char(' '));
    QCOMPARE(processes.size(), 2);
    QVERIFY(isAlive(processes[0]) && isAlive(processes[1]));
    mesher->cancel();
    QTRY_VERIFY(!isAlive(processes[0]) && !isAlive(processes[1]));
}

// Even when the program is killed: this function runs a second time in a program of its own.
void tst_MesherProcess::endsWithTheProgram()
{
    if (qEnvironmentVariableIsSet("MESHER_FOREVER")) {
        qputenv("WORKBENCH_GMSH", qgetenv("MESHER_FOREVER"));
        QVERIFY(MesherProcess::instance()->start(samplePath("slivers.geo")));
        QTest::qWait(600000);
        return;
    }
    const QString number = m_directory.filePath(QStringLiteral("number"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MESHER_FOREVER"),
                       script("echo $$ > '" + QFile::encodeName(number) + "'\nexec sleep 600"));
    environment.insert(QStringLiteral("TMPDIR"), m_directory.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("endsWithTheProgram")});
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(number).size() > 0, 60000);
    QFile file(number);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString child = QString::fromLatin1(file.readAll()).trimmed();
    QVERIFY(isAlive(child));
    program.kill();
    QVERIFY(program.waitForFinished());
    QTRY_VERIFY(!isAlive(child));
}

void tst_MesherProcess::tellsErrorsOfTheGeometry()
{
    const int kernel = openMesh(samplePath("slivers.msh"));
    const QString geometry = writeFile(m_directory.filePath(QStringLiteral("wrong.geo")), "Sphere(1) = {what};\n");
    Messages messages;
    QCOMPARE(run(geometry), 0);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().startsWith(QStringLiteral("2 The mesher could not mesh ") + geometry),
             qPrintable(messages.list.first()));
    QVERIFY2(messages.list.first().contains(QStringLiteral("what")), qPrintable(messages.list.first()));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
}

void tst_MesherProcess::tellsWhenMissing()
{
    qputenv("WORKBENCH_GMSH", "no-such-mesher");
    Messages messages;
    QVERIFY(!MesherProcess::instance()->start(samplePath("slivers.geo")));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY(messages.list.first().contains(QStringLiteral("gmsh was not found")));
}

// A program that may be executed, but what would execute it is missing.
void tst_MesherProcess::tellsWhenItCannotBeStarted()
{
    const int kernel = openMesh(samplePath("slivers.msh"));
    const QString program = script("exit 0");
    writeFile(program, "#!/no/such/interpreter\n");
    MesherProcess* mesher = MesherProcess::instance();
    QSignalSpy finished(mesher, &MesherProcess::signal_finished);
    Messages messages;
    mesher->start(samplePath("slivers.geo"));
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(finished.last().at(0).toBool(), false);
    QVERIFY(!mesher->isRunning());
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().startsWith(QStringLiteral("2 The mesher could not be started: ")),
             qPrintable(messages.list.first()));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
    // It is no run that the next one would have to wait for.
    script("echo 'Error   : no'; exit 1");
    QCOMPARE(run(samplePath("slivers.geo")), 0);
    QCOMPARE(messages.list.size(), 2);
    QVERIFY2(messages.list.last().startsWith(QStringLiteral("2 The mesher could not mesh ")),
             qPrintable(messages.list.last()));
}

void tst_MesherProcess::tellsWhenTheMeshCannotBeMoved()
{
    const int kernel = openMesh(samplePath("slivers.msh"));
    QDir directory(MesherProcess::outputPath());
    const auto clear = qScopeGuard([&directory] { directory.removeRecursively(); });
    QVERIFY(QFile::remove(directory.path()) && directory.mkpath(QStringLiteral("in the way")));
    script("cp '" + QFile::encodeName(samplePath("bearing-housing.msh")) + "' \"$6\"");
    const QString geometry = samplePath("slivers.geo");
    Messages messages;
    QCOMPARE(run(geometry), 0);
    QCOMPARE(
        messages.list,
        QStringList{
            QStringLiteral("2 The mesh of %1 could not be moved to %2.").arg(geometry, MesherProcess::outputPath())});
    QVERIFY(!QFileInfo::exists(MesherProcess::outputPath() + QStringLiteral(".unfinished")));
    QVERIFY(directory.exists(QStringLiteral("in the way")));
    QVERIFY(!MeshManager::instance()->isLoading());
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
    QCOMPARE(MeshManager::instance()->getElementCount(kernel), 3156);
    // The same works when nothing is in the way.
    QVERIFY(directory.removeRecursively());
    QSignalSpy loaded(MeshManager::instance(), &MeshManager::signal_loadFinished);
    QCOMPARE(run(geometry), 1);
    QVERIFY(!loaded.isEmpty() || loaded.wait(60000));
    QCOMPARE(MeshManager::instance()->getElementCount(loaded.last().at(0).toInt()), 6811);
}

void tst_MesherProcess::tellsACrash()
{
    const int kernel = openMesh(samplePath("slivers.msh"));
    script("kill -SEGV $$");
    Messages messages;
    QCOMPARE(run(samplePath("slivers.geo")), 0);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QStringLiteral("crashed")), qPrintable(messages.list.first()));
    QCOMPARE(MeshManager::instance()->findKernels(QString()), QList<int>{kernel});
}

void tst_MesherProcess::tellsWhenNothingWasWritten()
{
    script("echo 'Info    : nothing'");
    Messages messages;
    QCOMPARE(run(samplePath("slivers.geo")), 0);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QStringLiteral("it gave no reason")), qPrintable(messages.list.first()));
}

void tst_MesherProcess::cancels()
{
    script("exec sleep 60");
    MesherProcess* mesher = MesherProcess::instance();
    QSignalSpy finished(mesher, &MesherProcess::signal_finished);
    Messages messages;
    QVERIFY(mesher->start(samplePath("slivers.geo")));
    QVERIFY(!mesher->start(samplePath("slivers.geo"))); // one at a time
    QCOMPARE(messages.list.size(), 1);
    mesher->cancel();
    QVERIFY(!mesher->isRunning());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.last().at(0).toBool(), false);
    QCOMPARE(messages.list.size(), 1);
}

WORKBENCH_TEST_MAIN(tst_MesherProcess)
#include "tst_mesherprocess.moc"
