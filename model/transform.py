# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""What the graph does to the features before the network sees them, in double precision.

Volume and Jacobian are the same quantity twice, and say only how large an element is; they are left out.
"""
import numpy as np

from tetrahedron_metrics import FEATURES

USED = [FEATURES.index(name) for name in ["EdgeRatio", "AspectRatio", "AspectGamma", "Condition", "RadiusRatio",
                                          "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"]]
# What the network reads. The means of the others run away with a handful of nearly flat elements, and so did the score
# when these were moved; and RadiusRatio and Condition depend on the order of the corners. They still bound the range.
ROBUST = ["EdgeRatio", "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"]
# Of two meshes, the one with the higher value is the better one, or with -1 the worse.
BETTER_WHEN_HIGH = np.array([-1, -1, -1, -1, -1, 1, 1, 1, 1.0])


def logarithms(features):
    return np.log(np.asarray(features, dtype=float)[:, USED])
