// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileSizeLimit.h"
#include "ProjectContent.h"
#include "WindowTest.h"

#include <workbench/geometry/GeometryManager.h>
#include <workbench/project/Project.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/RecentProjects.h>
#include <workbench/project/WorkingDirectory.h>

#include <datamanager/coordinates/RelativeCoordinateSystem.h>
#include <datamanager/coordinates/RelativeCoordinateSystemDate.h>
#include <datamanager/material/MaterialLibraryManager.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>

using BaseModule::GlobalHelper;
using DataManager::MaterialLibraryManager;
using DataManager::RelativeCoordinateSystem;
using DataManager::RelativeCoordinateSystemDate;
using namespace Workbench;

/// Marks what the loader of meshes says.
class LoaderTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "Workbench::MeshLoader") == 0 ? QStringLiteral("<") + QString::fromLatin1(text)
                                                              : QString();
    }
    bool isEmpty() const override { return false; }
};

/// Another value of an environment variable while it lives.
class OtherEnvironment
{
public:
    OtherEnvironment(const char* name, const QString& value) : m_name(name), m_before(qgetenv(name))
    {
        qputenv(name, QFile::encodeName(value));
    }
    ~OtherEnvironment() { m_before.isNull() ? qunsetenv(m_name) : qputenv(m_name, m_before); }
    OtherEnvironment(const OtherEnvironment&) = delete;
    OtherEnvironment& operator=(const OtherEnvironment&) = delete;

private:
    const char* m_name;
    QByteArray m_before;
};

class tst_Project : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase() { Project::instance()->close(); }

    void workingDirectoryIsItsOwn();
    void abandonedDirectoriesGo();
    void restoresExactly();
    void restoredIsNotModified();
    void changesAreNoticed_data();
    void changesAreNoticed();
    void failedSaveKeepsTheFile();
    void refusesNamesOfOtherPlaces();
    void cancelledReadingKeepsTheMeshFile();
    void geometryTravelsAlong();
    void uncopiedGeometryKeepsTheOld();
    void uncopiedMeshIsToldInTheLanguage();
    void worksWithoutCacheDirectory();
    void survivesWithoutDirectory();
    void recentProjects();

private:
    QString path(const char* name) const { return m_directory.filePath(QString::fromLatin1(name)); }
    static bool waitForMesh()
    {
        return QTest::qWaitFor([] { return !MeshManager::instance()->isLoading(); }, 60000);
    }
    static void createSystem();

    QTemporaryDir m_directory;
};

void tst_Project::init()
{
    QVERIFY(Project::instance()->create());
}

void tst_Project::createSystem()
{
    auto* system = new RelativeCoordinateSystem;
    system->setID(1);
    system->setName(QStringLiteral("tilted"));
    double offset[3] = {0.1, -0.0, 1e-300};
    system->setOffsetCoordinate(offset, 1, 0, -1);
    RelativeCoordinateSystemDate::getInstance()->appendCoordinateSystem(system);
}

