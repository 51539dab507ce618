// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Samples.h"
#include "WindowTest.h"

#include <workbench/mesh/MesherProcess.h>
#include <workbench/project/Project.h>

#include <QTemporaryDir>

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
    void tellsErrorsOfTheGeometry();
    void tellsWhenMissing();
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
