// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
// A plate with a round hole off its centre, refined round the hole (lengths in metres).
SetFactory("OpenCASCADE");
Box(1) = {0, 0, 0, 0.2, 0.1, 0.012};
Cylinder(2) = {0.07, 0.045, -0.01, 0, 0, 0.032, 0.018};
BooleanDifference(3) = { Volume{1}; Delete; }{ Volume{2}; Delete; };

Physical Volume("plate") = {3};
Physical Surface("clamped") = Surface In BoundingBox{-0.001, -0.001, -0.001, 0.001, 0.101, 0.013};
Physical Surface("pulled") = Surface In BoundingBox{0.199, -0.001, -0.001, 0.201, 0.101, 0.013};
Physical Surface("hole") = Surface In BoundingBox{0.051, 0.026, -0.001, 0.089, 0.064, 0.013};

Field[1] = MathEval;
Field[1].F = "0.0035 + 0.07 * Fabs(Sqrt((x - 0.07) ^ 2 + (y - 0.045) ^ 2) - 0.018)";
Field[2] = MathEval;
Field[2].F = "0.008";
Field[3] = Min;
Field[3].FieldsList = {1, 2};
Background Field = 3;
Mesh.CharacteristicLengthExtendFromBoundary = 0;
Mesh.CharacteristicLengthFromPoints = 0;
