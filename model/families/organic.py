# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Organic shapes made by boolean operations."""
import math

_JOIN = "BooleanUnion{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}"


def ball_cluster(r):
    n = r.integers(3, 8)
    text = "Sphere(1) = {0, 0, 0, 0.35};\n"
    for i in range(n):
        d = r.normal(size=3)
        d *= 0.32 / math.sqrt((d ** 2).sum())
        text += f"Sphere({i + 2}) = {{{d[0]}, {d[1]}, {d[2]}, {r.uniform(0.12, 0.25)}}};\n"
    return text + _JOIN.format(f"2:{n + 1}"), 0.18 + 0.012 * n


def bone(r):
    k = r.uniform(0.08, 0.16)
    return (f"Cylinder(1) = {{0, 0, 0, 1, 0, 0, {k}}};\n"
            f"Sphere(2) = {{0, 0.1, 0, 0.18}};\nSphere(3) = {{0, -0.1, 0, 0.2}};\n"
            f"Sphere(4) = {{1, 0, 0.1, 0.19}};\nSphere(5) = {{1, 0, -0.1, {r.uniform(0.17, 0.22)}}};\n"
            + _JOIN.format("2:5"), 0.1 + math.pi * k * k)


def branching_tubes(r):
    n = r.integers(2, 5)
    text = "Cylinder(1) = {0, 0, 0, 0, 0, 1, 0.15};\n"
    for i in range(n):
        a, z, s = 2 * math.pi * (i + r.random()) / n, r.uniform(0.2, 0.7), r.uniform(0.2, 0.6)
        x, y, k = 0.6 * math.cos(a), 0.6 * math.sin(a), r.uniform(0.05, 0.12)
        text += f"Cylinder({i + 2}) = {{0, 0, {z}, {x}, {y}, {s}, {k}}};\n"
    return text + _JOIN.format(f"2:{n + 1}"), 0.07 + 0.015 * n


def lens(r):
    d = r.uniform(0.3, 0.8)
    h = (1 - d) / 2 * 1.0
    return (f"Sphere(1) = {{{-d / 2}, 0, 0, 0.5}};\nSphere(2) = {{{d / 2}, 0, 0, 0.5}};\n"
            "BooleanIntersection{ Volume{1}; Delete; }{ Volume{2}; Delete; }", 2 * math.pi * h * h * (0.5 - h / 3))


def bitten_ball(r):
    n = r.integers(2, 6)
    text = "Sphere(1) = {0, 0, 0, 0.5};\n"
    for i in range(n):
        d = r.normal(size=3)
        d *= 0.5 / math.sqrt((d ** 2).sum())
        text += f"Sphere({i + 2}) = {{{d[0]}, {d[1]}, {d[2]}, {r.uniform(0.1, 0.3)}}};\n"
    return text + f"BooleanDifference{{ Volume{{1}}; Delete; }}{{ Volume{{2:{n + 1}}}; Delete; }}", 0.45


def smooth_outline(r):
    n, h = r.integers(5, 10), r.uniform(0.1, 0.5)
    text = ""
    for i in range(n):
        a, k = 2 * math.pi * i / n, r.uniform(0.25, 0.6)
        text += f"Point({i + 1}) = {{{k * math.cos(a)}, {k * math.sin(a)}, 0}};\n"
    return (text + f"BSpline(1) = {{1:{n}, 1}};\nCurve Loop(1) = {{1}};\nPlane Surface(1) = {{1}};\n"
            f"Extrude {{0, 0, {h}}} {{ Surface{{1}}; }}", 0.5 * h)
