#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Draws data/score-and-measured.svg and data/errors.svg: the unseen families only."""
import numpy as np

from baselines import all_baselines
from evaluate import scores
from table import DEFAULT, read_table

SIDE, MARGIN, MOST_DOTS = 400, 50, 900
HEAD = ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {0} {1}" width="{0}" height="{1}" '
        'font-family="sans-serif" font-size="12">\n<rect width="{0}" height="{1}" fill="white"/>\n')


def text(x, y, words, anchor="middle", more=""):
    return f'<text x="{x}" y="{y}" text-anchor="{anchor}" {more}>{words}</text>\n'


def square_axes(across, upward):
    far, parts = MARGIN + SIDE, []
    for tick in np.arange(0, 1.01, 0.2):
        at = SIDE * tick
        lines = f"M{MARGIN + at:.0f} 20V{SIDE + 20}M{MARGIN} {SIDE + 20 - at:.0f}H{far}"
        parts.append(f'<path d="{lines}" stroke="#ddd"/>\n')
        parts.append(text(round(MARGIN + at), SIDE + 36, f"{tick:.1f}"))
        parts.append(text(MARGIN - 6, round(SIDE + 24 - at), f"{tick:.1f}", "end"))
    parts.append(f'<path d="M{MARGIN} {SIDE + 20}L{far} 20" stroke="#888" stroke-dasharray="4"/>\n')
    parts.append(text(MARGIN + SIDE / 2, SIDE + 56, across))
    turned = f'transform="rotate(-90 14 {20 + SIDE / 2})"'
    parts.append(text(14, 20 + SIDE / 2, upward, more=turned))
    return "".join(parts)


def scatter(table, rows, path):
    rows = np.random.default_rng(0).permutation(np.flatnonzero(rows))[:MOST_DOTS]
    score, truth = scores(table.features[rows]), table.accuracy[rows]
    deformed = (table.stretch[rows] > 1) | (table.jitter[rows] > 0)
    parts = [HEAD.format(SIDE + MARGIN + 20, SIDE + 70), square_axes("score", "measured accuracy")]
    for a, b, spoilt in zip(score, truth, deformed):
        colour = "#d55e00" if spoilt else "#0072b2"
        parts.append(f'<circle cx="{MARGIN + SIDE * a:.1f}" cy="{20 + SIDE * (1 - b):.1f}" r="2" fill="{colour}" '
                     'fill-opacity="0.5"/>\n')
    parts.append(text(MARGIN + 10, 36, "as meshed", "start", 'fill="#0072b2"'))
    parts.append(text(MARGIN + 10, 52, "stretched or jittered", "start", 'fill="#d55e00"'))
    path.write_text("".join(parts) + "</svg>\n", encoding="ascii")


def bars(table, train, test, path):
    truth = table.accuracy[test]
    errors = [("mesh.onnx", np.abs(scores(table.features[test]) - truth).mean())]
    errors += [(name, np.abs(answer - truth).mean()) for name, answer, _ in all_baselines(table, train, test)]
    errors.sort(key=lambda pair: pair[1])
    parts, longest = [HEAD.format(620, 24 * len(errors) + 40)], max(value for _, value in errors)
    for i, (name, value) in enumerate(errors):
        colour = "#009e73" if name == "mesh.onnx" else "#999"
        parts.append(text(230, 24 * i + 28, name.replace(">", "&gt;"), "end"))
        width = f"{300 * value / longest:.0f}"
        parts.append(f'<rect x="240" y="{24 * i + 15}" width="{width}" height="17" fill="{colour}"/>\n')
        parts.append(text(round(246 + 300 * value / longest), 24 * i + 28, f"{value:.3f}", "start"))
    parts.append(text(240, 24 * len(errors) + 30, "mean absolute error, unseen families", "start"))
    path.write_text("".join(parts) + "</svg>\n", encoding="ascii")


def main():
    table, folder = read_table(), DEFAULT.parent
    scatter(table, table.tested, folder / "score-and-measured.svg")
    bars(table, ~table.tested, table.tested, folder / "errors.svg")


if __name__ == "__main__":
    main()
