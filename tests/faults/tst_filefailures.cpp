// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "SavedFile.h"

#include <QtTest>

#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using Preparation = std::function<bool(SavedFile&)>;
Q_DECLARE_METATYPE(Preparation)

namespace {

const char* const kinds[] = {"software", "project", "example", "coordinates", "plain"};
constexpr int pageSize = 4096;

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

bool hasRights()
{
    return ::geteuid() == 0 && !qEnvironmentVariableIsSet("FILESAVER_NOBODY");
}

/// Whether this process may mount; what it mounts is its own and gone with it at the latest.
bool mayMount()
{
    static const bool isAlone =
        hasRights() && ::unshare(CLONE_NEWNS) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return isAlone;
}

/// Mounts a disk in memory in place of the file's directory and puts the file there.
bool mountDisk(SavedFile& file, const QByteArray& options)
{
    const QByteArray old = contentOf(file.path());
    if (!mayMount() || ::mount("tmpfs", encoded(file.directory()).constData(), "tmpfs", 0, options.constData()) != 0) {
        return false;
    }
    writeContent(file.path(), old);
    return QFile::setPermissions(file.directory(), QFile::Permissions(0x7777)) &&
           QFile::setPermissions(file.path(), QFile::Permissions(0x6666));
}

/// A disk with so much room left beside the file.
Preparation roomFor(int bytes)
{
    return [bytes](SavedFile& file) {
        const auto used = (QFileInfo(file.path()).size() + pageSize - 1) / pageSize * pageSize;
        return mountDisk(file, "size=" + QByteArray::number(used + bytes));
    };
}

bool limitQuota(SavedFile& file)
{
    file.becomeNobody();
    return mountDisk(file, "usrquota,usrquota_block_hardlimit=4096") &&
           ::chown(encoded(file.path()).constData(), 65534, 65534) == 0;
}

bool mountReadOnly(SavedFile& file)
{
    return mountDisk(file, {}) &&
           ::mount(nullptr, encoded(file.directory()).constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

Preparation limitFileSize(int bytes)
{
    return [bytes](SavedFile& file) {
        file.setVariable("FILESAVER_FILE_SIZE", QString::number(bytes));
        return true;
    };
}

bool takeWritePermission(SavedFile& file)
{
    file.becomeNobody();
    return QFile::setPermissions(file.path(), QFile::ReadOwner | QFile::ReadOther);
}

bool takeDirectoryPermission(SavedFile& file)
{
    file.becomeNobody();
    return QFile::setPermissions(file.path(), QFile::Permissions(0x6666)) &&
           QFile::setPermissions(file.directory(), QFile::Permissions(0x5555));
}

bool makeImmutable(SavedFile& file)
{
    return hasRights() && QProcess::execute(text("chattr"), {text("+i"), file.path()}) == 0;
}

/// Removes what a test made, whatever it is by now.
void makeRemovable(const SavedFile& file)
{
    QProcess::execute(text("sh"), {text("-c"), text("chattr -i \"$1\" 2>&- || true"), text("sh"), file.path()});
    ::umount2(encoded(file.directory()).constData(), MNT_DETACH);
    QFile::setPermissions(file.directory(), QFile::Permissions(0x7777));
}

/// Something else in the file's place, made by a function.
Preparation inItsPlace(const std::function<bool(const QString&)>& make)
{
    return [make](SavedFile& file) { return QFile::remove(file.path()) && make(file.path()); };
}

} // namespace

/// What becomes of each of the files when the file system refuses to save it. The suite runs it
/// a second time with FILESAVER_NOBODY set, so that root's rights do not help.
class TestFileFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheFile_data();
    void keepsTheFile();
    void leavesOtherThingsAlone_data();
    void leavesOtherThingsAlone();
    void savesWithoutADirectory_data();
    void savesWithoutADirectory();
    void followsLinks_data();
    void followsLinks();
    void worksUnderOddPaths_data();
    void worksUnderOddPaths();
    void survivesPathsThatAreNoText_data();
    void survivesPathsThatAreNoText();
    void worksUnderLongPaths_data();
    void worksUnderLongPaths();
};

void TestFileFailures::keepsTheFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Preparation>("prepare");
    QTest::addColumn<int>("size");
    const auto row = [](const char* name, const Preparation& prepare, int size) {
        for (const char* const kind : kinds) {
            QTest::addRow("%s, %s", name, kind) << text(kind) << prepare << size;
        }
    };
    row("disk full at 1 byte", roomFor(0), 1);
    row("disk full at 16384 bytes", roomFor(3 * pageSize), 16384);
    row("disk full at 16385 bytes", roomFor(4 * pageSize), 16385);
    row("disk full at 1 MB", roomFor(255 * pageSize), 256 * pageSize);
    row("disk full after 1 MB", roomFor(256 * pageSize), 256 * pageSize + 1);
    row("quota", limitQuota, 16385);
    row("read-only file system", mountReadOnly, 100);
    row("no byte may be written", limitFileSize(0), 1);
    row("file-size limit at 16384 bytes", limitFileSize(16383), 16384);
    row("file-size limit at 16385 bytes", limitFileSize(16384), 16385);
    row("file-size limit at 1 MB", limitFileSize(1048575), 1048576);
    row("immutable", makeImmutable, 100);
    row("no permission", takeWritePermission, 100);
    row("no permission for the directory", takeDirectoryPermission, 100);
}

