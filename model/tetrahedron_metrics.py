# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""The eleven mean features, written a second time with arrays: an independent check of the library's own."""
import numpy as np

FEATURES = ["Volume", "EdgeRatio", "AspectRatio", "AspectGamma", "Condition", "Jacobian", "RadiusRatio",
            "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"]


def dot(a, b):
    return np.einsum("ij,ij->i", a, b)


def length(a):
    return np.sqrt(dot(a, a))


def edges(points, tetrahedra):
    p0, p1, p2, p3 = (points[tetrahedra[:, k]] for k in range(4))
    return p1 - p0, p2 - p1, p0 - p2, p3 - p0, p3 - p1, p3 - p2


def volumes(points, tetrahedra):
    l = edges(points, tetrahedra)
    return dot(np.cross(l[2], l[0]), l[3]) / 6


def condition(l0, l2, l3):
    c1, c2, c3 = l0, (-2 * l2 - l0) / np.sqrt(3), 3 * l3 + l2 - l0
    term1 = dot(c1, c1) + dot(c2, c2) + dot(c3, c3)
    crosses = np.cross(c1, c2), np.cross(c2, c3), np.cross(c1, c3)
    return np.sqrt(term1 * sum(dot(c, c) for c in crosses)) / (3 * dot(crosses[1], c1))


def scaled_jacobian(n, jacobian):
    products = [n[0] * n[2] * n[3], n[0] * n[1] * n[4], n[1] * n[2] * n[5], n[3] * n[4] * n[5], jacobian]
    return np.sqrt(2) * jacobian / np.max(products, axis=0)


def shape(l0, l2, l3, jacobian):
    single = jacobian.astype(np.float32).astype(float)
    spread = 1.5 * (dot(l0, l0) + dot(l2, l2) + dot(l3, l3)) - (dot(l0, -l2) + dot(l3, l0) - dot(l2, l3))
    return 3 * (np.sqrt(2) * single) ** (2 / 3) / spread


def element_metrics(points, tetrahedra):
    """Returns the table [elements, 11] in the order of FEATURES."""
    with np.errstate(all="ignore"):
        l = edges(points, tetrahedra)
        n = np.array([length(e) for e in l])
        face = length(np.cross(l[2], l[0]))
        jacobian = dot(np.cross(l[2], l[0]), l[3])
        volume = jacobian / 6
        area = 0.5 * (face + length(np.cross(l[3], l[0])) + length(np.cross(l[4], l[1])) + length(np.cross(l[3], l[2])))
        inradius = 3 * volume / area
        circumradius = n[3] ** 2 * face / (12 * volume)  # the library's figure: exact for the regular shape only
        relative = volume / volume.mean()
        relative = np.minimum(relative, 1 / relative)
        shapes = shape(l[0], l[2], l[3], jacobian)
        return np.column_stack([
            volume, n.max(0) / n.min(0), n.max(0) / (2 * np.sqrt(6) * inradius),
            np.sqrt(2) * np.sqrt((n ** 2).sum(0) / 6) ** 3 / (12 * volume), condition(l[0], l[2], l[3]), jacobian,
            circumradius / (3 * inradius), relative, scaled_jacobian(n, jacobian), shapes, shapes * relative])


def mean_features(points, tetrahedra):
    return element_metrics(points, tetrahedra).mean(0).astype(np.float32)
