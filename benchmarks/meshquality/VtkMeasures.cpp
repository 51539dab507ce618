// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#include "Contender.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkMeshQuality.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkUnstructuredGrid.h>

#include <cstdio>
#include <cstring>

namespace {

void readNodes(std::FILE* file, vtkPoints* points)
{
    long count = 0;
    if (std::fscanf(file, "%ld", &count) != 1) {
        return;
    }
    points->SetDataTypeToDouble();
    points->SetNumberOfPoints(count);
    for (long i = 0; i < count; ++i) {
        long number = 0;
        double x = 0.0;
        double y = 0.0;
        double z = 0.0;
        if (std::fscanf(file, "%ld %lf %lf %lf", &number, &x, &y, &z) == 4) {
            points->SetPoint(i, x, y, z);
        }
    }
}

void readElements(std::FILE* file, vtkUnstructuredGrid* grid)
{
    long count = 0;
    if (std::fscanf(file, "%ld", &count) != 1) {
        return;
    }
    grid->AllocateExact(count, 4 * count);
    for (long i = 0; i < count; ++i) {
        long number = 0;
        int type = 0;
        vtkIdType nodes[4] = {};
        if (std::fscanf(file, "%ld %d %*d %*d %*d", &number, &type) != 2) {
            return;
        }
        if (type == 4 && std::fscanf(file, "%lld %lld %lld %lld", &nodes[0], &nodes[1], &nodes[2], &nodes[3]) == 4) {
            const vtkIdType corners[4] = {nodes[0] - 1, nodes[1] - 1, nodes[2] - 1, nodes[3] - 1};
            grid->InsertNextCell(VTK_TETRA, 4, corners);
        } else {
            std::fscanf(file, "%*[^\n]");
        }
    }
}

void readMesh(const std::string& path, vtkUnstructuredGrid* grid)
{
    std::FILE* file = std::fopen(path.c_str(), "r");
    vtkNew<vtkPoints> points;
    char word[256];
    while (file != nullptr && std::fscanf(file, "%255s", word) == 1) {
        if (std::strcmp(word, "$Nodes") == 0) {
            readNodes(file, points);
        } else if (std::strcmp(word, "$Elements") == 0) {
            readElements(file, grid);
        }
    }
    if (file != nullptr) {
        std::fclose(file);
    }
    grid->SetPoints(points);
}

double mean(vtkDataArray* values)
{
    double sum = 0.0;
    for (vtkIdType i = 0; i < values->GetNumberOfTuples(); ++i) {
        sum += values->GetComponent(i, 0);
    }
    return sum / static_cast<double>(values->GetNumberOfTuples());
}

} // namespace

double vtkMeasures(const std::string& path)
{
    vtkNew<vtkUnstructuredGrid> grid;
    readMesh(path, grid);
    double sum = 0.0;
    for (const int measure :
         {VTK_QUALITY_VOLUME, VTK_QUALITY_EDGE_RATIO, VTK_QUALITY_ASPECT_RATIO, VTK_QUALITY_ASPECT_GAMMA,
          VTK_QUALITY_CONDITION, VTK_QUALITY_JACOBIAN, VTK_QUALITY_RADIUS_RATIO, VTK_QUALITY_RELATIVE_SIZE_SQUARED,
          VTK_QUALITY_SCALED_JACOBIAN, VTK_QUALITY_SHAPE, VTK_QUALITY_SHAPE_AND_SIZE}) {
        vtkNew<vtkMeshQuality> quality;
        quality->SetInputData(grid);
        quality->SetTetQualityMeasure(measure);
        quality->Update();
        sum += mean(quality->GetOutput()->GetCellData()->GetArray("Quality"));
    }
    return sum;
}
