# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""What the graph does to the features before the network sees them, in double precision.

Volume and Jacobian are the same quantity twice, and say only how large an element is; they are left out.
"""
import numpy as np

from tetrahedron_metrics import FEATURES

USED = [FEATURES.index(name) for name in ["EdgeRatio", "AspectRatio", "AspectGamma", "Condition", "RadiusRatio",
                                          "RelativeSizeSquared", "ScaledJacobian", "Shape", "ShapeAndSize"]]
BETTER_WHEN_HIGH = np.array([-1, -1, -1, -1, -1, 1, 1, 1, 1.0])
TINY = 1e-12


def logarithms(features):
    return np.log(np.maximum(np.asarray(features, dtype=float)[:, USED], TINY))
