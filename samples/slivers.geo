// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
// A cylinder meshed without any optimisation; remake.py then moves its inner nodes and squashes it, on purpose.
SetFactory("OpenCASCADE");
Cylinder(1) = {0, 0, 0, 0, 0, 1, 0.5};
Physical Volume("solid") = {1};
Physical Surface("skin") = Boundary{ Volume{1}; };
Mesh.CharacteristicLengthMin = 0.11;
Mesh.CharacteristicLengthMax = 0.11;
Mesh.Optimize = 0;
Mesh.OptimizeNetgen = 0;
