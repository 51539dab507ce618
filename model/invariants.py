#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""What must hold for the score whatever its accuracy: invariants.py FOLDER, on as-meshed meshes of unseen families."""
import json
import pathlib
import sys

import numpy as np

from accuracy_label import accuracy
from deformation import jitter_path
from evaluate import metadata, scores
from mesh_file import read_mesh
from table import read_table
from tetrahedron_metrics import FEATURES, mean_features

MESHES, MOST_ELEMENTS = 200, 3000
AMOUNT, SHARES = 0.6, np.linspace(0, 1, 11)


def unseen_meshes(folder):
    table = read_table()
    keep = table.tested & (table.elements <= MOST_ELEMENTS)
    names = [row["mesh"] for row, wanted in zip(table.rows, keep) if wanted and row["mesh"].endswith("-0.msh")]
    return [read_mesh(folder / name) for name in names[:MESHES]]


def rises(points, tetrahedra, generator):
    """The most that the same jitter, one step further, raises the measured accuracy and the score."""
    path = jitter_path(points, tetrahedra, AMOUNT, generator.uniform(-1, 1, points.shape), SHARES)
    measured = np.diff([accuracy(moved, tetrahedra) for moved in path])
    score = np.diff(scores([mean_features(moved, tetrahedra) for moved in path]))
    return measured.max(), score.max(), (score - np.maximum(measured, 0)).max()


def report_jitter(meshes):
    found = np.array([rises(*mesh, np.random.default_rng(3)) for mesh in meshes])
    found = found[np.isfinite(found).all(1)]  # the others invert on the way
    falling = found[:, 0] <= 0
    print(f"jitter, {len(found)} sequences; measured accuracy never rises in {falling.sum()} of them")
    print(f"  largest rise of the score, where the measured accuracy never rises: {found[falling, 1].max():.4f}")
    print(f"  largest rise of the score, all: {found[:, 1].max():.4f}; above 0.01 in {(found[:, 1] > 0.01).sum()}")
    print(f"  largest rise of the score beyond that of the measured accuracy: {found[:, 2].max():.4f}")


def scale_difference(points, tetrahedra):
    sizes = scores([mean_features(points * scale, tetrahedra) for scale in (1e-6, 1, 1e6)])
    return np.ptp(sizes)


def out_of_range_rise(points, tetrahedra):
    """The most that pushing one feature beyond the training range raises the score above that at its bound."""
    features, worst = mean_features(points, tetrahedra).astype(float), -1.0
    for name, bounds in json.loads(metadata()["trainingRanges"]).items():
        for bound, factors in zip(bounds or [], ([0.9, 0.5, 0.1], [1.1, 2, 10])):
            rows = np.tile(features, (4, 1))
            rows[:, FEATURES.index(name)] = [bound] + [bound * factor for factor in factors]
            there = scores(rows)
            worst = max(worst, float((there[1:] - there[0]).max()))
    return worst


def main():
    meshes = unseen_meshes(pathlib.Path(sys.argv[1]))
    print(f"{len(meshes)} meshes of unseen families")
    report_jitter(meshes)
    print(f"largest difference over scales 1e-6, 1, 1e6: {max(scale_difference(*m) for m in meshes):.2e}")
    print(f"largest rise beyond a bound of the training range: {max(out_of_range_rise(*m) for m in meshes):.2e}")
    print(f"no mesh (zeros): {scores(np.zeros(11))[0]}, NaN: {scores(np.full(11, np.nan))[0]}")


if __name__ == "__main__":
    main()
