# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Swept, turned and lofted solids."""
import math


def bent_pipe(r):
    k, a = r.uniform(0.08, 0.2), r.uniform(1, 4)
    return f"Torus(1) = {{0, 0, 0, 0.6, {k}, {a}}};", a * 0.6 * math.pi * k * k


def helix(r):
    turns, k, n = r.uniform(1, 2.5), r.uniform(0.05, 0.1), 40
    text = ""
    for i in range(n + 1):
        a = 2 * math.pi * turns * i / n
        text += f"Point({i + 1}) = {{{0.5 * math.cos(a)}, {0.5 * math.sin(a)}, {0.35 * turns * i / n}}};\n"
    text += (f"Spline(1) = {{1:{n + 1}}};\nWire(1) = {{1}};\nDisk(1) = {{0.5, 0, 0, {k}}};\n"
             "Rotate { {1, 0, 0}, {0.5, 0, 0}, Pi / 2 } { Surface{1}; }\n"
             "Extrude { Surface{1}; } Using Wire {1}\nDelete { Surface{1}; }")
    return text, math.pi ** 2 * turns * k * k


def twisted_bar(r):
    a, h = r.uniform(0.3, 1.5), r.uniform(0.8, 2)
    return (f"Rectangle(1) = {{-0.2, -0.15, 0, 0.4, 0.3}};\nRectangle(2) = {{-0.2, -0.15, {h}, 0.4, 0.3}};\n"
            f"Rotate {{ {{0, 0, 1}}, {{0, 0, 0}}, {a} }} {{ Surface{{2}}; }}\n"
            "Curve Loop(11) = {1:4};\nCurve Loop(12) = {5:8};\nDelete { Surface{1, 2}; }\n"
            "ThruSections(1) = {11, 12};", 0.12 * h)


def turned_bottle(r):
    k = r.uniform(0.1, 0.5, 4)
    corners = [(0, 0), (k[0], 0), (k[1], 0.3), (k[2], 0.6), (k[3], 1), (0, 1)]
    text = "".join(f"Point({i + 1}) = {{{x}, 0, {z}}};\n" for i, (x, z) in enumerate(corners))
    text += ("Line(1) = {1, 2};\nSpline(2) = {2:5};\nLine(3) = {5, 6};\nLine(4) = {6, 1};\n"
             "Curve Loop(1) = {1:4};\nPlane Surface(1) = {1};\n"
             "Extrude { {0, 0, 1}, {0, 0, 0}, 2 * Pi } { Surface{1}; }")
    return text, math.pi * (k ** 2).mean()


def tapered_loft(r):
    k = r.uniform(0.15, 0.5, 3)
    text = "".join(f"Circle({i + 1}) = {{0, 0, {0.6 * i}, {k[i]}}};\nCurve Loop({i + 1}) = {{{i + 1}}};\n"
                   for i in range(3))
    return text + "ThruSections(1) = {1:3};", 1.2 * math.pi * (k ** 2).mean()


def swept_aerofoil(r):
    t, h, taper = r.uniform(0.08, 0.3), r.uniform(0.5, 2), r.uniform(0.4, 1)
    n, text = 8, ""
    for s in range(2):
        c = taper if s else 1
        upper = [(0.5 * (1 - math.cos(math.pi * i / n))) for i in range(n + 1)]
        width = [t * c * math.sqrt(x) * (1 - x) * 1.3 for x in upper]
        loop = [(x, w) for x, w in zip(upper, width)] + [(x, -w) for x, w in list(zip(upper, width))[-2:0:-1]]
        first = 100 * s + 1
        text += "".join(f"Point({first + i}) = {{{c * x}, {y}, {h * s}}};\n" for i, (x, y) in enumerate(loop))
        text += (f"Spline({2 * s + 1}) = {{{first}:{first + n}}};\n"
                 f"Spline({2 * s + 2}) = {{{first + n}:{first + 2 * n - 1}, {first}}};\n"
                 f"Curve Loop({s + 1}) = {{{2 * s + 1}, {2 * s + 2}}};\n")
    return text + "Ruled ThruSections(1) = {1, 2};", 0.5 * t * h
