# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Solids with narrow gaps and fine teeth."""
import math

_JOIN = "BooleanUnion{{ Volume{{1}}; Delete; }}{{ Volume{{{0}}}; Delete; }}"


def bridged_blocks(r):
    g = r.uniform(0.01, 0.08)
    return (f"Box(1) = {{0, 0, 0, 0.5, 0.6, 0.5}};\nBox(2) = {{{0.5 + g}, 0, 0, 0.5, 0.6, 0.5}};\n"
            f"Box(3) = {{0.4, 0.2, 0.1, {0.2 + g}, 0.2, 0.2}};\n" + _JOIN.format("2:3"), 0.3)


def slit_block(r):
    g, d = r.uniform(0.01, 0.06), r.uniform(0.3, 0.85)
    return (f"Box(1) = {{0, 0, 0, 1, 0.6, 0.4}};\nBox(2) = {{-0.1, {0.3 - g / 2}, -0.1, {d + 0.1}, {g}, 1}};\n"
            "BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }", 0.23)


def heat_sink(r):
    n, t = r.integers(4, 10), r.uniform(0.02, 0.05)
    text = "Box(1) = {0, 0, 0, 1, 0.6, 0.1};\n"
    text += "".join(f"Box({i + 2}) = {{{i * (1 - t) / (n - 1)}, 0, 0.05, {t}, 0.6, 0.45}};\n" for i in range(n))
    return text + _JOIN.format(f"2:{n + 1}"), 0.06 + n * t * 0.24


def toothed_wheel(r):
    n = r.integers(8, 20)
    text = f"Cylinder(1) = {{0, 0, 0, 0, 0, {r.uniform(0.1, 0.3)}, 0.45}};\n"
    for i in range(n):
        text += (f"Box({i + 2}) = {{0.4, {-0.7 / n}, 0, 0.2, {1.4 / n}, 0.1}};\n"
                 f"Rotate {{ {{0, 0, 1}}, {{0, 0, 0}}, {2 * math.pi * i / n} }} {{ Volume{{{i + 2}}}; }}\n")
    return text + _JOIN.format(f"2:{n + 1}"), 0.17


def nested_rings(r):
    g = r.uniform(0.02, 0.06)
    return ("Cylinder(1) = {0, 0, 0, 0, 0, 0.3, 0.6};\nCylinder(2) = {0, 0, -1, 0, 0, 3, 0.4};\n"
            f"Cylinder(3) = {{0, 0, 0, 0, 0, 0.3, {0.4 - g}}};\nCylinder(4) = {{0, 0, -1, 0, 0, 3, 0.2}};\n"
            "BooleanDifference{ Volume{1}; Delete; }{ Volume{2}; Delete; }\n"
            "BooleanDifference{ Volume{3}; Delete; }{ Volume{4}; Delete; }", 0.28)
