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
from table import DEFAULT, data_hash, read_sequences, read_table
from tetrahedron_metrics import FEATURES
from transform import ROBUST, USED, logarithms

NAME, VERSION = "mesh-accuracy", "2.0.0"
NETWORKS, HIDDEN, STEPS = 4, 16, 1500
DECAY, JITTER_IMPORTANCE, ANCHOR_IMPORTANCE = 2e-6, 0.3, 2.0


def half_whitening(x):
    """Mixes the robust features, which say much the same: this evens out half of the differences in spread between
    their combinations. The rest get no share."""
    chosen = [USED.index(FEATURES.index(name)) for name in ROBUST]
    deviation = x[:, chosen].std(0)
    values, vectors = np.linalg.eigh(np.cov((x[:, chosen] / deviation).T))
    mixing = np.zeros((x.shape[1], len(chosen)))
    mixing[chosen] = vectors * np.maximum(values, 1e-4) ** -0.25 / deviation[:, None]
    return mixing


def fit(table, rows, sequences):
    """The constants of the graph, fitted to these rows of the table, the anchors and the jitter sequences."""
    anchor_features, anchor_labels = make_anchors()
    x = logarithms(np.vstack([table.features[rows], anchor_features, sequences.features]))
    y = np.r_[table.accuracy[rows], anchor_labels, sequences.accuracy]
    importance = np.r_[np.ones(rows.sum()), np.full(len(anchor_labels), ANCHOR_IMPORTANCE),
                       np.full(len(sequences.accuracy), JITTER_IMPORTANCE)]
    mean, mixing = x.mean(0), half_whitening(x)
    networks = [Network(mixing.shape[1], HIDDEN, np.random.default_rng(seed)) for seed in range(1, NETWORKS + 1)]
    for network in networks:
        network.fit((x - mean) @ mixing, y, importance, (len(sequences.accuracy), sequences.length), DECAY, STEPS)
    return write_onnx.constants(networks, mean, mixing, x.min(0), x.max(0))


def main():
    path = sys.argv[1] if len(sys.argv) > 1 else DEFAULT
    out = sys.argv[2] if len(sys.argv) > 2 else SHIPPED
    table = read_table(path)
    rows = ~table.tested
    values = fit(table, rows, read_sequences())
    write_onnx.write(out, values, {
        "name": NAME, "version": VERSION, "dataSha256": data_hash(path), "featureOrder": FEATURES,
        "trainingRanges": write_onnx.training_ranges(values),
        "meaning": "ideal / own gradient error of linear elements, in the geometric mean over the elements, for random "
                   "quadratic fields, against regular tetrahedra of the same volumes",
        "explanation": "elements of this mesh need edges %2 times finer, in the mean, to be as accurate as regular "
                       "tetrahedra of their volumes",
        "trainedOn": f"{rows.sum()} meshes of {len(set(table.family[rows]))} geometry families",
        "licence": "BSD-3-Clause"})
    error = np.abs(scores(table.features, out) - table.accuracy)
    print(f"{rows.sum()} rows, mean absolute error there {error[rows].mean():.4f}")


if __name__ == "__main__":
    main()