void tst_Project::workingDirectoryIsItsOwn()
{
    const QString directory = GlobalHelper::getProjectTempIODir();
    QVERIFY(QFileInfo(directory).isDir());
    QVERIFY(directory.startsWith(WorkingDirectory::parentPath()));
    QVERIFY(Project::instance()->create());
    QVERIFY(!QFileInfo::exists(directory));
    QVERIFY(GlobalHelper::getProjectTempIODir() != directory);
    QCOMPARE(QDir(WorkingDirectory::parentPath()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void tst_Project::abandonedDirectoriesGo()
{
    const QString abandoned = WorkingDirectory::parentPath() + QStringLiteral("/left-behind");
    QVERIFY(QDir().mkpath(abandoned));
    QVERIFY(!writeFile(abandoned + QStringLiteral("/mesh-1.msh"), "x").isEmpty());
    // The lock of a process that is gone.
    QProcess gone;
    gone.start(QStringLiteral("true"), QStringList());
    const QByteArray number = QByteArray::number(gone.processId());
    QVERIFY(gone.waitForFinished());
    QVERIFY(!writeFile(abandoned + QStringLiteral(".lock"), number + "\ntrue\n\n").isEmpty());
    const QString current = GlobalHelper::getProjectTempIODir();
    const WorkingDirectory another;
    QVERIFY(another.isValid());
    QVERIFY(!QFileInfo::exists(abandoned));
    QVERIFY(QFileInfo::exists(current));
}

void tst_Project::restoresExactly()
{
    createMaterial(1.0 / 3);
    createSystem();
    openMesh(samplePath("bearing-housing.msh"));
    GeometryManager::instance()->setMaterialID({2}, 1);
    QFile systems(GlobalHelper::getProjectTempIODir() + QStringLiteral("/RelativeCoordinateSystemDate.json"));
    QVERIFY(systems.open(QIODevice::ReadOnly));
    const QByteArray before = systems.readAll();
    const QString file = path("exact.wbproj");
    QVERIFY(Project::instance()->saveAs(file));
    QVERIFY(Project::instance()->create());
    QCOMPARE(MaterialLibraryManager::getInstance()->getNextMatIDByType(BaseModule::ProjectLib), 1);
    QCOMPARE(RelativeCoordinateSystemDate::getInstance()->getRelativeCoordinateSystemDateCount(), 1);
    QCOMPARE(MeshManager::instance()->getKernelCount() + GeometryManager::instance()->getComponentCount(), 0);

    QVERIFY(Project::instance()->open(file));
    QVERIFY(waitForMesh());
    QCOMPARE(materialValue(), 1.0 / 3);
    QCOMPARE(GeometryManager::instance()->findComponentsOfMaterial(1), QList<int>{2});
    QCOMPARE(GeometryManager::instance()->getFaces(2).isEmpty(), false);
    QCOMPARE(MeshManager::instance()->getElementCount(1), 6811);
    QCOMPARE(RelativeCoordinateSystemDate::getInstance()->getRelativeCoordinateSystemDateCount(), 2);
    QFile restored(GlobalHelper::getProjectTempIODir() + QStringLiteral("/RelativeCoordinateSystemDate.json"));
    QVERIFY(restored.open(QIODevice::ReadOnly));
    QCOMPARE(restored.readAll(), before);
    QCOMPARE(Project::instance()->name(), QStringLiteral("exact"));
}

void tst_Project::restoredIsNotModified()
{
    createSystem();
    createMaterial(2);
    openMesh(samplePath("slivers.msh"));
    QVERIFY(Project::instance()->isModified());
    QVERIFY(Project::instance()->saveAs(path("clean.wbproj")));
    QVERIFY(!Project::instance()->isModified());
    QVERIFY(Project::instance()->open(path("clean.wbproj")));
    QVERIFY(waitForMesh());
    QTest::qWait(100); // for the watcher of the working directory
    QVERIFY(!Project::instance()->isModified());
    QVERIFY(Project::instance()->create());
    QVERIFY(!Project::instance()->isModified());
}

void tst_Project::changesAreNoticed_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("a material is created") << 0;
    QTest::newRow("a coordinate system is appended") << 1;
    QTest::newRow("a material is assigned") << 2;
    QTest::newRow("a group is hidden") << 3;
    QTest::newRow("a set is added") << 4;
    QTest::newRow("a mesh is opened") << 5;
}

void tst_Project::changesAreNoticed()
{
    QFETCH(int, change);
    openMesh(samplePath("slivers.msh"));
    QVERIFY(Project::instance()->saveAs(path("change.wbproj")));
    QSignalSpy changed(Project::instance(), &Project::signal_changed);
    switch (change) {
    case 0:
        createMaterial(1);
        break;
    case 1:
        createSystem();
        break;
    case 2:
        GeometryManager::instance()->setMaterialID({1}, 7);
        break;
    case 3:
        MeshManager::instance()->showGroups({{1, 1}}, false);
        break;
    case 4:
        GeometryManager::instance()->addSet(QStringLiteral("set"), {});
        break;
    default:
        openMesh(samplePath("slivers.msh"));
    }
    QVERIFY(Project::instance()->isModified());
    QVERIFY(!changed.isEmpty() || changed.wait());
}

void tst_Project::failedSaveKeepsTheFile()
{
    createMaterial(1);
    QVERIFY(Project::instance()->saveAs(path("kept.wbproj")));
    createMaterial(2);
    Messages messages;
    QVERIFY(!Project::instance()->saveAs(path("no/such/place.wbproj")));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY(messages.list.first().contains(QStringLiteral("could not be written")));
    QCOMPARE(Project::instance()->path(), path("kept.wbproj"));
    QVERIFY(Project::instance()->isModified());
    QVERIFY(Project::instance()->save());
}

void tst_Project::refusesNamesOfOtherPlaces()
{
    QVERIFY(QDir(m_directory.path()).mkpath(QStringLiteral("in/below")));
    writeFile(path("in/below/file"), "x");
    writeFile(path("outside"), "x");
    for (const char* name : {"below/file", "../outside"}) {
        const QStringList names{QString::fromLatin1(name)};
        QVERIFY(ProjectArchive::pack(path("in"), names, path("slip.zip")).isEmpty());
        QVERIFY(QDir(m_directory.path()).mkpath(QStringLiteral("out")));
        QVERIFY(ProjectArchive::unpack(path("slip.zip"), path("out")).contains(QStringLiteral("damaged")));
        QVERIFY(QDir(path("out")).isEmpty());
    }
}

void tst_Project::cancelledReadingKeepsTheMeshFile()
{
    openMesh(samplePath("bearing-housing.msh"));
    QVERIFY(Project::instance()->saveAs(path("cancelled.wbproj")));
    QVERIFY(Project::instance()->open(path("cancelled.wbproj")));
    MeshManager::instance()->cancelLoad();
    QVERIFY(waitForMesh());
    QCOMPARE(MeshManager::instance()->getKernelCount(), 0);
    QVERIFY(QFileInfo(GlobalHelper::getProjectTempIODir() + QStringLiteral("/mesh-1.msh")).size() > 0);
}

void tst_Project::geometryTravelsAlong()
{
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    QCOMPARE(Project::instance()->geometryName(), QStringLiteral("slivers.geo"));
    QVERIFY(Project::instance()->saveAs(path("geometry.wbproj")));
    QVERIFY(Project::instance()->create());
    QCOMPARE(Project::instance()->geometryPath(), QString());
    QVERIFY(Project::instance()->open(path("geometry.wbproj")));
    QVERIFY(waitForMesh());
    QFile copy(Project::instance()->geometryPath());
    QFile source(samplePath("slivers.geo"));
    QVERIFY(copy.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), source.readAll());
    Messages messages;
    QVERIFY(!Project::instance()->takeGeometry(path("absent.step")));
    QCOMPARE(messages.list.size(), 1);
    QCOMPARE(Project::instance()->geometryName(), QStringLiteral("slivers.geo"));
}

void tst_Project::uncopiedGeometryKeepsTheOld()
{
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    writeFile(path("large.geo"), QByteArray(1 << 20, ' '));
    writeFile(path("large.step"), QByteArray(1 << 20, ' '));
    Messages messages;
    {
        const FileSizeLimit limit(4096);
        QVERIFY(!Project::instance()->takeGeometry(path("large.geo")));
        QVERIFY(!Project::instance()->takeGeometry(path("large.step")));
    }
    QCOMPARE(messages.list.size(), 2);
    QCOMPARE(Project::instance()->geometryName(), QStringLiteral("slivers.geo"));
    QCOMPARE(QFileInfo(Project::instance()->geometryPath()).size(), QFileInfo(samplePath("slivers.geo")).size());
    // Nothing lies about, and what can be copied takes its place.
    const QDir working(GlobalHelper::getProjectTempIODir());
    const QStringList pattern{QStringLiteral("geometry-source*")};
    QCOMPARE(working.entryList(pattern), QStringList{QStringLiteral("geometry-source.geo")});
    QVERIFY(Project::instance()->takeGeometry(path("large.step")));
    QCOMPARE(working.entryList(pattern), QStringList{QStringLiteral("geometry-source.step")});
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    QCOMPARE(working.entryList(pattern), QStringList{QStringLiteral("geometry-source.geo")});
}

void tst_Project::uncopiedMeshIsToldInTheLanguage()
{
    const QDir working(GlobalHelper::getProjectTempIODir());
    QVERIFY(working.mkpath(QStringLiteral("mesh-1.msh/inside")));
    LoaderTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Messages messages;
    QCOMPARE(openMesh(samplePath("slivers.msh")), 0);
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().contains(QStringLiteral("<it cannot be copied to ")),
             qPrintable(messages.list.first()));
}

