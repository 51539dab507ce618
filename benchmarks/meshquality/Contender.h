// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <string>

/// The ways of getting from a mesh file to its measures that are compared.
/// Each returns a figure that depends on all that was computed.

/// The library's streamed feature vector. It reads "../temp/mesh.msh", which must be the file.
double streamedFeatures(const std::string& path);
/// The same by the predictor's public calls with their nested tables.
double publicCalls(const std::string& path);
/// A plain fscanf reader into a vtkUnstructuredGrid and VTK's eleven measures of the same names.
double vtkMeasures(const std::string& path);
/// Reads the bytes and converts every number, nothing else: no reader of the text can be faster by much.
double numbersOnly(const std::string& path);
/// The same as the streamed features, line by line and container by container as one would first write it with Qt.
double plainQt(const std::string& path);
