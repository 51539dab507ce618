# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Fittings, frames and shafts: made for the final test only, after meaning and training were settled on others."""
import math

_JOIN = "BooleanUnion{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}\n"
_CUT = "BooleanDifference{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}\n"


def _prism(corners, depth):
    n = len(corners)
    text = "".join(f"Point({i + 1}) = {{{x}, {y}, 0}};\n" for i, (x, y) in enumerate(corners))
    text += "".join(f"Line({i + 1}) = {{{i + 1}, {(i + 1) % n + 1}}};\n" for i in range(n))
    text += f"Curve Loop(1) = {{1:{n}}};\nPlane Surface(1) = {{1}};\nExtrude {{0, 0, {depth}}} {{ Surface{{1}}; }}"
    area = sum(corners[i - 1][0] * corners[i][1] - corners[i][0] * corners[i - 1][1] for i in range(n)) / 2
    return text, abs(area) * depth


def spool(r):
    k, rim, t = r.uniform(0.15, 0.3), r.uniform(0.4, 0.6), r.uniform(0.04, 0.15)
    return (f"Cylinder(1) = {{0, 0, 0, 0, 0, 0.8, {k}}};\nCylinder(2) = {{0, 0, 0, 0, 0, {t}, {rim}}};\n"
            f"Cylinder(3) = {{0, 0, {0.8 - t}, 0, 0, {t}, {rim}}};\n" + _JOIN.format("2:3")
            + f"Cylinder(9) = {{0, 0, -1, 0, 0, 3, {0.5 * k}}};\n" + _CUT.format(9),
            math.pi * (0.8 * 0.75 * k * k + 2 * t * (rim ** 2 - k * k)))


def stepped_shaft(r):
    n, k = r.integers(3, 6), r.uniform(0.06, 0.25, 6)
    text = "".join(f"Cylinder({i + 1}) = {{{0.25 * i}, 0, 0, 0.25, 0, 0, {k[i]}}};\n" for i in range(n))
    return text + _JOIN.format(f"2:{n}"), 0.25 * math.pi * (k[:n] ** 2).sum()


def gusset(r):
    t, w = r.uniform(0.04, 0.12), r.uniform(0.3, 0.8)
    return (f"Box(1) = {{0, 0, 0, 0.8, {w}, {t}}};\nBox(2) = {{0, 0, 0, {t}, {w}, 0.7}};\n"
            f"Wedge(3) = {{0, 0, 0, 0.6, {t}, 0.5, 0}};\n"
            "Rotate { {1, 0, 0}, {0, 0, 0}, Pi / 2 } { Volume{3}; }\n"
            f"Translate {{0, {w / 2}, 0}} {{ Volume{{3}}; }}\n" + _JOIN.format("2:3"), t * (1.5 * w + 0.1))


def dovetail(r):
    a, b, d = r.uniform(0.1, 0.2), r.uniform(0.22, 0.35), r.uniform(0.15, 0.35)
    return _prism([(-0.5, 0), (0.5, 0), (0.5, 0.5), (a, 0.5), (b, 0.5 - d), (-b, 0.5 - d), (-a, 0.5), (-0.5, 0.5)],
                  r.uniform(0.3, 1.5))


def bowl(r):
    k = r.uniform(0.36, 0.47)
    return (f"Sphere(1) = {{0, 0, 0, 0.5, -Pi / 2, 0}};\nSphere(2) = {{0, 0, 0, {k}}};\n" + _CUT.format(2),
            2 / 3 * math.pi * (0.125 - k ** 3))


def louvre(r):
    n, t, a = r.integers(2, 6), r.uniform(0.03, 0.08), r.uniform(0.3, 1.0)
    text = f"Box(1) = {{0, 0, 0, 1, 0.8, {3 * t}}};\nBox(2) = {{0.08, 0.08, -1, 0.84, 0.64, 3}};\n" + _CUT.format(2)
    for i in range(n):
        x = 0.08 + 0.84 * (i + 0.5) / n
        text += (f"Box({i + 10}) = {{{x - 0.3 / n}, 0.04, {1.5 * t - t / 4}, {0.6 / n}, 0.72, {t / 2}}};\n"
                 f"Rotate {{ {{0, 1, 0}}, {{{x}, 0, {1.5 * t}}}, {a} }} {{ Volume{{{i + 10}}}; }}\n")
    return text + _JOIN.format(f"10:{n + 9}"), 0.8 * t + 0.22 * t


def hook(r):
    k, a = r.uniform(0.06, 0.14), r.uniform(3, 4.8)
    return (f"Torus(1) = {{0, 0, 0, 0.35, {k}, {a}}};\n"
            f"Cylinder(2) = {{0.35, 0, 0, 0, {-r.uniform(0.3, 0.9)}, 0, {k}}};\n"
            + _JOIN.format(2), math.pi * k * k * (0.35 * a + 0.6))


def windowed_ball(r):
    k, w = r.uniform(0.36, 0.46), r.uniform(0.1, 0.25, 3)
    return (f"Sphere(1) = {{0, 0, 0, 0.5}};\nSphere(2) = {{0, 0, 0, {k}}};\n"
            f"Cylinder(3) = {{0, 0, -1, 0, 0, 2, {w[0]}}};\nCylinder(4) = {{0, -1, 0, 0, 2, 0, {w[1]}}};\n"
            f"Cylinder(5) = {{-1, 0, 0, 2, 0, 0, {w[2]}}};\n"
            + _CUT.format("2:5"), 3.4 * (0.125 - k ** 3))


def pipe_tee(r):
    k, share, b = r.uniform(0.15, 0.25), r.uniform(0.6, 0.88), r.uniform(0.5, 0.95)
    return (f"Cylinder(1) = {{-0.5, 0, 0, 1, 0, 0, {k}}};\nCylinder(2) = {{0, 0, 0, 0, 0, 0.6, {b * k}}};\n"
            + _JOIN.format(2) + f"Cylinder(11) = {{-1, 0, 0, 2, 0, 0, {share * k}}};\n"
            f"Cylinder(12) = {{0, 0, 0, 0, 0, 1, {share * b * k}}};\n" + _CUT.format("11:12"),
            math.pi * k * k * (1 - share ** 2) * (1 + 0.4 * b * b))


def star_prism(r):
    n, inner = r.integers(4, 9), r.uniform(0.2, 0.42)
    sizes = [inner, 0.5] * n
    corners = [(k * math.cos(math.pi * i / n), k * math.sin(math.pi * i / n)) for i, k in enumerate(sizes)]
    return _prism(corners, r.uniform(0.1, 1.0))