void tst_Project::worksWithoutCacheDirectory()
{
    const OtherEnvironment cache("XDG_CACHE_HOME", writeFile(path("no-directory"), "x"));
    const OtherEnvironment temporary("TMPDIR", m_directory.path());
    Messages messages;
    QVERIFY(Project::instance()->create());
    const QString directory = GlobalHelper::getProjectTempIODir();
    QVERIFY2(directory.startsWith(m_directory.path()), qPrintable(directory));
    QVERIFY(messages.list.isEmpty()); // there may be no window yet
    QVERIFY(QTest::qWaitFor([&messages] { return !messages.list.isEmpty(); }));
    QVERIFY2(messages.list.first().contains(QDir::toNativeSeparators(directory)), qPrintable(messages.list.first()));
    createMaterial(3);
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    QVERIFY(Project::instance()->saveAs(path("elsewhere.wbproj")));
    QVERIFY(Project::instance()->open(path("elsewhere.wbproj")));
    QCOMPARE(materialValue(), 3.0);
    QVERIFY(!QFileInfo::exists(directory));
    QCoreApplication::processEvents();
    QCOMPARE(messages.list.size(), 1);
}

void tst_Project::survivesWithoutDirectory()
{
    QVERIFY(Project::instance()->takeGeometry(samplePath("slivers.geo")));
    Project::instance()->close();
    const OtherEnvironment cache("XDG_CACHE_HOME", writeFile(path("no-directory"), "x"));
    const OtherEnvironment temporary("TMPDIR", path("no-directory"));
    Messages messages;
    QVERIFY(!Project::instance()->create());
    QCOMPARE(Project::instance()->geometryPath(), QString());
    QVERIFY(!Project::instance()->takeGeometry(samplePath("slivers.geo")));
    QVERIFY(!Project::instance()->saveAs(path("nothing.wbproj")));
    QVERIFY(!Project::instance()->open(path("geometry.wbproj")));
    Project::instance()->close();
    QCOMPARE(messages.list.size(), 4);
    QVERIFY(!QFileInfo::exists(path("nothing.wbproj")));
}

void tst_Project::recentProjects()
{
    RecentProjects* recent = RecentProjects::instance();
    recent->clear();
    for (int i = 0; i < RecentProjects::mostKept + 2; ++i) {
        QVERIFY(Project::instance()->saveAs(m_directory.filePath(QStringLiteral("recent-%1.wbproj").arg(i))));
    }
    QCOMPARE(recent->paths().size(), RecentProjects::mostKept);
    QCOMPARE(recent->paths().first(), path("recent-9.wbproj"));
    QVERIFY(QFile::remove(path("recent-8.wbproj")));
    QVERIFY(Project::instance()->open(path("recent-5.wbproj")));
    QCOMPARE(recent->paths().mid(0, 3),
             (QStringList{path("recent-5.wbproj"), path("recent-9.wbproj"), path("recent-7.wbproj")}));
}

WORKBENCH_TEST_MAIN(tst_Project)
#include "tst_project.moc"
