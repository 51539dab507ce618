// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "MeshFiles.h"

#include <QDir>
#include <QFile>

#include <cmath>
#include <random>

namespace MeshFiles {

namespace {

const QByteArray header = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n";

QByteArray small()
{
    return mesh({"1 0 0 0", "2 1 0 0", "3 0 1 0", "4 0 0 1", "5 1 1 1.5"},
                {"1 15 2 0 1 1", "2 2 2 0 1 1 2 3", "3 4 2 7 1 1 2 3 4", "4 4 2 8 1 2 3 4 5"});
}

QByteArray withTokens(const QByteArray& coordinate, const QByteArray& number)
{
    return mesh({"1 0 0 0", "2 " + coordinate + " 0 0", "3 0 1 " + coordinate, "4 0 0 1"},
                {"1 4 2 0 1 1 2 3 4", "2 4 2 0 1 " + number + " 2 3 4", "3 4 2 0 1 1 2 3 " + number});
}

QByteArray mutated(QByteArray content, unsigned seed)
{
    const QByteArray alphabet = QByteArray("0123456789 $\n\r\t.-+eEnaif,x") + '\0' + '\xff';
    std::mt19937 random(seed);
    for (int change = 0; change < 40; ++change) {
        const int place = static_cast<int>(random() % static_cast<unsigned>(content.size()));
        const char byte = alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
        switch (random() % 3) {
        case 0:
            content[place] = byte;
            break;
        case 1:
            content.insert(place, byte);
            break;
        default:
            content.remove(place, 1 + static_cast<int>(random() % 3));
            break;
        }
    }
    return content;
}

QByteArray randomBytes(unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray content;
    for (int i = 0; i < 3000; ++i) {
        content += random() % 40 == 0   ? QByteArray("\n$Nodes\n")
                   : random() % 40 == 0 ? QByteArray("\n$Elements\n1 4 2 0 0 ")
                   : random() % 9 == 0  ? QByteArray("\n")
                   : random() % 2 == 0  ? QByteArray(" 1")
                                        : QByteArray(1, static_cast<char>(random() & 0xff));
    }
    return content;
}

QByteArray head(const QString& path, int size)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(size) : QByteArray();
}

void addTokens(QList<QPair<QByteArray, QByteArray>>& files)
{
    const QList<QByteArray> tokens{"nan",
                                   "NaN",
                                   "inf",
                                   "-inf",
                                   "INF",
                                   "infinity",
                                   "1e400",
                                   "-1e400",
                                   "1e-400",
                                   "0x10",
                                   "1,5",
                                   "+1",
                                   "-1",
                                   "--1",
                                   "1.",
                                   ".5",
                                   "1e",
                                   "1e+",
                                   "1.5.",
                                   "\t2",
                                   "2\t",
                                   "2\r",
                                   "\r2",
                                   "1\r2",
                                   "1:",
                                   "",
                                   "-0",
                                   "0e0",
                                   "1e1",
                                   "2147483647",
                                   "2147483648",
                                   "2000000000",
                                   "5",
                                   "0",
                                   "4.0",
                                   "\xc2\xa0"
                                   "2",
                                   "\xef\xbb\xbf"
                                   "2",
                                   "\xff",
                                   "\xd9\xa1",
                                   "1_0",
                                   "1d5",
                                   "4.9406564584124654e-324",
                                   "1.7976931348623157e308",
                                   "1.7976931348623159e308",
                                   "0.1000000000000000055511151231257827021181583404541015625",
                                   "00000000000000000003",
                                   "9007199254740993",
                                   "1e23",
                                   "nan(1)",
                                   "e5",
                                   ".",
                                   "-",
                                   "1 ",
                                   " 1",
                                   "1'000"};
    for (const QByteArray& token : tokens) {
        files.append({"token '" + token.toPercentEncoding(" +,.'()") + "'", withTokens(token, token)});
    }
    files.append({"NUL in token", withTokens(QByteArray("1\0002", 3), QByteArray("1\0", 2))});
    files.append({"10 kB of digits", withTokens("0." + QByteArray(10000, '3'), QByteArray(10000, '1'))});
    files.append({"10 kB of letters", withTokens(QByteArray(10000, 'q'), QByteArray(10000, 'q'))});
}

void addLayouts(QList<QPair<QByteArray, QByteArray>>& files)
{
    const QByteArray good = small();
    files.append({"empty", QByteArray()});
    files.append({"4 kB of NUL", QByteArray(4096, '\0')});
    files.append({"CRLF", QByteArray(good).replace("\n", "\r\n")});
    files.append({"lone CR", QByteArray(good).replace("\n", "\r")});
    files.append({"doubled blanks", QByteArray(good).replace(" ", "  ")});
    files.append({"tabs for blanks", QByteArray(good).replace(" ", "\t")});
    files.append({"trailing blanks", QByteArray(good).replace("\n", " \n")});
    files.append({"leading blanks", QByteArray(good).replace("\n", "\n ")});
    files.append({"byte-order mark", "\xef\xbb\xbf" + good});
    files.append({"blank lines", QByteArray(good).replace("\n", "\n\n")});
    files.append({"no end of elements", QByteArray(good).replace("$EndElements\n", "")});
    files.append({"no end of nodes", QByteArray(good).replace("$EndNodes\n", "")});
    files.append({"marker within a line", QByteArray(good).replace("5 1 1 1.5", "5 1 $EndNodes 1.5")});
    files.append({"other dollars", QByteArray(good).replace("5 1 1 1.5", "5 1 $ $End 1.5")});
    files.append({"twice", good + good});
    const int elements = good.indexOf("$Elements");
    const int nodes = good.indexOf("$Nodes");
    files.append({"elements first", good.mid(elements) + good.mid(nodes, elements - nodes)});
    files.append(
        {"more nodes after the elements",
         good.left(elements) + "$Elements\n1\n1 4 2 0 1 1 2 3 6\n$EndElements\n" + "$Nodes\n1\n6 2 2 3\n$EndNodes\n"});
    files.append({"huge line without an end", good + QByteArray(3 << 20, '7')});
    files.append(
        {"huge line in the nodes", QByteArray(good).replace("5 1 1 1.5", "5 1 1 1.5" + QByteArray(3 << 20, ' '))});
    for (const char* count : {"0", "-1", "2147483647", "1e30"}) {
        files.append({QByteArray("count ") + count, QByteArray(good)
                                                        .replace("\n5\n", QByteArray("\n") + count + "\n")
                                                        .replace("\n4\n", QByteArray("\n") + count + "\n")});
    }
}

} // namespace

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

