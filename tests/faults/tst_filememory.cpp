// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "SavedFile.h"

#include <QSet>
#include <QtTest>

#include <cstdio>
#include <sys/resource.h>

namespace {

#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
constexpr int size = 10000000;
constexpr int limitCount = 120;
#else
constexpr int size = 3000000;
constexpr int limitCount = 12;
#endif

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isMeasurable = false;
#else
constexpr bool isMeasurable = true;
#endif

/// A piece, again and again, up to the size of the whole.
QByteArray filled(const QByteArray& piece, const QByteArray& separator = ",")
{
    return (piece + separator).repeated(size / (piece.size() + separator.size())) + piece;
}

QByteArray list(const QByteArray& member, const QByteArray& elements)
{
    return "{\"" + member + "\":[" + elements + "]}";
}

QByteArray material(int id)
{
    const QByteArray property = R"({"label":"l","kind":1,"components":[1,0,0,0,1,0,0,0,1],"remark":"r","flag":true})";
    return R"({"chineseName":"c","englishName":"e","id":)" + QByteArray::number(id) + R"(,"property1":)" + property +
           R"(,"property2":)" + property + R"(,"property3":null,"property4":null,"property5":null,"isDeleted":false})";
}

/// As many as the whole needs.
QByteArray materials(int wholeSize = size)
{
    QByteArray elements = material(1);
    for (int id = 2; elements.size() < wholeSize; ++id) {
        elements += ',' + material(id);
    }
    return list("materialList", elements);
}

QByteArray mesh()
{
    const QByteArray head = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n4\n1 0 0 0\n2 1 0 0\n3 0 1 0\n4 0 0 1\n"
                            "$EndNodes\n$Elements\n1\n";
    return head + filled("1 4 2 0 1 1 2 3 4", "\n") + "\n$EndElements\n";
}

/// What the processes that ended so far took, which other load hardly changes.
double processorSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

} // namespace

/// How much memory a file may cost, and what happens when there is less.
class TestFileMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isBounded_data();
    void isBounded();
    void loadsManyRecords();
    void isShort_data();
    void isShort();
    void isShortWhileReplacing_data();
    void isShortWhileReplacing();
};

void TestFileMemory::isBounded_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("factor");
    const auto row = [](const char* kind, const char* name, const QByteArray& content, int factor = 20) {
        QTest::addRow("%s: %s", kind, name) << text(kind) << content << factor;
    };
    row("software", "materials", materials());
    row("software", "records without members", list("materialList", filled("{}")));
    row("software", "records of one member", list("materialList", filled(R"({"id":1})")));
    row("software", "null", list("materialList", filled("null")));
    row("software", "lists for records", list("materialList", filled("[]")));
    row("software", "numbers for records", list("materialList", filled("0")));
    row("software", "one long list of numbers",
        list("materialList", R"({"id":1,"property1":{"components":[)" + filled("0") + "]}}"));
    row("software", "one long text", list("materialList", R"({"id":1,"englishName":")" + filled("n", "") + "\"}"));
    row("software", "unknown members", R"({"materialList":[],)" + filled(R"("unknown":0)") + "}");
    row("software", "100000 levels", QByteArray("[").repeated(100000) + QByteArray("]").repeated(100000));
    row("software", "NUL", filled(QByteArray(1, '\0'), {}));
    row("software", "an open quote", "{\"" + filled("\\\\", {}));
    row("example", "records without members", list("exampleList", filled("{}")));
    row("project", "no cipher text", filled("A", {}));
    row("project", "a cipher text of another key", "DMTC1:" + filled("AAAA", {}));
    row("coordinates", "numbers", R"({"m_IDList":["x",)" + filled("0") + "]}");
    row("coordinates", "texts", list("m_nameList", filled(R"("")")));
    row("coordinates", "one long chain",
        R"({"m_IDList":[1],"m_basicCoorSysIDList":[9],"m_nameList":["a"],"m_typeList":[")" + filled("1:1", ";") +
            "\"]}");
    // Eight bytes a level, which becomes a list of its own, and a text of its own when the file is written again.
    row("coordinates", "one long chain of vectors",
        R"({"m_IDList":[1],"m_basicCoorSysIDList":[9],"m_offsetCoordinateList":[")" + filled("1:0,0,0", ";") + "\"]}",
        30);
    row("mesh", "tetrahedra", mesh());
    row("mesh", "nodes", "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n1e30\n" + filled("1 0 0 0", "\n"));
    row("mesh", "one line", filled("1 ", {}));
#ifdef DATAMANAGER_EXHAUSTIVE_TESTS
    row("mesh", "one line of 1 GiB", QByteArray("1 ").repeated(1 << 29), 2);
#endif
    row("mesh", "empty lines", "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n" + filled("\n", {}));
    row("mesh", "short lines",
        "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n2147483647\n" + filled("1", "\n") + "\n$EndNodes\n");
}