void TestFileFailures::keepsTheFile()
{
    QFETCH(QString, kind);
    QFETCH(Preparation, prepare);
    QFETCH(int, size);
    SavedFile file(QDir::tempPath(), kind);
    const int length = file.lengthFor(size);
    const QString old = file.loaded();
    QCOMPARE(old, text("o 1"));
    const auto restore = qScopeGuard([&file] { makeRemovable(file); });
    if (!prepare(file)) {
        QSKIP("this needs rights that we do not have, or a file system that is not there");
    }
    const QByteArray before = contentOf(file.path());
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('n'), length)), file.failureLine());
    QCOMPARE(contentOf(file.path()), before);
    QCOMPARE(file.neighbours(), QStringList{file.name()});
    QCOMPARE(file.loaded(), old);
}

void TestFileFailures::leavesOtherThingsAlone_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Preparation>("prepare");
    const auto row = [](const char* name, const std::function<bool(const QString&)>& make) {
        for (const char* const kind : kinds) {
            QTest::addRow("%s, %s", name, kind) << text(kind) << inItsPlace(make);
        }
    };
    row("directory", [](const QString& path) { return QDir().mkdir(path); });
    row("directory with a file", [](const QString& path) { return QDir().mkpath(path + text("/inside")); });
    row("FIFO", [](const QString& path) { return ::mkfifo(encoded(path).constData(), 0666) == 0; });
    row("device", [](const QString& path) { return QFile::link(text("/dev/full"), path); });
    row("link to itself", [](const QString& path) { return QFile::link(path, path); });
    row("link to a directory", [](const QString& path) { return QFile::link(text("."), path); });
    row("link into nowhere", [](const QString& path) { return QFile::link(text("absent/file"), path); });
}

void TestFileFailures::leavesOtherThingsAlone()
{
    QFETCH(QString, kind);
    QFETCH(Preparation, prepare);
    SavedFile file(QDir::tempPath(), kind);
    file.log(file.saveArguments(QLatin1Char('o'), 1));
    QVERIFY(prepare(file));
    struct stat before = {};
    QCOMPARE(::lstat(encoded(file.path()).constData(), &before), 0);
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('n'), 100)), file.failureLine());
    struct stat after = {};
    QCOMPARE(::lstat(encoded(file.path()).constData(), &after), 0);
    QVERIFY(before.st_ino == after.st_ino && before.st_mode == after.st_mode);
    QCOMPARE(file.neighbours(), QStringList{file.name()});
    QCOMPARE(file.loaded(), text("nothing"));
}

void TestFileFailures::savesWithoutADirectory_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* const kind : kinds) {
        QTest::newRow(kind) << text(kind);
    }
}

void TestFileFailures::savesWithoutADirectory()
{
    QFETCH(QString, kind);
    const SavedFile file(QDir::tempPath(), kind);
    QVERIFY(QDir(file.directory()).removeRecursively());
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('n'), 100)), file.failureLine());
    QVERIFY(!QFile::exists(file.directory()));
    QCOMPARE(file.loaded(), text("nothing"));
}

void TestFileFailures::followsLinks_data()
{
    savesWithoutADirectory_data();
}