QByteArray mesh(const QList<QByteArray>& nodeLines, const QList<QByteArray>& elementLines)
{
    return header + "$Nodes\n" + QByteArray::number(nodeLines.size()) + '\n' + nodeLines.join('\n') +
           "\n$EndNodes\n$Elements\n" + QByteArray::number(elementLines.size()) + '\n' + elementLines.join('\n') +
           "\n$EndElements\n";
}

QByteArray oneTetrahedron(const QVector<QVector<double>>& corners)
{
    QList<QByteArray> lines;
    for (const QVector<double>& corner : corners) {
        lines.append(QByteArray::number(lines.size() + 1) + ' ' + QByteArray::number(corner[0], 'g', 17) + ' ' +
                     QByteArray::number(corner[1], 'g', 17) + ' ' + QByteArray::number(corner[2], 'g', 17));
    }
    return mesh(lines, {"1 4 2 0 1 1 2 3 4"});
}

QVector<QVector<double>> rightCorner()
{
    return {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
}

QVector<QVector<double>> regular(double edge)
{
    return {{0, 0, 0},
            {edge, 0, 0},
            {edge / 2, edge * std::sqrt(3.0) / 2, 0},
            {edge / 2, edge * std::sqrt(3.0) / 6, edge * std::sqrt(6.0) / 3}};
}

QVector<QVector<double>> inverted(QVector<QVector<double>> corners)
{
    std::swap(corners[1], corners[2]);
    return corners;
}

QStringList samples()
{
    const QDir directory(QStringLiteral(DATAMANAGER_SOURCE_DIR "/samples"));
    QStringList paths;
    for (const QString& name : directory.entryList({QStringLiteral("*.msh")}, QDir::Files)) {
        paths.append(directory.filePath(name));
    }
    if (paths.isEmpty()) {
        qFatal("no sample meshes");
    }
    return paths;
}

QList<QPair<QByteArray, QByteArray>> hostile()
{
    QList<QPair<QByteArray, QByteArray>> files;
    addTokens(files);
    addLayouts(files);
    const QByteArray good = small();
    for (int length = 0; length < good.size(); ++length) {
        files.append({"cut after " + QByteArray::number(length), good.left(length)});
    }
    for (unsigned seed = 0; seed < 60; ++seed) {
        files.append({"mutated small " + QByteArray::number(seed), mutated(good, seed)});
        files.append({"random " + QByteArray::number(seed), randomBytes(seed)});
    }
    unsigned seed = 1000;
    for (const QString& sample : samples()) {
        files.append({"mutated sample " + QByteArray::number(seed), mutated(head(sample, 1 << 20), seed)});
        ++seed;
    }
    return files;
}

} // namespace MeshFiles
