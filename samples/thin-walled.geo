// SPDX-FileCopyrightText: 2026 DataManager contributors
// SPDX-License-Identifier: BSD-3-Clause
// An open tray: walls two hundredths of its length thick, one element across, on a base plate of its own.
SetFactory("OpenCASCADE");
Box(1) = {0, 0, 0, 100, 60, 25};
Box(2) = {2, 2, 2, 96, 56, 25};
BooleanDifference(3) = { Volume{1}; Delete; }{ Volume{2}; Delete; };
Box(4) = {0, 0, 0, 100, 60, 2};
v() = BooleanFragments{ Volume{3}; Delete; }{ Volume{4}; Delete; };

Physical Volume("base") = Volume In BoundingBox{-0.1, -0.1, -0.1, 100.1, 60.1, 2.1};
all() = Volume In BoundingBox{-1, -1, -1, 101, 61, 26};
base() = Volume In BoundingBox{-0.1, -0.1, -0.1, 100.1, 60.1, 2.1};
all() -= base();
Physical Volume("walls") = all();
Physical Surface("underside") = Surface In BoundingBox{-0.1, -0.1, -0.1, 100.1, 60.1, 0.1};
Physical Surface("rim") = Surface In BoundingBox{-0.1, -0.1, 24.9, 100.1, 60.1, 25.1};

Mesh.CharacteristicLengthMin = 4.2;
Mesh.CharacteristicLengthMax = 4.2;
