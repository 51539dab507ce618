# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Machine parts, lattices and walls: the final test of an earlier meaning of the score, now for training."""
import math

_JOIN = "BooleanUnion{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}"
_CUT = "BooleanDifference{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}"


def hexagon_nut(r):
    k, h = r.uniform(0.2, 0.36), r.uniform(0.2, 0.8)
    text = "".join(f"Point({i + 1}) = {{{0.5 * math.cos(math.pi * i / 3)}, {0.5 * math.sin(math.pi * i / 3)}, 0}};\n"
                   for i in range(6))
    text += "".join(f"Line({i + 1}) = {{{i + 1}, {(i + 1) % 6 + 1}}};\n" for i in range(6))
    text += f"Circle(7) = {{0, 0, 0, {k}}};\nCurve Loop(1) = {{1:6}};\nCurve Loop(2) = {{7}};\n"
    return (text + f"Plane Surface(1) = {{1, 2}};\nExtrude {{0, 0, {h}}} {{ Surface{{1}}; }}",
            h * (0.6495 - math.pi * k * k))


def pulley(r):
    bore, groove = r.uniform(0.08, 0.2), r.uniform(0.3, 0.42)
    corners = [(bore, 0), (0.55, 0), (0.55, 0.06), (groove, 0.2), (0.55, 0.34), (0.55, 0.4), (bore, 0.4)]
    text = "".join(f"Point({i + 1}) = {{{x}, 0, {z}}};\n" for i, (x, z) in enumerate(corners))
    text += "".join(f"Line({i + 1}) = {{{i + 1}, {(i + 1) % 7 + 1}}};\n" for i in range(7))
    text += ("Curve Loop(1) = {1:7};\nPlane Surface(1) = {1};\n"
             "Extrude { {0, 0, 1}, {0, 0, 0}, 2 * Pi } { Surface{1}; }")
    return text, 0.4 * math.pi * (0.25 - bore ** 2)


def ribbed_plate(r):
    n, t = r.integers(2, 6), r.uniform(0.02, 0.06)
    text = f"Box(1) = {{0, 0, 0, 1, 0.7, {t}}};\n"
    for i in range(n):
        text += f"Box({2 * i + 2}) = {{{(i + 0.5) / n - t / 2}, 0, 0, {t}, 0.7, 0.2}};\n"
        text += f"Box({2 * i + 3}) = {{0, {0.7 * (i + 0.5) / n - t / 2}, 0, 1, {t}, 0.12}};\n"
    return text + _JOIN.format(f"2:{2 * n + 1}"), t * (0.7 + n * 0.24)


def flanged_elbow(r):
    k, bore = r.uniform(0.14, 0.2), r.uniform(0.06, 0.11)
    return (f"Torus(1) = {{0, 0, 0, 0.5, {k}, Pi / 2}};\nCylinder(2) = {{0.5, -0.08, 0, 0, 0.08, 0, 0.3}};\n"
            f"Cylinder(3) = {{-0.08, 0.5, 0, 0.08, 0, 0, 0.3}};\n" + _JOIN.format("2:3") + "\n"
            f"Torus(11) = {{0, 0, 0, 0.5, {bore}, Pi / 2}};\nCylinder(12) = {{0.5, -0.2, 0, 0, 0.2, 0, {bore}}};\n"
            f"Cylinder(13) = {{-0.2, 0.5, 0, 0.2, 0, 0, {bore}}};\n" + _CUT.format("11:13"),
            0.045 + 0.25 * math.pi ** 2 * (k * k - bore * bore))


def perforated_sheet(r):
    n, t = r.integers(3, 7), r.uniform(0.02, 0.08)
    k, text, tag = r.uniform(0.2, 0.4) / n, f"Box(1) = {{0, 0, 0, 1, 1, {t}}};\n", 2
    for i in range(n):
        for j in range(n):
            text += f"Cylinder({tag}) = {{{(i + 0.5) / n}, {(j + 0.5) / n}, -1, 0, 0, 3, {k}}};\n"
            tag += 1
    return text + _CUT.format(f"2:{tag - 1}"), t * (1 - n * n * math.pi * k * k)


