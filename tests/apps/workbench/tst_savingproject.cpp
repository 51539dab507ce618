// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "ProjectContent.h"
#include "WindowTest.h"

#include <support/FilesAndLog.h>
#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>

#include <datamanager/material/MaterialLibraryManager.h>
#include <datamodel/MaterialData.h>
#include <datamodel/MaterialPropertyData.h>

#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <sched.h>
#include <sys/mount.h>

using BaseModule::GlobalHelper;
using namespace Workbench;

class tst_SavingProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { Project::instance()->close(); }

    void savesInTheBackground();
    void editsMeanwhileAreUnsaved();
    void materialsSavedMeanwhileAreUnsaved();
    void savingFollowsSaving();
    void savingFollowsReading();
    void cancelledSavingKeepsTheFile();
    void cancelledWaitingSavesNothing();
    void endingWaitsForSaving();
    void fullDiskKeepsTheFile();
    void tooLargeAFileKeepsTheOld();
    void opensInTheBackground();
    void cancelledOpeningKeepsTheOpenProject();
    void meshGivenUpStaysInTheProject();
    void unreadMeshIsReplaced();

private:
    QString path(const char* name) const { return m_directory->filePath(QString::fromLatin1(name)); }
    static bool waitForTransfer();

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_SavingProject::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(Project::instance()->create());
}

bool tst_SavingProject::waitForTransfer()
{
    return QTest::qWaitFor([] { return !Project::instance()->isSaving() && !Project::instance()->isOpening(); }, 60000);
}

void tst_SavingProject::savesInTheBackground()
{
    openMesh(samplePath("bearing-housing.msh"));
    makeSlow();
    Project* project = Project::instance();
    QStringList log;
    QObject context;
    connect(project, &Project::signal_transferStarted, &context, [&log](const QString& file, bool isSaving) {
        log << QFileInfo(file).fileName() + (isSaving ? QStringLiteral(" is saved") : QStringLiteral(" is opened"));
    });
    connect(project, &Project::signal_transferFinished, &context,
            [&log](bool isDone) { log << (isDone ? QStringLiteral("done") : QStringLiteral("failed")); });
    QSignalSpy progress(project, &Project::signal_transferProgress);
    project->startSaving(path("background.wbproj"));
    QVERIFY(project->isSaving());
    QVERIFY(project->isModified()); // until it is on the disk
    QVERIFY(waitForTransfer());
    QCOMPARE(log, (QStringList{QStringLiteral("background.wbproj is saved"), QStringLiteral("done")}));
    QVERIFY(progress.size() > 5);
    QCOMPARE(progress.last().at(0).toInt(), 100);
    QVERIFY(!project->isModified());
    QCOMPARE(project->path(), path("background.wbproj"));
    // Nothing is left of the snapshot.
    QVERIFY(namesIn(GlobalHelper::getProjectTempIODir()).filter(QStringLiteral("snapshot")).isEmpty());
    QCOMPARE(namesIn(m_directory->path()), QStringList{QStringLiteral("background.wbproj")});
}

void tst_SavingProject::editsMeanwhileAreUnsaved()
{
    openMesh(samplePath("bearing-housing.msh"));
    makeSlow();
    Project* project = Project::instance();
    project->startSaving(path("edited.wbproj"));
    QVERIFY(GeometryManager::instance()->renameComponent(1, QStringLiteral("late")));
    openMesh(samplePath("slivers.msh")); // the file of the first mesh goes
    QVERIFY(waitForTransfer());
    QVERIFY(project->isModified());
    QVERIFY(project->open(path("edited.wbproj")));
    MeshManager::instance()->waitForLoad();
    QCOMPARE(GeometryManager::instance()->getComponentName(1), QStringLiteral("foot"));
    QCOMPARE(MeshManager::instance()->getElementCount(1), 6811);
}

void tst_SavingProject::materialsSavedMeanwhileAreUnsaved()
{
    makeSlow();
    Project* project = Project::instance();
    project->startSaving(path("materials.wbproj"));
    QTest::qWait(5); // the time of a file is kept in milliseconds
    DataManager::MaterialLibraryManager::getInstance()->createProjectMat(QStringLiteral("钢"), QStringLiteral("steel"),
                                                                         {}, {}, {}, {}, {});
    QVERIFY(waitForTransfer());
    QVERIFY(project->isModified());
    QVERIFY(project->open(path("materials.wbproj")));
    QVERIFY(!DataManager::MaterialLibraryManager::getInstance()->getProjectMatByID(1));
}

