// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
// A bearing housing in three materials: foot, ring and bush, joined by boolean operations, with bolt holes.
SetFactory("OpenCASCADE");
Box(1) = {-60, -20, 0, 120, 40, 15};
Cylinder(2) = {0, -15, 45, 0, 30, 0, 35};
Cylinder(3) = {0, -15, 45, 0, 30, 0, 22};
Cylinder(4) = {0, -25, 45, 0, 50, 0, 16};
Cylinder(5) = {-48, 0, -5, 0, 0, 30, 5};
Cylinder(6) = {48, 0, -5, 0, 0, 30, 5};
foot() = BooleanDifference{ Volume{1}; Delete; }{ Volume{5, 6}; Delete; };
bush() = BooleanDifference{ Volume{3}; Delete; }{ Volume{4}; };
ring() = BooleanDifference{ Volume{2}; Delete; }{ Volume{bush(), 4}; };
Delete { Volume{4}; Surface{:}; }
ringOnly() = BooleanDifference{ Volume{ring()}; Delete; }{ Volume{foot()}; };
parts() = BooleanFragments{ Volume{foot()}; Volume{bush()}; Volume{ringOnly()}; Delete; }{ };

footNow() = Volume In BoundingBox{-61, -21, -1, 61, 21, 16};
bushNow() = Volume In BoundingBox{-23, -16, 22, 23, 16, 68};
rest() = Volume{:};
rest() -= footNow();
rest() -= bushNow();
Physical Volume("foot") = footNow();
Physical Volume("bush") = bushNow();
Physical Volume("ring") = rest();
Physical Surface("mounting face") = Surface In BoundingBox{-61, -21, -0.1, 61, 21, 0.1};
Physical Surface("bore") = Surface In BoundingBox{-16.1, -15.1, 28.9, 16.1, 15.1, 61.1};
Mesh.CharacteristicLengthMin = 2;
Mesh.CharacteristicLengthMax = 7;
Mesh.MeshSizeFromCurvature = 20;
