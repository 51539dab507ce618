# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Reads the committed table of features and labels."""
import csv
import hashlib
import pathlib
from types import SimpleNamespace

import numpy as np

from accuracy_label import WAYS
from split import TEST_FAMILIES
from tetrahedron_metrics import FEATURES

# Interpolation and two real solves, each measured in the ways of accuracy_label.compare().
LABELS = ["minScaledJacobian"] + [name + way for name in ("accuracy", "poisson", "elasticity") for way in WAYS]
DEFAULT = pathlib.Path(__file__).resolve().parent / "data" / "meshes.csv"


def numbers(rows, name):
    return np.array([float(row[name]) if row[name] else np.nan for row in rows])


class Sequences:
    """The jitter sequences, one after another; length is the number of rows of each."""

    def __init__(self, family, features, accuracy, length):
        self.family, self.features, self.accuracy, self.length = family, features, accuracy, length

    def of(self, rows):
        return Sequences(self.family[rows], self.features[rows], self.accuracy[rows], self.length)


def read_sequences(path=DEFAULT.parent / "jitter.csv"):
    with open(path, encoding="ascii", newline="") as stream:
        rows = list(csv.DictReader(stream))
    return Sequences(np.array([row["family"] for row in rows]),
                     np.column_stack([numbers(rows, name) for name in FEATURES]),
                     numbers(rows, "accuracy"), len({row["share"] for row in rows}))


def read_table(path=DEFAULT):
    with open(path, encoding="ascii", newline="") as stream:
        rows = list(csv.DictReader(stream))
    family = np.array([row["family"] for row in rows])
    return SimpleNamespace(
        rows=rows, family=family, tested=np.isin(family, TEST_FAMILIES),
        features=np.column_stack([numbers(rows, name) for name in FEATURES]),
        **{name: numbers(rows, name) for name in
           LABELS + ["stretch", "jitter", "scale", "elements"]})


def data_hash(path=DEFAULT):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()
