#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Makes the meshes: make_meshes.py FOLDER [FIRST LAST]. Seeded, and goes on where it was stopped.

Each run of Gmsh gives three meshes: one as it is, and two stretched, jittered, renumbered or scaled. FOLDER gets the
meshes and meshes.jsonl, one object a mesh.
"""
import json
import pathlib
import sys
import tempfile

import numpy as np

from deformation import jitter, random_direction, shuffle_corners, stretch
from families import BLOCKS, FAMILIES
from gmsh_run import draw_options, run_gmsh
from mesh_file import write_mesh

SEED = 20261120
RUNS = [30, 30, 20]  # of each family, block by block
SCHEDULE = [name for block, runs in zip(BLOCKS, RUNS) for name in list(block) * runs]


def draw_deformation(generator, variant):
    if variant == 0:
        return {"stretch": 1.0, "jitter": 0.0, "shuffled": False, "scale": 1.0}
    kind = generator.random()
    return {
        "stretch": float(20 ** generator.random() ** 1.5) if kind < 0.6 else 1.0,
        "jitter": float(generator.uniform(0.02, 0.9)) if kind > 0.35 else 0.0,
        "shuffled": bool(generator.random() < 0.3),
        "scale": float(10 ** generator.uniform(-6, 6)),
    }


def deform(points, tetrahedra, how, generator):
    direction, moves = random_direction(generator), generator.uniform(-1, 1, points.shape)
    points = jitter(points, tetrahedra, how["jitter"], moves) if how["jitter"] else points
    points = stretch(points, direction, how["stretch"]) * how["scale"]
    return points, shuffle_corners(tetrahedra, generator) if how["shuffled"] else tetrahedra


def make_run(run, folder):
    """The table rows of one Gmsh run; an empty list when it made nothing usable."""
    generator = np.random.default_rng([SEED, run])
    family = SCHEDULE[run]
    geometry, volume = FAMILIES[family](generator)
    options = draw_options(generator)
    with tempfile.TemporaryDirectory() as scratch:
        made = run_gmsh(geometry, volume, options, scratch)
    rows = []
    for variant in range(3 if made else 0):
        how = draw_deformation(generator, variant)
        points, tetrahedra = deform(*made, how, generator)
        name = f"{run:04d}-{variant}.msh"
        write_mesh(folder / name, points, tetrahedra)
        rows.append({"mesh": name, "family": family, "elements": len(tetrahedra), **options, **how})
    return rows


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    first, last = (int(x) for x in sys.argv[2:4]) if len(sys.argv) > 3 else (0, len(SCHEDULE))
    table, done = folder / "meshes.jsonl", folder / "done.txt"
    finished = set(done.read_text().split()) if done.exists() else set()
    for run in range(first, last):
        if str(run) in finished:
            continue
        rows = make_run(run, folder)
        with open(table, "a", encoding="ascii") as stream:
            stream.writelines(json.dumps(row) + "\n" for row in rows)
        with open(done, "a", encoding="ascii") as stream:
            stream.write(f"{run}\n")


if __name__ == "__main__":
    main()
