#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Jitters meshes of the training families step by step: make_jitter.py FOLDER TABLE.csv OUT.csv.

Each sequence moves the nodes of one mesh straight on, further and further. The accuracy falls along it, and training
sees to it that the score does too.
"""
import csv
import pathlib
import sys

import numpy as np

from accuracy_label import accuracy
from deformation import jitter_path
from mesh_file import read_mesh
from table import read_table
from tetrahedron_metrics import FEATURES, mean_features

AMOUNT, SHARES = 0.6, [0, 0.2, 1]
MOST_ELEMENTS, SEED = 1500, 11


def chosen(table):
    """Mesh, family and how many sequences: most where no optimiser has removed the slivers, the hardest to judge."""
    for row, elements, tested in zip(table.rows, table.elements, table.tested):
        if elements <= MOST_ELEMENTS and not tested and row["mesh"].endswith("-0.msh"):
            yield row["mesh"], row["family"], 2 if row["optimise"] == "0" else int(row["mesh"][:4]) % 3 == 0


def sequence(points, tetrahedra, generator):
    """Rows of features and accuracy; none at all when an element inverts on the way."""
    path = jitter_path(points, tetrahedra, AMOUNT, generator.uniform(-1, 1, points.shape), SHARES)
    labels = [accuracy(moved, tetrahedra) for moved in path]
    if not np.isfinite(labels).all():
        return []
    return [[*mean_features(moved, tetrahedra), label] for moved, label in zip(path, labels)]


def main():
    folder, table = pathlib.Path(sys.argv[1]), read_table(sys.argv[2])
    generator = np.random.default_rng(SEED)
    with open(sys.argv[3], "w", encoding="ascii", newline="") as stream:
        writer = csv.writer(stream, lineterminator="\n")
        writer.writerow(["mesh", "family", "share"] + FEATURES + ["accuracy"])
        for mesh, family, times in chosen(table):
            points, tetrahedra = read_mesh(folder / mesh)
            for _ in range(times):
                for share, values in zip(SHARES, sequence(points, tetrahedra, generator)):
                    writer.writerow([mesh, family, share] + [f"{value:.5g}" for value in values])


if __name__ == "__main__":
    main()
