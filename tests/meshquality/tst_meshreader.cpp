// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "LiteralPipeline.h"
#include "MeshFiles.h"
#include "SameValues.h"

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <support/LocaleScope.h>

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using DataManager::MeshQualityPredict;
using Nodes = QVector<QVector<double>>;
using Elements = QVector<QVector<int>>;

class MeshReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsLines_data();
    void readsLines();
    void findsMarkersInLongLines_data();
    void findsMarkersInLongLines();
    void readsOnAfterLongLines_data();
    void readsOnAfterLongLines();
    void findsNoMarkersThatAreNotThere();
    void appendsToTables();
    void countsNodesAlreadyThere();
    void hasNoLinesWithoutRegularFile_data();
    void hasNoLinesWithoutRegularFile();
    void agreesWithLineByLineReader_data();
    void agreesWithLineByLineReader();
    void agreesOnEveryShortNumber();
    void readsNumbersAlikeUnderEveryLocale_data();
    void readsNumbersAlikeUnderEveryLocale();
    void givesItsMemoryBack();
    void looksUpCorners();
    void leavesElementsWithoutNodesEmpty_data();
    void leavesElementsWithoutNodesEmpty();

private:
    QString file(const QByteArray& content)
    {
        MeshFiles::write(m_directory.filePath(QStringLiteral("mesh.msh")), content);
        return m_directory.filePath(QStringLiteral("mesh.msh"));
    }

    QTemporaryDir m_directory;
    MeshQualityPredict m_predict;
};

namespace {

const Nodes rightCorner = MeshFiles::rightCorner();
const QList<QByteArray> rightCornerLines{"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1"};

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isMemoryMeasurable = false;
#else
constexpr bool isMemoryMeasurable = true;
#endif

/// Addresses of this process that are in use, in bytes.
quint64 usedMemory()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly)
               ? status.readAll().split(' ').first().toULong() * static_cast<quint64>(sysconf(_SC_PAGESIZE))
               : 0;
}

} // namespace

