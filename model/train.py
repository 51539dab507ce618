#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Fits the network to the committed table and writes mesh.onnx: train.py [TABLE.csv [OUT.onnx]]."""
import sys

import numpy as np

import write_onnx
from anchors import make_anchors
from evaluate import SHIPPED, scores
from network import Network
from table import DEFAULT, data_hash, read_table
from tetrahedron_metrics import FEATURES
from transform import BETTER_WHEN_HIGH, logarithms

NAME, VERSION = "mesh-accuracy", "1.0.0"
HIDDEN, SEED, STEPS = 16, 1, 3000
ANCHOR_IMPORTANCE = 0.3


def fit(features, labels, hidden=HIDDEN, seed=SEED, steps=STEPS):
    """Returns a dictionary of the constants of the graph, fitted to these rows and the anchors."""
    anchor_features, anchor_labels = make_anchors()
    x = logarithms(np.vstack([features, anchor_features]))
    y = np.r_[labels, anchor_labels]
    importance = np.r_[np.ones(len(labels)), np.full(len(anchor_labels), ANCHOR_IMPORTANCE)]
    mean, deviation = x.mean(0), x.std(0) * BETTER_WHEN_HIGH
    network = Network(x.shape[1], hidden, np.random.default_rng(seed))
    network.fit((x - mean) / deviation, y, importance, steps=steps)
    return write_onnx.constants(network.weights(), mean, deviation, x.min(0), x.max(0))


def main():
    path = sys.argv[1] if len(sys.argv) > 1 else DEFAULT
    out = sys.argv[2] if len(sys.argv) > 2 else SHIPPED
    table = read_table(path)
    rows = ~table.tested & np.isfinite(table.accuracy)
    values = fit(table.features[rows], table.accuracy[rows])
    write_onnx.write(out, values, {
        "name": NAME, "version": VERSION, "dataSha256": data_hash(path), "featureOrder": FEATURES,
        "trainingRanges": write_onnx.training_ranges(values["lowest"][0], values["highest"][0]),
        "meaning": "ideal interpolation error / own interpolation error of linear elements, over random quadratic fields",
        "trainedOn": f"{rows.sum()} meshes of {len(set(table.family[rows]))} geometry families",
        "licence": "BSD-3-Clause"})
    error = np.abs(scores(table.features, out) - table.accuracy)
    print(f"{rows.sum()} rows, mean absolute error there {error[rows].mean():.4f}")


if __name__ == "__main__":
    main()
