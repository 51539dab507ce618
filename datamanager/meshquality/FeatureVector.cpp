// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include <datamanager/meshquality/MeshQualityPredict.h>

#include <datamanager/meshquality/private/FeatureSums.h>

#include <QCoreApplication>
#include <QFile>

namespace DataManager {

void MeshQualityPredict::getInput(float* input)
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/../temp/mesh.msh");
    if (input == nullptr || !QFile::exists(path)) {
        return;
    }
    const MeshTables mesh = readMeshTables(path);
    FeatureSums sums;
    sums.reserve(mesh.tetrahedra.size());
    for (std::size_t i = 0; i < mesh.tetrahedra.size(); ++i) {
        sums.add(Tetrahedron::measures(mesh.corners(i)));
    }
    const FeatureMeans means = sums.means();
    std::copy(means.begin(), means.end(), input);
}

} // namespace DataManager