void MeshReaderTest::readsLines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Nodes>("nodes");
    QTest::addColumn<Elements>("elements");

    const Elements first{{1, 2, 3, 4}};
    const auto row = [](const char* name, const QList<QByteArray>& nodeLines, const QList<QByteArray>& elementLines,
                        const Nodes& nodes, const Elements& elements) {
        QTest::newRow(name) << MeshFiles::mesh(nodeLines, elementLines) << nodes << elements;
    };
    row("three nodes", {"1 0 0 0", "2 1 0 0", "3 0 1 0"}, {}, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {});
    row("node numbers are not read", {"10 0 0 0", "20 1 0 0", "30 0 1 0"}, {}, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {});
    row("only type 4", rightCornerLines,
        {"1 15 2 0 1 1", "5 2 2 0 1 1 2 3", "9 4 2 0 1 1 2 3 4", "6 04 2 0 1 1 2 3 4", "7 40 2 0 1 1 2 3 4",
         "8 5 2 0 1 1 2 3 4 1 2 3 4"},
        rightCorner, first);
    row("tag count is not read", rightCornerLines, {"9 4 3 0 1 1 2 3 4"}, rightCorner, first);
    row("columns after the ninth are not read", rightCornerLines, {"9 4 2 0 1 1 2 3 4 9"}, rightCorner, first);
    row("two blanks shift the columns", {"1  0.5 2 3"}, {}, {{0, 0.5, 2}}, {});
    row("two blanks before the type", rightCornerLines, {"9  4 2 0 1 1 2 3 4"}, rightCorner, {});
    row("text is zero", {"1 x 2 3", "2 1,5 1e1 0x10"}, {}, {{0, 2, 3}, {0, 10, 0}}, {});
    row("short node lines move the next ones up", {"1 0 0", "1 0 0 0", "2", "2 1 0 0", "", "3 0 1 0", "4 0 0 1"},
        {"9 4 2 0 1 1 2 3 4"}, rightCorner, first);
    row("short tetrahedra", rightCornerLines, {"1 4 2 0 1 1 2 3", "2 4 2", "3 4", "9 4 2 0 1 1 2 3 4"}, rightCorner,
        first);
    row("missing nodes", rightCornerLines,
        {"1 4 2 0 1 0 2 3 4", "2 4 2 0 1 1 -1 3 4", "3 4 2 0 1 1 2 5 4", "4 4 2 0 1 1 2 3 2000000000",
         "5 4 2 0 1 1 2 3 99999999999", "6 4 2 0 1 1 2 3 4294967300", "9 4 2 0 1 1 2 3 4"},
        rightCorner, first);

    // As a digit it would be ten.
    row("a colon is no digit", QList<QByteArray>::fromVector(QVector<QByteArray>(10, "1 1 2 3")),
        {"9 4 2 0 1 : 1 2 3", "9 4 2 0 1 10 2 3 4"}, Nodes(10, {1, 2, 3}), {{10, 2, 3, 4}});
    const QByteArray zeros(300000, '0');
    row("a node line that is longer than a piece", {"1 1." + zeros + " 2 3", "2 4 5 6"}, {}, {{1, 2, 3}, {4, 5, 6}},
        {});
    row("an element line that is longer than a piece", rightCornerLines,
        {"9 4 2 " + zeros + " 1 1 2 3 4", "8 4 2 0 1 4 3 2 1"}, rightCorner, {{1, 2, 3, 4}, {4, 3, 2, 1}});
    // What the quick conversion does not take on: a sign of plus.
    const QByteArray million(1 << 20, '0');
    row("a number as long as numbers may be", {"1 +" + million.mid(2) + "1 2 3"}, {}, {{1, 2, 3}}, {});
    row("plain numbers of any length",
        {"1 1." + million + "1 0.5" + million + "1 9." + million + "9", "2 2." + million + " 2 -3." + million,
         "3 1 2 4." + million + "\r"},
        {}, {{1, 0.5, 9}, {2, 2, -3}, {1, 2, 4}}, {});
    row("longer than any number", {"1 +" + million.mid(1) + "1 2 3"}, {}, {{0, 2, 3}}, {});

    const QByteArray good = MeshFiles::mesh(rightCornerLines, {"9 4 2 0 1 1 2 3 4"});
    QTest::newRow("CRLF") << QByteArray(good).replace("\n", "\r\n") << rightCorner << first;
    QTest::newRow("lines outside of the sections")
        << "7 7 7 7\n" + QByteArray(good).replace("$Elements", "8 8 8 8\n$Elements") + "9 4 2 0 1 1 2 3 4\n"
        << rightCorner << first;
    QTest::newRow("count is not used") << QByteArray(good).replace("\n4\n", "\n2147483647\n") << rightCorner << first;
    QTest::newRow("markers count anywhere in a line")
        << QByteArray(good).replace("$Nodes", "see $Nodes here").replace("$EndNodes", "x$EndNodesx") << rightCorner
        << first;
    QTest::newRow("other version") << QByteArray(good).replace("2.2 0 8", "1 0 8") << rightCorner << first;
    QTest::newRow("nodes win where both sections are open")
        << QByteArray("$Elements\n$Nodes\n1\n1 4 2 0 1 1 2 3 4\n") << Nodes{{4, 2, 0}} << Elements{};
    QTest::newRow("only the first count line of all is dropped")
        << QByteArray("$Nodes\n1\n1 1 2 3\n$EndNodes\n$Nodes\n2 4 5 6\n$EndNodes\n") << Nodes{{1, 2, 3}, {4, 5, 6}}
        << Elements{};
    QTest::newRow("no end of line at the end") << QByteArray("$Nodes\n1\n1 1 2 3") << Nodes{{1, 2, 3}} << Elements{};
    QTest::newRow("empty") << QByteArray() << Nodes{} << Elements{};
    QTest::newRow("empty sections") << QByteArray("$Nodes\n$EndNodes\n$Elements\n$EndElements\n") << Nodes{}
                                    << Elements{};
}

void MeshReaderTest::readsLines()
{
    QFETCH(QByteArray, content);
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(file(content), nodes, elements);
    QTEST(nodes, "nodes");
    QTEST(elements, "elements");
}

void MeshReaderTest::findsMarkersInLongLines_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    // Around the sizes at which a reader in pieces of some kB may cut.
    for (const int size : {4096, 8192, 131072, 262144, 393216, 516049, 524288}) {
        for (int before = size - 16; before <= size + 16; before += 4) {
            QTest::addRow("%d before", before) << before << 300001;
        }
        QTest::addRow("%d before, nothing after", size) << size << 0;
        QTest::addRow("%d after", size) << 3 << size;
    }
}

