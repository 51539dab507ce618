# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Shells, thin plates and profiles."""
import math


def _profile(corners, depth):
    n = len(corners)
    text = "".join(f"Point({i + 1}) = {{{x}, {y}, 0}};\n" for i, (x, y) in enumerate(corners))
    text += "".join(f"Line({i + 1}) = {{{i + 1}, {(i + 1) % n + 1}}};\n" for i in range(n))
    text += f"Curve Loop(1) = {{1:{n}}};\nPlane Surface(1) = {{1}};\nExtrude {{0, 0, {depth}}} {{ Surface{{1}}; }}"
    area = sum(corners[i - 1][0] * corners[i][1] - corners[i][0] * corners[i - 1][1] for i in range(n)) / 2
    return text, abs(area) * depth


def thin_plate(r):
    t = r.uniform(0.01, 0.05)
    return f"Box(1) = {{0, 0, 0, 1, {r.uniform(0.4, 1)}, {t}}};", 0.7 * t


def hollow_ball(r):
    k = r.uniform(0.35, 0.47)
    return ("Sphere(1) = {0, 0, 0, 0.5};\n" f"Sphere(2) = {{0, 0, 0, {k}}};\n"
            "BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }", 4 / 3 * math.pi * (0.125 - k ** 3))


def pipe(r):
    k, h = r.uniform(0.25, 0.37), r.uniform(0.5, 2)
    return (f"Cylinder(1) = {{0, 0, 0, 0, 0, {h}, 0.4}};\nCylinder(2) = {{0, 0, -1, 0, 0, 4, {k}}};\n"
            "BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }", math.pi * h * (0.16 - k * k))


def open_tray(r):
    t = r.uniform(0.02, 0.06)
    return (f"Box(1) = {{0, 0, 0, 1, 0.7, 0.3}};\nBox(2) = {{{t}, {t}, {t}, {1 - 2 * t}, {0.7 - 2 * t}, 1}};\n"
            "BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }",
            0.21 - (1 - 2 * t) * (0.7 - 2 * t) * (0.3 - t))


def i_beam(r):
    w, t = r.uniform(0.03, 0.08), r.uniform(0.04, 0.1)
    x = w / 2
    return _profile([(-0.3, 0), (0.3, 0), (0.3, t), (x, t), (x, 0.8 - t), (0.3, 0.8 - t), (0.3, 0.8), (-0.3, 0.8),
                     (-0.3, 0.8 - t), (-x, 0.8 - t), (-x, t), (-0.3, t)], r.uniform(0.5, 2))


def angle_bracket(r):
    t = r.uniform(0.05, 0.2)
    return _profile([(0, 0), (1, 0), (1, t), (t, t), (t, 0.8), (0, 0.8)], r.uniform(0.3, 1))


def u_channel(r):
    t = r.uniform(0.03, 0.12)
    return _profile([(0, 0), (0.8, 0), (0.8, 0.6), (0.8 - t, 0.6), (0.8 - t, t), (t, t), (t, 0.6), (0, 0.6)],
                    r.uniform(0.5, 1.5))


def corrugated_sheet(r):
    n, t, a = r.integers(4, 10), r.uniform(0.03, 0.08), r.uniform(0.05, 0.15)
    lower = [(i / n, a * (i % 2)) for i in range(n + 1)]
    return _profile(lower + [(x, y + t) for x, y in reversed(lower)], r.uniform(0.3, 0.8))
