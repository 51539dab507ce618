# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Meshes no mesher makes, so that the ideal lies inside the training range: regular tetrahedra and small departures."""
import numpy as np

from accuracy_label import REGULAR, accuracy
from tetrahedron_metrics import element_metrics, volumes

REGULAR_CORNERS = REGULAR[0][[0, 2, 1, 3]]


def departures(spread, sizes, generator, count=200):
    """Separate tetrahedra: regular ones, every corner moved by spread, sizes of a log-normal law."""
    corners = REGULAR_CORNERS + spread * generator.normal(size=(count, 4, 3))
    corners *= np.exp(sizes * generator.normal(size=(count, 1, 1)))
    points, tetrahedra = corners.reshape(-1, 3), np.arange(4 * count).reshape(-1, 4)
    return points, tetrahedra[volumes(points, tetrahedra) > 0]


def make_anchors(count=120, seed=5):
    generator = np.random.default_rng(seed)
    features, labels = [], []
    for i in range(count):
        amount = (i / count) ** 1.5
        points, tetrahedra = departures(0.25 * amount, 0.15 * amount * generator.random(), generator)
        features.append(element_metrics(points, tetrahedra).mean(0))
        labels.append(accuracy(points, tetrahedra))
    return np.array(features), np.array(labels)