// The long line opens the nodes; another one, between the sections, opens the elements and closes the nodes, which
// wins.
void MeshReaderTest::findsMarkersInLongLines()
{
    QFETCH(int, before);
    QFETCH(int, after);
    const auto around = [&](const QByteArray& text) {
        return QByteArray(before, 'x') + text + QByteArray(after, '$') + '\n';
    };
    const QByteArray content = around("$Nodes") + "1\n1 1 2 3\n$EndNodes\n" + around("$Node") + "8 8 8 8\n" +
                               around("$End$Elements$EndNodes") + "2 7 8 9\n" + around("$EndElements$Elements") +
                               "1\n1 4 2 0 1 1 1 1 1\n$EndElements\n" + around("$Nodes$EndNodes") +
                               "2 4 5 6\n$EndNodes\n" + QByteArray(after, 'y');
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(file(content), nodes, elements);
    QCOMPARE(nodes, (Nodes{{1, 2, 3}, {4, 5, 6}}));
    QCOMPARE(elements, (Elements{{1, 1, 1, 1}}));
}

void MeshReaderTest::readsOnAfterLongLines_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("length");
    for (const int before : {0, 1000, 8192, 100000}) {
        for (const int length : {131072, 200000, 262144, 300000, 900000}) {
            QTest::addRow("%d, then %d", before, length) << before << length;
        }
    }
}

// The file ends within the nodes. Were a place lost that belongs to a long line, the marker behind it would not be
// found, or more nodes in what the buffer still holds of the line.
void MeshReaderTest::readsOnAfterLongLines()
{
    QFETCH(int, before);
    QFETCH(int, length);
    const QByteArray start = QByteArray("9 9 9 9\n").repeated(before / 8 + 1);
    const QByteArray longText = QByteArray(" 7").repeated(length / 2);
    const QByteArray content =
        start + longText + "$Nodes\n1\n1 1 2 3\n$EndNodes\n" + start + longText + "\n$Nodes\n2 4 5 6\n";
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(file(content), nodes, elements);
    QCOMPARE(nodes, (Nodes{{1, 2, 3}, {4, 5, 6}}));
    QCOMPARE(elements, Elements{});
}

// The first piece ends within the long line. Its start is moved to the front of the buffer, so that its last eight
// bytes stand there twice, "desxx$No" behind "$No".
void MeshReaderTest::findsNoMarkersThatAreNotThere()
{
    const QByteArray before = "8 8 8 8\n";
    const QByteArray end = "desxx$No";
    QCOMPARE(end.size(), before.size());
    const QByteArray content = before + QByteArray((1 << 18) - before.size() - end.size(), 'x') + end +
                               QByteArray(100, 'x') + "\n1\n1 1 2 3\n";
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(file(content), nodes, elements);
    QCOMPARE(nodes, Nodes{});
}

void MeshReaderTest::appendsToTables()
{
    const QString path = file(MeshFiles::mesh({"1 1 2 3", "2 4 5 6", "3 0 0 0", "4 7 8 9"}, {"1 4 2 0 1 1 2 3 4"}));
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(path, nodes, elements);
    m_predict.get_Nodes_Elements(path, nodes, elements);
    QCOMPARE(nodes, (Nodes{{1, 2, 3}, {4, 5, 6}, {0, 0, 0}, {7, 8, 9}, {1, 2, 3}, {4, 5, 6}, {0, 0, 0}, {7, 8, 9}}));
    QCOMPARE(elements, (Elements{{1, 2, 3, 4}, {1, 2, 3, 4}}));
}

void MeshReaderTest::countsNodesAlreadyThere()
{
    Nodes nodes{{9, 9, 9}};
    Elements elements;
    m_predict.get_Nodes_Elements(file(MeshFiles::mesh(rightCornerLines, {"1 4 2 0 1 2 3 4 5", "1 4 2 0 1 2 3 4 6"})),
                                 nodes, elements);
    QCOMPARE(elements, (Elements{{2, 3, 4, 5}}));
}

void MeshReaderTest::hasNoLinesWithoutRegularFile_data()
{
    QTest::addColumn<QString>("path");
    const QString pipe = m_directory.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("missing") << m_directory.filePath(QStringLiteral("none.msh"));
    QTest::newRow("no name") << QString();
    QTest::newRow("directory") << m_directory.path();
    QTest::newRow("pipe") << pipe;
    QTest::newRow("device") << QStringLiteral("/dev/zero");
}

void MeshReaderTest::hasNoLinesWithoutRegularFile()
{
    QFETCH(QString, path);
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(path, nodes, elements);
    QVERIFY(nodes.isEmpty());
    QVERIFY(elements.isEmpty());
}

void MeshReaderTest::agreesWithLineByLineReader_data()
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