void tst_SavingProject::savingFollowsSaving()
{
    openMesh(samplePath("bearing-housing.msh"));
    makeSlow();
    Project* project = Project::instance();
    QSignalSpy started(project, &Project::signal_transferStarted);
    QSignalSpy finished(project, &Project::signal_transferFinished);
    project->startSaving(path("first.wbproj"));
    GeometryManager::instance()->renameComponent(1, QStringLiteral("renamed"));
    project->startSaving(path("second.wbproj"));
    QVERIFY(waitForTransfer());
    QCOMPARE(started.size(), 1);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!project->isModified());
    QCOMPARE(project->path(), path("second.wbproj"));
    for (const char* name : {"first", "second"}) {
        QVERIFY(project->open(m_directory->filePath(QString::fromLatin1(name) + QStringLiteral(".wbproj"))));
        QCOMPARE(GeometryManager::instance()->getComponentName(1),
                 QString::fromLatin1(name[0] == 'f' ? "foot" : "renamed"));
    }
}

void tst_SavingProject::savingFollowsReading()
{
    Messages messages;
    MeshManager::instance()->openMesh(samplePath("bearing-housing.msh"));
    Project::instance()->startSaving(path("read.wbproj"));
    QVERIFY(MeshManager::instance()->isLoading());
    QVERIFY(Project::instance()->isSaving());
    QVERIFY(waitForTransfer());
    QVERIFY2(messages.list.isEmpty(), qPrintable(messages.list.join(QLatin1Char('\n'))));
    QVERIFY(Project::instance()->open(path("read.wbproj")));
    MeshManager::instance()->waitForLoad();
    QCOMPARE(MeshManager::instance()->getElementCount(1), 6811);
}

void tst_SavingProject::cancelledSavingKeepsTheFile()
{
    Project* project = Project::instance();
    QVERIFY(project->saveAs(path("kept.wbproj")));
    const QByteArray before = contentOf(path("kept.wbproj"));
    makeSlow();
    GeometryManager::instance()->addSet(QStringLiteral("set"), {});
    Messages messages;
    QSignalSpy finished(project, &Project::signal_transferFinished);
    project->startSaving(path("kept.wbproj"));
    project->cancelTransfer();
    QVERIFY(waitForTransfer());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().at(0).toBool(), false);
    QVERIFY(messages.list.isEmpty());
    QVERIFY(project->isModified());
    QCOMPARE(contentOf(path("kept.wbproj")), before);
    QCOMPARE(namesIn(m_directory->path()), QStringList{QStringLiteral("kept.wbproj")});
}

void tst_SavingProject::cancelledWaitingSavesNothing()
{
    QSignalSpy finished(Project::instance(), &Project::signal_transferFinished);
    MeshManager::instance()->openMesh(samplePath("bearing-housing.msh"));
    Project::instance()->startSaving(path("waiting.wbproj"));
    Project::instance()->cancelTransfer();
    QVERIFY(!Project::instance()->isSaving());
    QCOMPARE(finished.size(), 1);
    MeshManager::instance()->waitForLoad();
    QVERIFY(!QFileInfo::exists(path("waiting.wbproj")));
}

void tst_SavingProject::endingWaitsForSaving()
{
    makeSlow();
    Project::instance()->startSaving(path("last.wbproj"));
    QVERIFY(Project::instance()->create());
    QVERIFY(Project::instance()->open(path("last.wbproj")));
    QCOMPARE(contentOf(GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-9.msh")), noise(slowSize));
}

void tst_SavingProject::fullDiskKeepsTheFile()
{
    const QByteArray place = QFile::encodeName(m_directory->path());
    const bool mayMount = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                          ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                          ::mount("tmpfs", place.constData(), "tmpfs", 0, "size=4m") == 0;
    if (!mayMount) {
        QSKIP("only root may mount a small disk");
    }
    QVERIFY(Project::instance()->saveAs(path("full.wbproj")));
    const QByteArray before = contentOf(path("full.wbproj"));
    makeSlow();
    Messages messages;
    const bool isSaved = Project::instance()->saveAs(path("full.wbproj"));
    const QByteArray after = contentOf(path("full.wbproj"));
    const QStringList names = namesIn(m_directory->path());
    ::umount2(place.constData(), MNT_DETACH);
    QVERIFY(!isSaved);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QString::fromLocal8Bit(std::strerror(ENOSPC))),
             qPrintable(messages.list.first()));
    QCOMPARE(after, before);
    QCOMPARE(names, QStringList{QStringLiteral("full.wbproj")});
}

void tst_SavingProject::tooLargeAFileKeepsTheOld()
{
    QVERIFY(Project::instance()->saveAs(path("limited.wbproj")));
    const QByteArray before = contentOf(path("limited.wbproj"));
    makeSlow();
    Messages messages;
    {
        const FileSizeLimit limit(1 << 20);
        QVERIFY(!Project::instance()->saveAs(path("limited.wbproj")));
    }
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QStringLiteral("could not be written")), qPrintable(messages.list.first()));
    QCOMPARE(contentOf(path("limited.wbproj")), before);
    QVERIFY(Project::instance()->saveAs(path("limited.wbproj")));
}

