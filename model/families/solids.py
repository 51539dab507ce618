# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Plain solids."""
import math


def box(r):
    a, b = r.uniform(0.3, 1, 2)
    return f"Box(1) = {{0, 0, 0, 1, {a}, {b}}};", a * b


def cylinder(r):
    h, k = r.uniform(0.3, 2), r.uniform(0.2, 0.6)
    return f"Cylinder(1) = {{0, 0, 0, 0, 0, {h}, {k}}};", math.pi * k * k * h


def ball(r):
    return "Sphere(1) = {0, 0, 0, 0.5};", math.pi / 6


def cone(r):
    k, t = r.uniform(0.3, 0.6), r.uniform(0, 0.25)
    return f"Cone(1) = {{0, 0, 0, 0, 0, 1, {k}, {t}}};", math.pi * (k * k + k * t + t * t) / 3


def torus(r):
    k = r.uniform(0.1, 0.35)
    return f"Torus(1) = {{0, 0, 0, 0.6, {k}}};", 2 * math.pi ** 2 * 0.6 * k * k


def wedge(r):
    a, t = r.uniform(0.3, 1), r.uniform(0, 0.7)
    return f"Wedge(1) = {{0, 0, 0, 1, {a}, 0.6, {t}}};", 0.6 * a * (1 + t) / 2


def ellipsoid(r):
    a, b = r.uniform(0.3, 1, 2)
    return (f"Sphere(1) = {{0, 0, 0, 0.5}};\nDilate {{ {{0, 0, 0}}, {{1, {a}, {b}}} }} {{ Volume{{1}}; }}",
            math.pi / 6 * a * b)


def polygon_prism(r):
    n, h = r.integers(3, 9), r.uniform(0.2, 1.5)
    angles = [2 * math.pi * (i + 0.5 * r.random()) / n for i in range(n)]
    text = "".join(f"Point({i + 1}) = {{{0.5 * math.cos(t)}, {0.5 * math.sin(t)}, 0}};\n" for i, t in enumerate(angles))
    text += "".join(f"Line({i + 1}) = {{{i + 1}, {(i + 1) % n + 1}}};\n" for i in range(n))
    text += f"Curve Loop(1) = {{1:{n}}};\nPlane Surface(1) = {{1}};\nExtrude {{0, 0, {h}}} {{ Surface{{1}}; }}"
    return text, 0.6 * h


def staircase(r):
    n = r.integers(2, 6)
    text = "".join(f"Box({i + 1}) = {{{i / n}, 0, 0, {1 / n}, 0.5, {(i + 1) / n}}};\n" for i in range(n))
    others = ", ".join(str(i + 1) for i in range(1, n))
    return text + f"BooleanUnion{{ Volume{{1}}; Delete; }}{{ Volume{{{others}}}; Delete; }}", 0.25 * (n + 1) / n


def structured_box(r):
    """Each edge divided evenly: Gmsh fills the regular surface grid from the same points."""
    a, b = r.uniform(0.4, 1, 2)
    n = r.integers(3, 11)
    return (f"Box(1) = {{0, 0, 0, 1, {a}, {b}}};\nTransfinite Curve {{1:12}} = {n};\n"
            "Transfinite Surface {1:6};\nTransfinite Volume {1};", a * b)


def joined_materials(r):
    k, c = r.uniform(0.15, 0.35), r.uniform(0.4, 0.6, 3)
    return (f"Box(1) = {{0, 0, 0, 1, 1, 1}};\nSphere(2) = {{{c[0]}, {c[1]}, {c[2]}, {k}}};\n"
            "BooleanFragments{ Volume{1}; Delete; }{ Volume{2}; Delete; }", 1.0)
