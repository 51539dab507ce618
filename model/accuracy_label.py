# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""The quantity the score predicts: how well linear elements on a mesh follow quadratic fields.

A field u = x'Hx/2 has a random symmetric H (independent normal entries, variance 1 on the diagonal and 1/2 beside it,
which makes its law the same in every orientation). On one tetrahedron with its centroid at the origin, the gradient of
u less that of its linear interpolant is Hx - g with g = 1/2 sum_i (x_i'H x_i) grad(lambda_i). The mean over the element
and over H of the squared length is, exactly,

    2 trace(C) + 1/4 sum_ij grad(lambda_i).grad(lambda_j) (x_i.x_j)^2,     C = 1/20 sum_i x_i x_i'.

So no fields are drawn: the root-mean-square error over all of them is a closed form (check_label.py draws some).
"""
import numpy as np


def barycentric_gradients(corners):
    """Gradients [m, 4, 3] of the four barycentric coordinates, and the signed volumes [m]."""
    sides = corners[:, 1:] - corners[:, :1]
    inverse = np.linalg.inv(sides)
    gradients = np.empty_like(corners)
    gradients[:, 1:] = np.swapaxes(inverse, 1, 2)
    gradients[:, 0] = -gradients[:, 1:].sum(1)
    return gradients, np.linalg.det(sides) / 6


def mean_square_errors(corners):
    """Mean over each element and over all fields of |grad(u - interpolant)|^2 [m], and the volumes [m]."""
    size = np.cbrt(np.abs(np.linalg.det(corners[:, 1:] - corners[:, :1])).mean())
    scaled = corners / size  # keeps 1e-6 and 1e6 in comfortable numbers
    gradients, volume = barycentric_gradients(scaled)
    centred = scaled - scaled.mean(1, keepdims=True)
    products = centred @ np.swapaxes(centred, 1, 2)
    spread = 2 * np.trace(products, axis1=1, axis2=2) / 20
    bias = 0.25 * ((gradients @ np.swapaxes(gradients, 1, 2)) * products ** 2).sum((1, 2))
    return (spread + bias) * size ** 2, volume * size ** 3


REGULAR = np.array([[[1, 1, 1], [1, -1, -1], [-1, 1, -1], [-1, -1, 1.0]]])


def ideal_constant():
    """The squared error of regular tetrahedra, divided by (volume per element)^(2/3)."""
    error, volume = mean_square_errors(REGULAR)
    return error[0] / abs(volume[0]) ** (2 / 3)


def accuracy(points, tetrahedra):
    """Ideal error / own error in [0, 1]; NaN where an element is flat or inverted."""
    error, volume = mean_square_errors(points[tetrahedra])
    if not (volume > 0).all():
        return np.nan
    own = (error * volume).sum() / volume.sum()
    ideal = ideal_constant() * (volume.sum() / len(volume)) ** (2 / 3)
    return float(np.sqrt(ideal / own))


def size_share(points, tetrahedra):
    """What regular tetrahedra of these same volumes would reach: the part of the accuracy that uneven sizes cost."""
    volume = np.linalg.det(points[tetrahedra[:, 1:]] - points[tetrahedra[:, :1]])
    volume = np.abs(volume)
    return float(((volume / volume.mean()) ** (5 / 3)).mean() ** -0.5)