void tst_SavingProject::opensInTheBackground()
{
    openMesh(samplePath("bearing-housing.msh"));
    makeSlow();
    Project* project = Project::instance();
    QVERIFY(project->saveAs(path("open.wbproj")));
    QVERIFY(project->create());
    QSignalSpy progress(project, &Project::signal_transferProgress);
    project->startOpening(path("open.wbproj"));
    QVERIFY(project->isOpening());
    QCOMPARE(project->path(), QString());
    QCOMPARE(GeometryManager::instance()->getComponentCount(), 0);
    QVERIFY(waitForTransfer());
    QVERIFY(progress.size() > 5);
    QCOMPARE(project->path(), path("open.wbproj"));
    QCOMPARE(GeometryManager::instance()->getComponentCount(), 3);
}

void tst_SavingProject::cancelledOpeningKeepsTheOpenProject()
{
    makeSlow();
    Project* project = Project::instance();
    QVERIFY(project->saveAs(path("large.wbproj")));
    QVERIFY(project->create());
    GeometryManager::instance()->addSet(QStringLiteral("open"), {});
    Messages messages;
    QSignalSpy finished(project, &Project::signal_transferFinished);
    const QString directory = GlobalHelper::getProjectTempIODir();
    project->startOpening(path("large.wbproj"));
    project->startSaving(path("not-now.wbproj"));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QStringLiteral("being opened")), qPrintable(messages.list.first()));
    project->cancelTransfer();
    QVERIFY(waitForTransfer());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().at(0).toBool(), false);
    QCOMPARE(messages.list.size(), 1);
    QCOMPARE(GlobalHelper::getProjectTempIODir(), directory);
    QVERIFY(project->isModified());
    QCOMPARE(GeometryManager::instance()->getSetCount(), 1);
    // Only the open project's directory and its lock are left.
    QCOMPARE(namesIn(QFileInfo(directory).path()).size(), 2);
}

void tst_SavingProject::meshGivenUpStaysInTheProject()
{
    openMesh(samplePath("bearing-housing.msh"));
    MeshManager* meshes = MeshManager::instance();
    const int group = meshes->addGroup(1, QStringLiteral("own"), {1000, 1001});
    GeometryManager::instance()->setMaterialID({2}, 7);
    Project* project = Project::instance();
    QVERIFY(project->saveAs(path("given-up.wbproj")));
    QVERIFY(project->open(path("given-up.wbproj")));
    meshes->cancelLoad();
    meshes->waitForLoad();
    QCOMPARE(meshes->getKernelCount(), 0);
    QCOMPARE(meshes->getUnreadNames(), QStringList{QStringLiteral("bearing-housing")});
    QVERIFY(!project->isModified());
    QVERIFY(project->saveAs(path("again.wbproj")));
    QVERIFY(project->open(path("again.wbproj")));
    meshes->waitForLoad();
    QCOMPARE(meshes->getElementCount(1), 6811);
    QCOMPARE(meshes->getGroupName(1, group), QStringLiteral("own"));
    QCOMPARE(GeometryManager::instance()->getMaterialID(2), 7);
    QVERIFY(!GeometryManager::instance()->getFaces(2).isEmpty());
    QVERIFY(meshes->getUnreadNames().isEmpty());
    // It can also be read later.
    QVERIFY(project->open(path("given-up.wbproj")));
    meshes->cancelLoad();
    meshes->waitForLoad();
    meshes->readUnread();
    meshes->waitForLoad();
    QCOMPARE(meshes->getElementCount(1), 6811);
    QVERIFY(!project->isModified());
}

void tst_SavingProject::unreadMeshIsReplaced()
{
    openMesh(samplePath("bearing-housing.msh"));
    MeshManager* meshes = MeshManager::instance();
    Project* project = Project::instance();
    QVERIFY(project->saveAs(path("unread.wbproj")));
    QVERIFY(project->open(path("unread.wbproj")));
    meshes->cancelLoad();
    meshes->waitForLoad();
    // A mesh that cannot be read does not touch the file that waits,
    QCOMPARE(openMesh(path("absent.msh")), 0);
    QCOMPARE(meshes->getUnreadNames().size(), 1);
    QVERIFY(QFileInfo(GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-1.msh")).size() > 0);
    // nor one that is still being read.
    QVERIFY(QFile::copy(samplePath("README.md"), path("no-mesh.msh")));
    QVERIFY(project->open(path("unread.wbproj")));
    QCOMPARE(openMesh(path("no-mesh.msh")), 0);
    QCOMPARE(meshes->getUnreadNames().size(), 1);
    QVERIFY(QFileInfo(GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-1.msh")).size() > 0);
    QCOMPARE(openMesh(samplePath("slivers.msh")), 2);
    QVERIFY(meshes->getUnreadNames().isEmpty());
    QVERIFY(!QFileInfo::exists(GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-1.msh")));
    QVERIFY(project->saveAs(path("replaced.wbproj")));
    QVERIFY(project->open(path("replaced.wbproj")));
    meshes->waitForLoad();
    QCOMPARE(meshes->findKernels(QString()), QList<int>{2});
}

WORKBENCH_TEST_MAIN(tst_SavingProject)
#include "tst_savingproject.moc"
