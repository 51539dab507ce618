#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Judges the shipped model on the families kept from it, as Markdown tables: judge.py > data/judgement.md."""
import numpy as np
from scipy.stats import spearmanr

from baselines import all_baselines
from evaluate import scores
from table import read_table

MEASURES = ("Spearman", "mean absolute error")


def rank(a, b):
    return spearmanr(a, b)[0]


def figures(score, order, truth):
    return f"{rank(order, truth):.4f} | {np.abs(score - truth).mean():.4f}"


def heading(title, *columns):
    print(f"\n## {title}\n\n| " + " | ".join(columns) + " |\n" + "|---" * len(columns) + "|")


def comparison(table, train, test):
    truth, score = table.accuracy[test], scores(table.features[test])
    heading("Against the baselines, unseen families", "predictor", *MEASURES)
    print(f"| **mesh.onnx** | {figures(score, score, truth)} |")
    for name, answer, order in all_baselines(table, train, test):
        print(f"| {name} | {figures(answer, order, truth)} |")


def per_family(table, test):
    heading("Each unseen family", "family", "meshes", *MEASURES, "mean score - measured")
    for family in sorted(set(table.family[test])):
        rows = test & (table.family == family)
        score, truth = scores(table.features[rows]), table.accuracy[rows]
        print(f"| {family} | {rows.sum()} | {figures(score, score, truth)} | {(score - truth).mean():+.4f} |")


def subsets(table, test):
    meshed = (table.stretch == 1) & (table.jitter == 0)
    grading = np.array([row["grading"] for row in table.rows])
    algorithm = np.array([row["algorithm"] for row in table.rows])
    optimised = np.array([int(row["optimise"]) > 0 for row in table.rows])
    ratio = np.array([float(row["ratio"]) for row in table.rows])
    ordinary = meshed & optimised & (algorithm != "initial") & ((grading == "even") | (ratio < 3))
    parts = {"as meshed": meshed, "as meshed, optimised, size field within a factor of 3": ordinary,
             "stretched or jittered": ~meshed, "stretched 5 times or more": table.stretch >= 5}
    parts.update({f"as meshed, sizes: {name}": meshed & (grading == name) for name in sorted(set(grading))})
    parts.update({f"as meshed, algorithm: {name}": meshed & (algorithm == name) for name in sorted(set(algorithm))})
    heading("Parts of the unseen families", "part", "meshes", *MEASURES)
    for name, part in parts.items():
        rows = test & part
        score = scores(table.features[rows])
        print(f"| {name} | {rows.sum()} | {figures(score, score, table.accuracy[rows])} |")


def calibration(table, test):
    score, truth = scores(table.features[test]), table.accuracy[test]
    heading("Calibration, unseen families", "score", "meshes", "mean score", "mean measured", "5 % to 95 % of measured")
    for low in np.arange(0, 1, 0.1):
        rows = (score >= low) & (score < low + 0.1)
        if rows.any():
            spread = np.percentile(truth[rows], [5, 95])
            print(f"| {low:.1f} to {low + 0.1:.1f} | {rows.sum()} | {score[rows].mean():.3f} "
                  f"| {truth[rows].mean():.3f} | {spread[0]:.3f} to {spread[1]:.3f} |")


WORDS = {"": "as the score", "Mean": "mean, local sizes", "Rms": "root mean square, local sizes",
         "Even": "root mean square, equal sizes"}


def second_labels(table, test):
    """The score, and the measure that it predicts, against other measures and against real solves."""
    heading("Other measures, unseen families", "error of", "measured as", "meshes", *MEASURES,
            "the measured accuracy with it: Spearman", "mean absolute difference")
    for kind in ("accuracy", "poisson", "elasticity"):
        for way, words in WORDS.items():
            truth = getattr(table, kind + way)
            rows = test & np.isfinite(truth)
            score = scores(table.features[rows])
            name = "interpolation" if kind == "accuracy" else f"{kind}, solved"
            print(f"| {name} | {words} | {rows.sum()} | {figures(score, score, truth[rows])} "
                  f"| {figures(table.accuracy[rows], table.accuracy[rows], truth[rows])} |")
    heading("Solved and interpolated, each in the same measure", "solved", "measured as", *MEASURES)
    for kind in ("poisson", "elasticity"):
        for way, words in WORDS.items():
            truth, own = getattr(table, kind + way), getattr(table, "accuracy" + way)
            rows = test & np.isfinite(truth)
            print(f"| {kind} | {words} | {figures(own[rows], own[rows], truth[rows])} |")


def main():
    table = read_table()
    train, test = ~table.tested, table.tested
    print(f"# Judgement of mesh.onnx\n\n{train.sum()} meshes of {len(set(table.family[train]))} families to train on, "
          f"{test.sum()} of {len(set(table.family[test]))} others to judge by.")
    comparison(table, train, test)
    subsets(table, test)
    calibration(table, test)
    second_labels(table, test)
    per_family(table, test)


if __name__ == "__main__":
    main()
