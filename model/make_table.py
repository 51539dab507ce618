#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Joins labels and features: make_table.py FOLDER TABLE.csv [MESHQUALITY].

FOLDER is what make_meshes.py and make_labels.py filled (and field_solves.py, for the second labels).
The features come from the program
named last; without it they come from tetrahedron_metrics.py.
"""
import csv
import json
import pathlib
import subprocess
import sys

import numpy as np

from mesh_file import read_mesh
from table import LABELS
from tetrahedron_metrics import FEATURES, mean_features

CHOICES = ["mesh", "family", "algorithm", "surface", "optimise", "grading", "ratio", "stretch", "jitter", "shuffled",
           "scale", "elements"]
# Below this an element is flat to within rounding, and so are its metrics' digits: such meshes are left out.
FLAT = 1e-6
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
        yield mean_features(*read_mesh(path)).tolist()


def text(value):
    return f"{value:.6g}" if isinstance(value, float) else value


def main():
    folder, table = pathlib.Path(sys.argv[1]), sys.argv[2]
    program = sys.argv[3] if len(sys.argv) > 3 else None
    features = program_features if program else own_features
    measured = {row["mesh"]: row for row in read_lines(folder / "labels.jsonl")}
    for row in read_lines(folder / "solves.jsonl"):
        measured[row["mesh"]].update(row)
    rows = sorted(read_lines(folder / "meshes.jsonl"), key=lambda row: row["mesh"])
    with open(table, "w", encoding="ascii", newline="") as stream:
        writer = csv.writer(stream, lineterminator="\n")
        writer.writerow(CHOICES + FEATURES + LABELS)
        for start in range(0, len(rows), BATCH):
            batch = rows[start:start + BATCH]
            for row, values in zip(batch, features(program, [folder / row["mesh"] for row in batch])):
                labels = measured[row["mesh"]]
                if labels["minScaledJacobian"] > FLAT:
                    writer.writerow([text(row[name]) for name in CHOICES] + [text(value) for value in values]
                                    + [text(labels.get(name, "")) for name in LABELS])


if __name__ == "__main__":
    main()
