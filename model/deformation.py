# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Ways to make a mesh worse, or only different, without inverting an element."""
import numpy as np

from tetrahedron_metrics import volumes

EVEN_ORDERS = np.array([[0, 1, 2, 3], [0, 2, 3, 1], [0, 3, 1, 2], [1, 0, 3, 2], [1, 2, 0, 3], [1, 3, 2, 0],
                        [2, 0, 1, 3], [2, 1, 3, 0], [2, 3, 0, 1], [3, 0, 2, 1], [3, 1, 0, 2], [3, 2, 1, 0]])
SMALLEST_SHARE = 0.02  # of its volume is left to every element by jitter


def random_direction(generator):
    direction = generator.normal(size=3)
    return direction / np.linalg.norm(direction)


def stretch(points, direction, factor):
    """Lengthens along one direction, by factor, keeping the volume."""
    along = np.outer(points @ direction, direction)
    return (points + (factor - 1) * along) / np.cbrt(factor)


def shortest_edges(points, tetrahedra):
    shortest = np.full(len(points), np.inf)
    for i in range(4):
        for j in range(i):
            distance = np.linalg.norm(points[tetrahedra[:, i]] - points[tetrahedra[:, j]], axis=1)
            np.minimum.at(shortest, tetrahedra[:, i], distance)
            np.minimum.at(shortest, tetrahedra[:, j], distance)
    return np.where(np.isfinite(shortest), shortest, 0)


def jitter(points, tetrahedra, amount, moves):
    """Moves every node by amount x its shortest edge x its row of moves, held back where an element would invert."""
    before = volumes(points, tetrahedra)
    step = amount * shortest_edges(points, tetrahedra)[:, None] * moves
    for _ in range(40):
        bad = volumes(points + step, tetrahedra) < SMALLEST_SHARE * before
        if not bad.any():
            return points + step
        step[np.unique(tetrahedra[bad])] *= 0.6
    return points


def jitter_path(points, tetrahedra, amount, moves, shares):
    """The same jitter at growing shares of its full length: every node goes straight on."""
    whole = jitter(points, tetrahedra, amount, moves) - points
    return [points + share * whole for share in shares]


def shuffle_corners(tetrahedra, generator):
    """Lists each element's corners in another order of the same orientation."""
    orders = EVEN_ORDERS[generator.integers(len(EVEN_ORDERS), size=len(tetrahedra))]
    return np.take_along_axis(tetrahedra, orders, 1)
