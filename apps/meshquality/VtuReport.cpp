// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <meshquality/VtuReport.h>

#include <meshquality/ResultFile.h>
#include <meshquality/ScoredMesh.h>

#include <QSysInfo>

#include <vector>

namespace MeshQuality {

using DataManager::MeshQualityReport;

namespace {

template <class Value>
constexpr const char* typeName = "";
template <>
constexpr const char* typeName<double> = "Float64";
template <>
constexpr const char* typeName<qint64> = "Int64";
template <>
constexpr const char* typeName<qint32> = "Int32";
template <>
constexpr const char* typeName<quint8> = "UInt8";

/// The length in bytes and the bytes, coded as one text.
void writeCoded(ResultFile& file, const char* bytes, quint64 size)
{
    // Whole groups of three bytes, so that the codes of the pieces join.
    constexpr quint64 pieceSize = 3 << 20;
    QByteArray piece(reinterpret_cast<const char*>(&size), sizeof size);
    for (quint64 done = 0; done < size || !piece.isEmpty();) {
        const quint64 taken = qMin(size - done, pieceSize - static_cast<quint64>(piece.size()));
        piece.append(bytes + done, static_cast<int>(taken));
        done += taken;
        file.write(piece.toBase64());
        piece.clear();
    }
}

template <class Value>
void writeArray(ResultFile& file, const QByteArray& name, const std::vector<Value>& values, int components = 1)
{
    file.write(QByteArray("<DataArray type=\"") + typeName<Value> + "\" Name=\"" + name + "\" NumberOfComponents=\"" +
               QByteArray::number(components) + "\" format=\"binary\">");
    writeCoded(file, reinterpret_cast<const char*>(values.data()), values.size() * sizeof(Value));
    file.write("</DataArray>\n");
}

/// One value an element.
template <class Value, class Function>
void writeElementArray(ResultFile& file, const char* name, const MeshQualityReport& report, Function function)
{
    std::vector<Value> values;
    values.reserve(static_cast<std::size_t>(report.elementCount()));
    for (int element = 0; element < report.elementCount(); ++element) {
        values.push_back(static_cast<Value>(function(element)));
    }
    writeArray(file, name, values);
}

void writePoints(ResultFile& file, const MeshQualityReport& report)
{
    std::vector<double> coordinates;
    coordinates.reserve(static_cast<std::size_t>(3 * report.nodeCount()));
    for (qint64 i = 0; i < report.nodeCount(); ++i) {
        const std::array<double, 3>& node = report.node(i);
        coordinates.insert(coordinates.end(), node.begin(), node.end());
    }
    file.write("<Points>\n");
    writeArray(file, "Points", coordinates, 3);
    file.write("</Points>\n");
}

void writeCells(ResultFile& file, const MeshQualityReport& report)
{
    constexpr quint8 tetrahedron = 10;
    std::vector<qint32> connectivity;
    connectivity.reserve(static_cast<std::size_t>(4 * qint64(report.elementCount())));
    for (int element = 0; element < report.elementCount(); ++element) {
        const std::array<int, 4>& corners = report.corners(element);
        connectivity.insert(connectivity.end(), corners.begin(), corners.end());
    }
    file.write("<Cells>\n");
    writeArray(file, "connectivity", connectivity);
    writeElementArray<qint64>(file, "offsets", report, [](int element) { return 4 * (qint64(element) + 1); });
    writeElementArray<quint8>(file, "types", report, [](int) { return tetrahedron; });
    file.write("</Cells>\n");
}

void writeCellData(ResultFile& file, const MeshQualityReport& report)
{
    file.write("<CellData Scalars=\"Shape\">\n");
    writeElementArray<qint32>(file, "element", report, [&report](int element) { return report.tag(element); });
    writeElementArray<qint32>(file, "region", report, [&report](int element) { return report.physicalTag(element); });
    writeElementArray<qint64>(file, "line", report, [&report](int element) { return report.line(element); });
    for (int i = 0; i < MeshQualityReport::metricCount; ++i) {
        const auto metric = static_cast<MeshQualityReport::Metric>(i);
        writeArray(file, MeshQualityReport::metricName(metric).toLatin1(), report.values(metric));
    }
    file.write("</CellData>\n");
}

} // namespace

bool writeVtu(const ScoredMesh& mesh, const QString& path)
{
    const MeshQualityReport& report = mesh.report;
    ResultFile file(path);
    file.write(QByteArray("<?xml version=\"1.0\"?>\n<VTKFile type=\"UnstructuredGrid\" version=\"1.0\" byte_order=\"") +
               (QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "LittleEndian" : "BigEndian") +
               "\" header_type=\"UInt64\">\n<UnstructuredGrid>\n<Piece NumberOfPoints=\"" +
               QByteArray::number(report.nodeCount()) + "\" NumberOfCells=\"" +
               QByteArray::number(report.elementCount()) + "\">\n");
    writePoints(file, report);
    writeCells(file, report);
    writeCellData(file, report);
    file.write("</Piece>\n</UnstructuredGrid>\n</VTKFile>\n");
    return file.commit();
}

} // namespace MeshQuality