def chain_link(r):
    k, s = r.uniform(0.06, 0.14), r.uniform(0.2, 0.6)
    return (f"Torus(1) = {{0, 0, 0, 0.3, {k}, Pi}};\nTorus(2) = {{0, 0, 0, 0.3, {k}, Pi}};\n"
            f"Rotate {{ {{0, 0, 1}}, {{0, 0, 0}}, Pi }} {{ Volume{{2}}; }}\n"
            f"Translate {{0, {-s}, 0}} {{ Volume{{2}}; }}\n"
            f"Cylinder(3) = {{0.3, {-s}, 0, 0, {s}, 0, {k}}};\nCylinder(4) = {{-0.3, {-s}, 0, 0, {s}, 0, {k}}};\n"
            + _JOIN.format("2:4"), math.pi * k * k * (0.6 * math.pi + 2 * s))


def lattice_cell(r):
    k, ball = r.uniform(0.06, 0.14), r.uniform(0.16, 0.26)
    text = f"Sphere(1) = {{0, 0, 0, {ball}}};\n"
    ends = [(1, 0, 0), (0, 1, 0), (0, 0, 1), (0.6, 0.6, 0.6), (-0.6, 0.6, 0.6), (0.6, -0.6, 0.6)]
    n = r.integers(3, 7)
    for i, (x, y, z) in enumerate(ends[:n]):
        text += f"Cylinder({i + 2}) = {{{-x / 2}, {-y / 2}, {-z / 2}, {x}, {y}, {z}, {k}}};\n"
    return text + _JOIN.format(f"2:{n + 1}"), 4.19 * ball ** 3 + n * math.pi * k * k * (1 - 2 * ball)


def crankshaft(r):
    k, throw = r.uniform(0.08, 0.14), r.uniform(0.15, 0.3)
    return (f"Cylinder(1) = {{0, 0, 0, 0, 0, 0.4, {k}}};\nCylinder(2) = {{0, 0, 0.9, 0, 0, 0.4, {k}}};\n"
            f"Cylinder(3) = {{{throw}, 0, 0.45, 0, 0, 0.4, {k}}};\n"
            f"Box(4) = {{{-1.3 * k}, {-1.3 * k}, 0.35, {throw + 2.6 * k}, {2.6 * k}, 0.15}};\n"
            f"Box(5) = {{{-1.3 * k}, {-1.3 * k}, 0.8, {throw + 2.6 * k}, {2.6 * k}, 0.15}};\n" + _JOIN.format("2:5"),
            math.pi * k * k + 0.78 * k * (throw + 2.6 * k))


def capsule_shell(r):
    k, h = r.uniform(0.24, 0.37), r.uniform(0.2, 1)
    parts = [(1, 0.4), (11, k)]
    text = "".join(f"Cylinder({tag}) = {{0, 0, 0, 0, 0, {h}, {size}}};\nSphere({tag + 1}) = {{0, 0, 0, {size}}};\n"
                   f"Sphere({tag + 2}) = {{0, 0, {h}, {size}}};\n" for tag, size in parts)
    return text + _JOIN.format("2:3") + "\n" + _CUT.format("11:13"), math.pi * (
        h * (0.16 - k * k) + 4 / 3 * (0.064 - k ** 3))


def egg_crate(r):
    n, t, h = r.integers(2, 5), r.uniform(0.02, 0.05), r.uniform(0.15, 0.5)
    text = f"Box(1) = {{0, 0, 0, 1, {t}, {h}}};\n"
    walls = [f"0, {i * (1 - t) / n}, 0, 1, {t}, {h}" for i in range(1, n + 1)]
    walls += [f"{i * (1 - t) / n}, 0, 0, {t}, 1, {h}" for i in range(n + 1)]
    text += "".join(f"Box({i + 2}) = {{{wall}}};\n" for i, wall in enumerate(walls))
    return text + _JOIN.format(f"2:{len(walls) + 1}"), 2 * (n + 1) * t * h
