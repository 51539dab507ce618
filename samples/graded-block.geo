// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
// A block of two materials, graded from fine at one lower edge to coarse at the far end.
SetFactory("OpenCASCADE");
Box(1) = {0, 0, 0, 2, 1, 0.5};
Box(2) = {2, 0, 0, 2, 1, 0.5};
Coherence;

Physical Volume("steel") = {1};
Physical Volume("aluminium") = {2};
Physical Surface("fixed") = Surface In BoundingBox{-0.01, -0.01, -0.01, 0.01, 1.01, 0.51};
Physical Surface("interface") = Surface In BoundingBox{1.99, -0.01, -0.01, 2.01, 1.01, 0.51};
Physical Surface("loaded") = Surface In BoundingBox{3.99, -0.01, -0.01, 4.01, 1.01, 0.51};

// Edge length grows with the distance from the lower edge of the fixed face.
Field[1] = MathEval;
Field[1].F = "0.045 + 0.085 * Sqrt(x * x + z * z)";
Background Field = 1;
Mesh.CharacteristicLengthExtendFromBoundary = 0;
Mesh.CharacteristicLengthFromPoints = 0;
