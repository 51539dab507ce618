# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""The quantity the score predicts: how well linear elements on a mesh follow quadratic fields.

A field u = x'Hx/2 has a random symmetric H (independent normal entries, variance 1 on the diagonal and 1/2 beside it,
which makes its law the same in every orientation). On one tetrahedron with its centroid at the origin, the gradient of
u less that of its linear interpolant is Hx - g with g = 1/2 sum_i (x_i'H x_i) grad(lambda_i). The mean over the element
and over H of the squared length is, exactly,

    2 trace(C) + 1/4 sum_ij grad(lambda_i).grad(lambda_j) (x_i.x_j)^2,     C = 1/20 sum_i x_i x_i'.

So no fields are drawn: the root-mean-square error over all of them is a closed form (check_label.py draws some).

The score predicts how many times that error, in the geometric mean over the elements, exceeds that of regular
tetrahedra of the same volumes: by so much their edges are too long, because the error grows with the edge length.
"""
import numpy as np

from tetrahedron_metrics import volumes


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


WAYS = ["", "Mean", "Rms", "Even"]
REGULAR = np.array([[[1, 1, 1], [1, -1, -1], [-1, 1, -1], [-1, -1, 1.0]]])


def ideal_constant():
    """The squared error of regular tetrahedra, divided by (volume per element)^(2/3)."""
    error, volume = mean_square_errors(REGULAR)
    return error[0] / abs(volume[0]) ** (2 / 3)


def local_volumes(tetrahedra, volume, points):
    """The mean volume of the elements round each, its own among them, those with several common nodes counted so often;
    scaled so that ideal elements of these volumes, filling the same space, are as many as the mesh has."""
    nodes = np.bincount(tetrahedra.ravel(), np.repeat(volume, 4), points)
    times = np.bincount(tetrahedra.ravel(), minlength=points)
    local = nodes[tetrahedra].sum(1) / times[tetrahedra].sum(1)
    return local * (volume / local).sum() / len(volume)


def compare(error, volume, local, constant):
    """Mean square errors [m] of elements against those of regular tetrahedra, constant V^(2/3), in four ways: what the
    score means; the mean error and the root mean square where ideal elements of the local volumes would all have the
    same share in it; and the root mean square over the plain volume against equally large ones."""
    share, ratio = volume / local / len(volume), error / (constant * local ** (2 / 3))
    even = constant * (volume.sum() / len(volume)) ** (2 / 3) * volume.sum() / (error * volume).sum()
    with np.errstate(invalid="ignore", divide="ignore"):
        excess = np.log(error / (constant * volume ** (2 / 3))) / 2
    return {"": np.exp(-excess.mean()), "Mean": 1 / (share * np.sqrt(ratio)).sum(),
            "Rms": (share * ratio).sum() ** -0.5, "Even": even ** 0.5}


def accuracies(points, tetrahedra):
    """The four of compare() for the interpolation error; NaN where an element is flat or inverted."""
    if not (volumes(points, tetrahedra) > 0).all():
        return dict.fromkeys(WAYS, np.nan)
    error, volume = mean_square_errors(points[tetrahedra])
    return compare(error, volume, local_volumes(tetrahedra, volume, len(points)), ideal_constant())


def accuracy(points, tetrahedra):
    """What the score predicts, in [0, 1]: the geometric mean over the elements of ideal error / own error."""
    return float(accuracies(points, tetrahedra)[""])
