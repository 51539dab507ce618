// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

// Gives any bytes as a mesh file to the streaming reader and to the one that works line by line, and ends the process
// when their tables differ in a bit. Where the file says that it is MSH 2 ASCII, the features of the report are
// compared with those of the literal pipeline, too.

#include "meshquality/LiteralPipeline.h"
#include "meshquality/SameValues.h"

#include <datamanager/meshquality/MeshQualityReport.h>
#include <datamanager/meshquality/private/MeshTables.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool isTrue, const char* what, std::size_t place)
{
    if (!isTrue) {
        std::fprintf(stderr, "the readers differ: %s %zu\n", what, place + 1);
        std::abort();
    }
}

DataManager::MeshTables streamedTables(const QString& path)
{
    DataManager::MeshTables tables = DataManager::readMeshTables(path);
#ifdef FUZZ_DEFECT
    if (!tables.nodes.empty()) {
        tables.nodes.front().z = std::nextafter(tables.nodes.front().z, 2.0);
    }
#endif
    return tables;
}

void compareTables(const DataManager::MeshTables& streamed, const LiteralPipeline::Mesh& literal)
{
    require(static_cast<int>(streamed.nodes.size()) == literal.nodes.size(), "number of nodes", streamed.nodes.size());
    for (std::size_t i = 0; i < streamed.nodes.size(); ++i) {
        const QVector<double>& node = literal.nodes[static_cast<int>(i)];
        require(SameValues::same(streamed.nodes[i].x, node[0]) && SameValues::same(streamed.nodes[i].y, node[1]) &&
                    SameValues::same(streamed.nodes[i].z, node[2]),
                "node", i);
    }
    require(static_cast<int>(streamed.tetrahedra.size()) == literal.elements.size(), "number of elements",
            streamed.tetrahedra.size());
    for (std::size_t i = 0; i < streamed.tetrahedra.size(); ++i) {
        for (int corner = 0; corner < 4; ++corner) {
            require(streamed.tetrahedra[i][static_cast<std::size_t>(corner)] ==
                        literal.elements[static_cast<int>(i)][corner],
                    "element", i);
        }
    }
}

void compareFeatures(const QString& path, const DataManager::MeshTables& tables)
{
    DataManager::MeshQualityReport report;
    if (!report.measure(path)) {
        return;
    }
    require(static_cast<std::size_t>(report.elementCount()) == tables.tetrahedra.size(), "measured elements", 0);
    const std::array<float, 11> literal = LiteralPipeline::features(path);
    for (std::size_t i = 0; i < literal.size(); ++i) {
        require(SameValues::same(report.features()[i], literal[i]), "feature", i);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("mesh.msh"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) != static_cast<qint64>(size)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        std::abort();
    }
    file.close();
    const DataManager::MeshTables streamed = streamedTables(path);
    compareTables(streamed, LiteralPipeline::read(path));
    compareFeatures(path, streamed);
    return 0;
}