void MeshReaderTest::agreesWithLineByLineReader()
{
    QFETCH(QByteArray, content);
    const QString path = file(content);
    const LiteralPipeline::Mesh expected = LiteralPipeline::read(path);
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(path, nodes, elements);
    QVERIFY(SameValues::same(nodes, expected.nodes));
    QVERIFY(SameValues::same(elements, expected.elements));
}

// Every text of up to four of the characters that numbers are made of, as a coordinate and as a node number.
void MeshReaderTest::agreesOnEveryShortNumber()
{
    const QByteArray alphabet = "0179.eE+-nia\t";
    QList<QByteArray> texts{""};
    for (int begin = 0, length = 0; length < 4; ++length) {
        const int end = texts.size();
        for (; begin < end; ++begin) {
            for (const char byte : alphabet) {
                texts.append(texts.at(begin) + byte);
            }
        }
    }
    QList<QByteArray> nodeLines;
    QList<QByteArray> elementLines;
    for (const QByteArray& text : texts) {
        nodeLines.append("1 " + text + " 0 " + text);
        elementLines.append("1 4 2 0 1 " + text + " 1 1 " + text);
    }
    const QString path = file(MeshFiles::mesh(nodeLines, elementLines));
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(path, nodes, elements);
    QCOMPARE(nodes.size(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        const double expected = QString::fromLatin1(texts.at(i)).toDouble();
        QVERIFY2(SameValues::same(nodes.at(i), QVector<double>{expected, 0.0, expected}), texts.at(i).constData());
    }
    QVERIFY(SameValues::same(elements, LiteralPipeline::read(path).elements));
    QVERIFY(elements.size() > 100);
}

void MeshReaderTest::readsNumbersAlikeUnderEveryLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
    QTest::newRow("Chinese") << QLocale(QLocale::Chinese, QLocale::China);
}

/// A comma, a grouped number and digits of other scripts are no numbers, which is 0.
void MeshReaderTest::readsNumbersAlikeUnderEveryLocale()
{
    QFETCH(QLocale, locale);
    const LocaleScope scope(locale);
    const QString path = file(MeshFiles::mesh({"1 0.5 1,5 1e-1", "2 1.000,5 1,000.5 -2.25", "3 ١ ٢ 4"}, {}));
    Nodes nodes;
    Elements elements;
    m_predict.get_Nodes_Elements(path, nodes, elements);
    QCOMPARE(nodes, (Nodes{{0.5, 0, 0.1}, {0, 0, -2.25}, {0, 0, 4}}));
}

void MeshReaderTest::givesItsMemoryBack()
{
    if (!isMemoryMeasurable) {
        QSKIP("the sanitizer has memory of its own");
    }
    const QString path = file(MeshFiles::oneTetrahedron(MeshFiles::rightCorner()));
    const quint64 before = usedMemory();
    for (int i = 0; i < 400; ++i) {
        Nodes nodes;
        Elements elements;
        m_predict.get_Nodes_Elements(path, nodes, elements);
    }
    // One of the buffers has 256 kB.
    QVERIFY(usedMemory() < before + (quint64(20) << 20));
}

void MeshReaderTest::looksUpCorners()
{
    const Nodes nodes{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 6, 7}};
    QCOMPARE(
        m_predict.get_ElementsNodes(nodes, {{1, 2, 3, 4}, {5, 1, 1, 2}}),
        (QVector<Nodes>{{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, {{5, 6, 7}, {0, 0, 0}, {0, 0, 0}, {1, 0, 0}}}));
    QVERIFY(m_predict.get_ElementsNodes(nodes, {}).isEmpty());
}

void MeshReaderTest::leavesElementsWithoutNodesEmpty_data()
{
    QTest::addColumn<QVector<int>>("element");
    QTest::newRow("number 0") << QVector<int>{0, 1, 2, 3};
    QTest::newRow("negative") << QVector<int>{1, -2147483647, 2, 3};
    QTest::newRow("past the end") << QVector<int>{1, 2, 3, 5};
    QTest::newRow("three numbers") << QVector<int>{1, 2, 3};
    QTest::newRow("none") << QVector<int>{};
}

void MeshReaderTest::leavesElementsWithoutNodesEmpty()
{
    QFETCH(QVector<int>, element);
    QCOMPARE(m_predict.get_ElementsNodes(rightCorner, {element, {1, 2, 3, 4}}), (QVector<Nodes>{{}, rightCorner}));
}

QTEST_GUILESS_MAIN(MeshReaderTest)
#include "tst_meshreader.moc"