void TestFileFailures::followsLinks()
{
    QFETCH(QString, kind);
    const SavedFile file(QDir::tempPath(), kind);
    file.log(file.saveArguments(QLatin1Char('o'), 1));
    const QByteArray old = contentOf(file.path());
    const QString other = file.directory() + text("/other");
    QVERIFY(QFile::rename(file.path(), other));
    QVERIFY(QFile::link(text("other"), file.path()));
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('n'), 100)), QString());
    QCOMPARE(file.loaded(), text("n 100"));
    QVERIFY(QFileInfo(file.path()).isSymLink());
    QVERIFY(!QFileInfo(other).isSymLink() && contentOf(other) != old);
    // Of a file with two names only ours gets the new content.
    QVERIFY(QFile::remove(file.path()));
    QCOMPARE(::link(encoded(other).constData(), encoded(file.path()).constData()), 0);
    const QByteArray linked = contentOf(other);
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('m'), 100)), QString());
    QCOMPARE(file.loaded(), text("m 100"));
    QCOMPARE(contentOf(other), linked);
    QCOMPARE(file.neighbours().size(), 2);
}

void TestFileFailures::worksUnderOddPaths_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* title, const QString& name) {
        for (const char* const kind : kinds) {
            QTest::addRow("%s, %s", title, kind) << text(kind) << name;
        }
    };
    row("blanks", text(" a  b "));
    row("placeholders", text("%1 %2 %%"));
    row("Chinese", text("材料 ä"));
    row("outside the basic plane", text("\xf0\x9f\x94\xa9"));
    row("line break", text("a\nb"));
    row("quotes", text("a'b\"c\\d"));
    row("longest name", QString(255, QLatin1Char('n')));
}

void TestFileFailures::worksUnderOddPaths()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    const SavedFile file(QDir::tempPath(), kind, name);
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('o'), 100)), QString());
    QCOMPARE(file.log(file.saveArguments(QLatin1Char('n'), 100)), QString());
    QCOMPARE(file.loaded(), text("n 100"));
    QCOMPARE(file.neighbours(), QStringList{file.name()});
}

void TestFileFailures::survivesPathsThatAreNoText_data()
{
    savesWithoutADirectory_data();
}

/// A path whose bytes are no UTF-8 has no text that names it: whatever the save says, the old file stays or is
/// replaced as a whole.
void TestFileFailures::survivesPathsThatAreNoText()
{
    QFETCH(QString, kind);
    const SavedFile file(QDir::tempPath(), kind);
    file.log(file.saveArguments(QLatin1Char('o'), 100));
    const QByteArray before = contentOf(file.path());
    const QString root = QFileInfo(file.program()).path() + text("/..");
    const QString script =
        text("cd \"$1/..\" && name=$(printf 'raw-\\377\\376') && mv \"$(basename \"$2\")\" \"$name\" && "
             "\"./$name/bin/filesaver\" save \"$3\" n 100 >&2; status=$?; mv \"$name\" "
             "\"$(basename \"$2\")\"; exit $status");
    QProcess process;
    process.start(text("sh"), {text("-c"), script, text("sh"), QDir(root).absolutePath() + text("/bin/.."),
                               QFileInfo(QDir::cleanPath(root)).fileName(), kind});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(contentOf(file.path()) == before || file.loaded() == text("n 100"));
    QCOMPARE(file.neighbours(), QStringList{file.name()});
}

void TestFileFailures::worksUnderLongPaths_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("isPossible");
    for (const char* const kind : {"project", "coordinates", "plain"}) {
        QTest::addRow("4000 characters, %s", kind) << text(kind) << 4000 << true;
        QTest::addRow("4094 characters, %s", kind) << text(kind) << 4094 << false;
    }
}

void TestFileFailures::worksUnderLongPaths()
{
    QFETCH(QString, kind);
    QFETCH(int, length);
    QFETCH(bool, isPossible);
    SavedFile file(QDir::tempPath(), kind);
    QString directory = file.directory();
    while (directory.size() < length) {
        directory += QLatin1Char('/') + QString(qMin(199, qMax(1, length - directory.size() - 1)), QLatin1Char('d'));
    }
    QVERIFY(QDir().mkpath(directory));
    QVERIFY(QFile::setPermissions(directory, QFile::Permissions(0x7777)));
    file.setVariable("FILESAVER_PROJECT", directory);
    const bool isLogged = !file.log(file.saveArguments(QLatin1Char('n'), 100)).isEmpty();
    QCOMPARE(isLogged, !isPossible && kind != text("coordinates"));
    QCOMPARE(file.loaded(), isPossible ? text("n 100") : text("nothing"));
}

QTEST_GUILESS_MAIN(TestFileFailures)
#include "tst_filefailures.moc"
