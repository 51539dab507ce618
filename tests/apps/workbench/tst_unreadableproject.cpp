// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "ProjectContent.h"
#include "WindowTest.h"

#include <workbench/project/Project.h>
#include <workbench/project/ProjectArchive.h>
#include <workbench/project/WorkingDirectory.h>

#include <QRegularExpression>
#include <QTemporaryDir>

using BaseModule::GlobalHelper;
using namespace Workbench;

/// Files that are no projects, or damaged ones: refused with a reason, while the project that is open stays.
class tst_UnreadableProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(Project::instance()->create()); }
    void cleanupTestCase() { Project::instance()->close(); }

    void unreadableKeepsWhatIsOpen_data();
    void unreadableKeepsWhatIsOpen();
    void damagedDescriptionsAreRefused_data();
    void damagedDescriptionsAreRefused();

private:
    QString path(const char* name) const { return m_directory.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_directory;
};

void tst_UnreadableProject::unreadableKeepsWhatIsOpen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QStringLiteral("absent") << QStringLiteral("no such file");
    QTest::newRow("a directory") << QStringLiteral(".") << QStringLiteral("no such file");
    QTest::newRow("empty") << QStringLiteral("empty") << QStringLiteral("no project file");
    QTest::newRow("a text") << QStringLiteral("text") << QStringLiteral("no project file");
    QTest::newRow("truncated") << QStringLiteral("truncated") << QStringLiteral("damaged");
    QTest::newRow("a byte changed") << QStringLiteral("flipped") << QStringLiteral("damaged");
    QTest::newRow("another archive") << QStringLiteral("archive") << QStringLiteral("no project");
    QTest::newRow("of a newer version") << QStringLiteral("newer") << QStringLiteral("newer version");
    QTest::newRow("without mesh description") << QStringLiteral("partial") << QStringLiteral("description");
}

void tst_UnreadableProject::unreadableKeepsWhatIsOpen()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    createMaterial(4);
    openMesh(samplePath("slivers.msh"));
    QVERIFY(Project::instance()->saveAs(path("good.wbproj")));
    QFile good(path("good.wbproj"));
    QVERIFY(good.open(QIODevice::ReadOnly));
    QByteArray content = good.readAll();
    writeFile(path("empty"), QByteArray());
    writeFile(path("text"), "not a project");
    writeFile(path("truncated"), content.left(content.size() / 2));
    content[content.size() / 2] = static_cast<char>(content[content.size() / 2] ^ 1);
    writeFile(path("flipped"), content);
    writeFile(path("other.txt"), "x");
    QVERIFY(ProjectArchive::pack(m_directory.path(), {QStringLiteral("other.txt")}, path("archive")).isEmpty());
    writeFile(path("project.json"), R"({"format": "workbench project", "version": 2})");
    QVERIFY(ProjectArchive::pack(m_directory.path(), {QStringLiteral("project.json")}, path("newer")).isEmpty());
    writeFile(path("project.json"), R"({"format": "workbench project", "version": 1})");
    QVERIFY(ProjectArchive::pack(m_directory.path(), {QStringLiteral("project.json")}, path("partial")).isEmpty());

    const QString directory = GlobalHelper::getProjectTempIODir();
    Messages messages;
    QVERIFY(!Project::instance()->open(m_directory.filePath(name)));
    QCOMPARE(messages.list.size(), 1);
    QVERIFY2(messages.list.first().startsWith(QStringLiteral("2 The project ")), qPrintable(messages.list.first()));
    QVERIFY2(messages.list.first().contains(reason), qPrintable(messages.list.first()));
    QCOMPARE(GlobalHelper::getProjectTempIODir(), directory);
    QCOMPARE(Project::instance()->path(), path("good.wbproj"));
    QCOMPARE(materialValue(), 4.0);
    QCOMPARE(MeshManager::instance()->getKernelCount(), 1);
    QVERIFY(!Project::instance()->isModified());
    QCOMPARE(QDir(WorkingDirectory::parentPath()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

void tst_UnreadableProject::damagedDescriptionsAreRefused_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("geometry");
    QTest::addColumn<QByteArray>("mesh");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* geometry, const char* mesh, const char* reason) {
        QTest::newRow(name) << QByteArray("1") << QByteArray(geometry) << QByteArray(mesh)
                            << QString::fromLatin1(reason);
    };
    const auto kernel = [&row](const char* name, const char* members, const char* reason) {
        row(name, R"({"components": []})", QByteArray(R"({"kernels": [)").append(members).append("]}"), reason);
    };
    const char* const damaged = "its description of geometry or mesh is damaged";
    kernel("sound", "", "");
    row("another geometry", R"({"x": 1})", R"({"kernels": []})", damaged);
    row("components of another type", R"({"components": {}})", R"({"kernels": []})", damaged);
    row("another mesh", R"({"components": []})", R"({"x": 1})", damaged);
    row("kernels of another type", R"({"components": []})", R"({"kernels": 1})", damaged);
    kernel("a kernel without number", R"({"id": 0, "file": "mesh-1.msh"})", damaged);
    kernel("a kernel beyond numbers", R"({"id": 1000001, "file": "mesh-1.msh"})", damaged);
    kernel("a kernel without file", R"({"id": 1})", damaged);
    kernel("a kernel of another place", R"({"id": 1, "file": "../mesh-1.msh"})", damaged);
    kernel("a kernel that is a number", "7", damaged);
    const auto version = [](const char* name, const char* number, const char* reason) {
        QTest::newRow(name) << QByteArray(number) << QByteArray(R"({"components": []})")
                            << QByteArray(R"({"kernels": []})") << QString::fromLatin1(reason);
    };
    const char* const newer = "it was saved by a newer version of the program";
    version("the next version", "2", newer);
    version("a version beyond integers", "1e300", newer);
    version("no version", "null", "it is damaged");
    version("version 0", "0", "it is damaged");
    version("a negative version", "-1", "it is damaged");
    version("a version between", "1.5", "it is damaged");
    version("a text for a version", "\"2\"", "it is damaged");
}

void tst_UnreadableProject::damagedDescriptionsAreRefused()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, geometry);
    QFETCH(QByteArray, mesh);
    QFETCH(QString, reason);
    createMaterial(4);
    QVERIFY(Project::instance()->saveAs(path("good.wbproj")));
    const QStringList names{QStringLiteral("project.json"), QStringLiteral("geometry.json"),
                            QStringLiteral("mesh.json")};
    writeFile(m_directory.filePath(names[0]), R"({"format": "workbench project", "version": )" + version + "}");
    writeFile(m_directory.filePath(names[1]), geometry);
    writeFile(m_directory.filePath(names[2]), mesh);
    QCOMPARE(ProjectArchive::pack(m_directory.path(), names, path("described.wbproj")), QString());

    if (reason.isEmpty()) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^Read project material library file ")));
    }
    Messages messages;
    QCOMPARE(Project::instance()->open(path("described.wbproj")), reason.isEmpty());
    QCOMPARE(messages.list.size(), reason.isEmpty() ? 0 : 1);
    QVERIFY2(reason.isEmpty() || messages.list.first().endsWith(reason), qPrintable(messages.list.value(0)));
    QCOMPARE(Project::instance()->path(), path(reason.isEmpty() ? "described.wbproj" : "good.wbproj"));
    QVERIFY(reason.isEmpty() || materialValue() == 4.0);
}

WORKBENCH_TEST_MAIN(tst_UnreadableProject)
#include "tst_unreadableproject.moc"
