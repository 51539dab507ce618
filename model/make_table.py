#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Joins labels and features: make_table.py FOLDER TABLE.csv [MESHQUALITY].

FOLDER is what make_meshes.py filled (and field_solves.py, for the second labels). The features come from the program
named last; without it they come from tetrahedron_metrics.py.
"""
import csv
import json
import pathlib
import subprocess
import sys

import numpy as np

from mesh_file import read_mesh
from tetrahedron_metrics import FEATURES, element_metrics

CHOICES = ["mesh", "family", "algorithm", "surface", "optimise", "grading", "ratio", "stretch", "jitter", "shuffled",
           "scale", "elements"]
LABELS = ["minScaledJacobian", "accuracy", "poisson", "elasticity"]
BATCH = 100


def read_lines(path):
    return [json.loads(line) for line in path.read_text().splitlines()] if path.exists() else []


def program_features(program, paths):
    answer = subprocess.run([program, "report", "--json", "-", *map(str, paths)], check=True, capture_output=True)
    for report in json.loads(answer.stdout):
        values = report["features"]
        yield [np.nan if values[name] is None else values[name] for name in FEATURES]


def own_features(_, paths):
    for path in paths:
        yield element_metrics(*read_mesh(path)).mean(0)


def smallest_scaled_jacobian(path):
    return float(element_metrics(*read_mesh(path))[:, FEATURES.index("ScaledJacobian")].min())


def number(value):
    return f"{value:.7g}" if isinstance(value, float) else value


def main():
    folder, table = pathlib.Path(sys.argv[1]), sys.argv[2]
    program = sys.argv[3] if len(sys.argv) > 3 else None
    features = program_features if program else own_features
    solves = {row["mesh"]: row for row in read_lines(folder / "solves.jsonl")}
    rows = sorted(read_lines(folder / "meshes.jsonl"), key=lambda row: row["mesh"])
    with open(table, "w", encoding="ascii", newline="") as stream:
        writer = csv.writer(stream, lineterminator="\n")
        writer.writerow(CHOICES + FEATURES + LABELS)
        for start in range(0, len(rows), BATCH):
            batch = rows[start:start + BATCH]
            for row, values in zip(batch, features(program, [folder / row["mesh"] for row in batch])):
                second = solves.get(row["mesh"], {})
                labels = [smallest_scaled_jacobian(folder / row["mesh"]), row["accuracy"], second.get("poisson", ""), second.get("elasticity", "")]
                writer.writerow([number(row[c]) if c not in ("ratio", "stretch", "jitter", "scale") else f"{row[c]:.4g}"
                                 for c in CHOICES] + [number(float(v)) for v in values] + [number(v) for v in labels])


if __name__ == "__main__":
    main()
