#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Remakes every sample mesh from the geometry beside it: samples/remake.py [NAME...]. Needs only gmsh."""
import pathlib
import random
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SQUASH = 0.3        # the poor sample's height after squashing, as a fraction
JITTER = 0.4        # the furthest an inner node is tried, as a fraction of the edge length
EDGE = 0.11


def run_gmsh(geometry, mesh):
    subprocess.run(["gmsh", "-3", "-v", "1", "-nt", "1", "-format", "msh22", "-o", str(mesh), str(geometry)], check=True)


def signed_volume(points, tetrahedron):
    p, q, r, s = (points[n] for n in tetrahedron)
    a, b, c = ([v[k] - p[k] for k in range(3)] for v in (q, r, s))
    return (c[0] * (a[1] * b[2] - a[2] * b[1]) + c[1] * (a[2] * b[0] - a[0] * b[2])
            + c[2] * (a[0] * b[1] - a[1] * b[0])) / 6


def jitter_inner_nodes(points, tetrahedra, fixed):
    """Moves each inner node at random, and takes back a move that would invert one of its tetrahedra."""
    generator = random.Random(20261120)
    around = {}
    for tetrahedron in tetrahedra:
        for node in tetrahedron:
            around.setdefault(node, []).append(tetrahedron)
    smallest = 1e-3 * EDGE ** 3 / 8.5
    for node in sorted(set(around) - fixed):
        before = points[node]
        points[node] = [x + JITTER * EDGE * generator.uniform(-1, 1) for x in before]
        if min(signed_volume(points, t) for t in around[node]) < smallest:
            points[node] = before


def spoil(mesh):
    lines = mesh.read_text().splitlines()
    start = lines.index("$Nodes") + 2
    end = lines.index("$EndNodes")
    points = {int(n): [float(x) for x in rest] for n, *rest in (line.split() for line in lines[start:end])}
    elements = [[int(x) for x in line.split()] for line in lines[lines.index("$Elements") + 2:lines.index("$EndElements")]]
    fixed = {node for e in elements if e[1] != 4 for node in e[5:]}
    jitter_inner_nodes(points, [e[5:] for e in elements if e[1] == 4], fixed)
    lines[start:end] = [f"{n} {x:.16g} {y:.16g} {SQUASH * z:.16g}" for n, (x, y, z) in points.items()]
    mesh.write_text("\n".join(lines) + "\n")


def main():
    for geometry in sorted(HERE.glob("*.geo")):
        if len(sys.argv) > 1 and geometry.stem not in sys.argv[1:]:
            continue
        mesh = geometry.with_suffix(".msh")
        run_gmsh(geometry, mesh)
        if geometry.stem == "slivers":
            spoil(mesh)
        print(f"{mesh.name}: {mesh.stat().st_size // 1000} kB")


if __name__ == "__main__":
    main()
