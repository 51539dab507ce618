#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Judges the training itself, without the families of the final test: cross_validate.py [FOLDS]. Minutes a fold.

Each fold fits to some training families and asks about the others, their jitter sequences among them.
"""
import pathlib
import sys
import tempfile

import numpy as np
from scipy.stats import spearmanr

import write_onnx
from evaluate import scores
from split import FOLDS
from table import read_sequences, read_table
from train import fit


def parts(families):
    return [set(families[fold::FOLDS]) for fold in range(FOLDS)]


def rises(sequences, score):
    """The most that each sequence's score rises, and that beyond the rise of the measured accuracy."""
    steps = np.diff(score.reshape(-1, sequences.length), axis=1)
    measured = np.diff(sequences.accuracy.reshape(-1, sequences.length), axis=1)
    return steps.max(1), (steps - np.maximum(measured, 0)).max(1)


def judge_fold(table, sequences, left_out, path):
    """Scores of the families left out and of their sequences, by a network that has not seen them."""
    out, moved_out = np.isin(table.family, list(left_out)), np.isin(sequences.family, list(left_out))
    write_onnx.write(path, fit(table, ~out & ~table.tested, sequences.of(~moved_out)), {"name": "a fold"})
    told = sequences.of(moved_out)
    return out, scores(table.features[out], path), rises(told, scores(told.features, path))


def main():
    table, sequences = read_table(), read_sequences()
    families = sorted(set(table.family[~table.tested]))
    answer, found = np.full(len(table.rows), np.nan), []
    with tempfile.TemporaryDirectory() as scratch:
        for left_out in parts(families)[:int(sys.argv[1]) if len(sys.argv) > 1 else FOLDS]:
            out, answer[out], most = judge_fold(table, sequences, left_out, pathlib.Path(scratch, "fold.onnx"))
            found.append(most)
    meshed = (table.stretch == 1) & (table.jitter == 0)
    for name, rows in (("all", np.isfinite(answer)), ("as meshed", np.isfinite(answer) & meshed)):
        truth = table.accuracy[rows]
        print(f"{name}: {rows.sum()} meshes, Spearman {spearmanr(answer[rows], truth)[0]:.4f}, "
              f"mean absolute error {np.abs(answer[rows] - truth).mean():.4f}")
    most, beyond = np.hstack(found)
    print(f"jitter: {len(most)} sequences, largest rise {most.max():.4f}, above 0.01 in {(most > 0.01).sum()}; "
          f"beyond the measured {beyond.max():.4f}, above 0.01 in {(beyond > 0.01).sum()}")


if __name__ == "__main__":
    main()
