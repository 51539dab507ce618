# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Solids with holes."""
import math

_CUT = "BooleanDifference{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}"


def plate_with_hole(r):
    t, k = r.uniform(0.05, 0.3), r.uniform(0.08, 0.22)
    x, y = r.uniform(0.3, 0.7), r.uniform(0.25, 0.35)
    return (f"Box(1) = {{0, 0, 0, 1, 0.6, {t}}};\nCylinder(2) = {{{x}, {y}, -1, 0, 0, 3, {k}}};\n" + _CUT.format(2),
            t * (0.6 - math.pi * k * k))


def block_with_bores(r):
    n, k = r.integers(2, 5), r.uniform(0.05, 0.1)
    text, tag = "Box(1) = {0, 0, 0, 1, 1, 0.6};\n", 2
    for i in range(n):
        for j in range(n):
            text += f"Cylinder({tag}) = {{{(i + 0.5) / n}, {(j + 0.5) / n}, -1, 0, 0, 3, {k}}};\n"
            tag += 1
    return text + _CUT.format(f"2:{tag - 1}"), 0.6 * (1 - n * n * math.pi * k * k)


def flange(r):
    n, t, bore = r.integers(4, 10), r.uniform(0.1, 0.3), r.uniform(0.15, 0.3)
    text = f"Cylinder(1) = {{0, 0, 0, 0, 0, {t}, 0.6}};\nCylinder(2) = {{0, 0, -1, 0, 0, 3, {bore}}};\n"
    for i in range(n):
        a = 2 * math.pi * i / n
        text += f"Cylinder({i + 3}) = {{{0.46 * math.cos(a)}, {0.46 * math.sin(a)}, -1, 0, 0, 3, 0.06}};\n"
    return text + _CUT.format(f"2:{n + 2}"), math.pi * t * (0.36 - bore ** 2 - n * 0.0036)


def cross_drilled(r):
    k = r.uniform(0.1, 0.3, 3)
    return ("Box(1) = {-0.5, -0.5, -0.5, 1, 1, 1};\n"
            f"Cylinder(2) = {{0, 0, -1, 0, 0, 2, {k[0]}}};\nCylinder(3) = {{0, -1, 0, 0, 2, 0, {k[1]}}};\n"
            f"Cylinder(4) = {{-1, 0, 0, 2, 0, 0, {k[2]}}};\n" + _CUT.format("2:4"),
            1 - 2.5 * (k ** 2).sum())


def cheese(r):
    n = r.integers(4, 12)
    text = "Box(1) = {0, 0, 0, 1, 1, 1};\n"
    for i in range(n):
        x, y, z = r.uniform(0, 1, 3)
        text += f"Sphere({i + 2}) = {{{x}, {y}, {z}, {r.uniform(0.08, 0.22)}}};\n"
    return text + _CUT.format(f"2:{n + 1}"), 0.8


def countersunk(r):
    k, t = r.uniform(0.08, 0.16), r.uniform(0.2, 0.5)
    return (f"Box(1) = {{-0.5, -0.5, 0, 1, 1, {t}}};\nCylinder(2) = {{0, 0, -1, 0, 0, 3, {k}}};\n"
            f"Cone(3) = {{0, 0, {t / 2}, 0, 0, {t}, {k}, {k + t}}};\n" + _CUT.format("2:3"), 0.8 * t)


def slotted_disc(r):
    n, k = r.integers(3, 9), r.uniform(0.02, 0.06)
    text = "Cylinder(1) = {0, 0, 0, 0, 0, 0.25, 0.6};\n"
    for i in range(n):
        text += (f"Box({i + 2}) = {{0.25, {-k}, -1, 1, {2 * k}, 3}};\n"
                 f"Rotate {{ {{0, 0, 1}}, {{0, 0, 0}}, {2 * math.pi * i / n} }} {{ Volume{{{i + 2}}}; }}\n")
    return text + _CUT.format(f"2:{n + 1}"), 0.25 * (math.pi * 0.36 - n * 0.7 * k)