/// Twenty times the file, as a rule, and 64 MB.
void TestFileMemory::isBounded()
{
    if (!isMeasurable) {
        QSKIP("a sanitizer has memory of its own");
    }
    QFETCH(QString, kind);
    QFETCH(QByteArray, content);
    QFETCH(int, factor);
    const SavedFile file(QDir::tempPath(), kind);
    file.restore(content);
    const double before = processorSeconds();
    const QString grown = file.output(file.memoryArguments());
    // For people: how long it takes depends on the machine.
    std::printf("%s: %.1f MB of memory for a file of %.1f MB, %.1f s of a processor\n", QTest::currentDataTag(),
                double(grown.toLongLong()) / 1e6, content.size() / 1e6, processorSeconds() - before);
    QVERIFY2(grown.toLongLong() > 0 && grown.toLongLong() <= qint64(factor) * content.size() + 64 * 1024 * 1024,
             qPrintable(text("%1 bytes for a file of %2").arg(grown).arg(content.size())));
}

/// More than a hundred thousand, and as many that are as small as they can be written.
void TestFileMemory::loadsManyRecords()
{
    const SavedFile file(QDir::tempPath(), text("software"));
    file.restore(materials(100000 * material(100000).size()));
    QCOMPARE(file.loaded(), text("e 1"));
    const QByteArray smallest = R"({"chineseName":"","englishName":"e","id":1,"property1":null,"property2":null,)"
                                R"("property3":null,"property4":null,"property5":null,"isDeleted":false})";
    file.restore(list("materialList", (smallest + ',').repeated(200000) + smallest));
    QCOMPARE(file.loaded(), text("e 1"));
}

void TestFileMemory::isShort_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("content");
    for (const char* const kind : {"software", "project", "example", "coordinates"}) {
        QTest::addRow("%s: one long text", kind) << text(kind) << QByteArray();
    }
    QTest::newRow("software: many records") << text("software") << materials();
    QTest::newRow("mesh: many tetrahedra") << text("mesh") << mesh();
}

/// Where the memory ends while a file is loaded, nothing of the file is there, and it stays as it was.
void TestFileMemory::isShort()
{
    if (!isMeasurable) {
        QSKIP("a sanitizer needs all of the address space");
    }
    QFETCH(QString, kind);
    QFETCH(QByteArray, content);
    SavedFile file(QDir::tempPath(), kind);
    if (content.isEmpty()) {
        file.log(file.saveArguments(QLatin1Char('o'), size));
    } else {
        file.restore(content);
    }
    const QByteArray before = contentOf(file.path());
    const QString whole = file.loaded();
    QVERIFY(whole != text("nothing") && whole != text("crashed"));
    QStringList states;
    for (int i = 1; i <= limitCount; ++i) {
        // The smallest leaves room for what does not depend on the file.
        const int limit = 1000000 + i * (size / limitCount) * 12;
        file.setVariable("FILESAVER_MEMORY", QString::number(limit));
        const QString state = file.loaded();
        QVERIFY2(state == text("nothing") || state == whole, qPrintable(text("%1 at %2").arg(state).arg(limit)));
        QVERIFY2(contentOf(file.path()) == before, qPrintable(text("changed at %1").arg(limit)));
        states.append(state);
    }
    QVERIFY2(states.contains(text("nothing")), "the memory was never short");
}

void TestFileMemory::isShortWhileReplacing_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* const kind : {"software", "project", "example"}) {
        QTest::newRow(kind) << text(kind);
    }
}

/// A file that is no library is kept beside the new one, or stays where the memory does not suffice for that.
void TestFileMemory::isShortWhileReplacing()
{
    if (!isMeasurable) {
        QSKIP("a sanitizer needs all of the address space");
    }
    QFETCH(QString, kind);
    const QByteArray before = filled("no library ", {});
    QSet<bool> kept;
    for (int limit = 1000000; limit < 6 * size; limit += size / 2) {
        SavedFile file(QDir::tempPath(), kind);
        file.restore(before);
        file.setVariable("FILESAVER_MEMORY", QString::number(limit));
        const QString log = file.log(file.saveArguments(QLatin1Char('n'), 1));
        const bool isKept = contentOf(file.path()) != before;
        kept.insert(isKept);
        QVERIFY2(log.endsWith(isKept ? QString() : file.failureLine()) && log != text("crashed"), qPrintable(log));
        // The copy may be there although comparing it with the file was too much.
        const QByteArray copy = contentOf(file.path() + text(".unreadable"));
        QVERIFY(copy == before || (!isKept && copy.isNull()));
        QCOMPARE(file.neighbours().size(), copy.isNull() ? 1 : 2);
    }
    QCOMPARE(kept, (QSet<bool>{false, true}));
}

QTEST_GUILESS_MAIN(TestFileMemory)
#include "tst_filememory.moc"
