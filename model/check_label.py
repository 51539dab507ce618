#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Draws random quadratic fields on a mesh and compares their interpolation error with the closed form."""
import sys

import numpy as np

from accuracy_label import barycentric_gradients, mean_square_errors
from mesh_file import read_mesh

# Symmetric four-point rule, exact for quadratics.
RULE = np.full((4, 4), 0.1381966011250105) + 0.4472135954999579 * np.eye(4)


def sampled(corners, fields, generator):
    gradients, volume = barycentric_gradients(corners)
    total = 0.0
    for _ in range(fields):
        a = generator.normal(size=(3, 3))
        hessian = (a + a.T) / 2
        values = 0.5 * np.einsum("mia,ab,mib->mi", corners, hessian, corners)
        interpolant = np.einsum("mi,mia->ma", values, gradients)
        exact = np.einsum("qi,mia->mqa", RULE, corners) @ hessian
        total += (((exact - interpolant[:, None]) ** 2).sum(2).mean(1) * volume).sum() / volume.sum()
    return total / fields


def main():
    generator = np.random.default_rng(7)
    for path in sys.argv[1:]:
        points, tetrahedra = read_mesh(path)
        corners = points[tetrahedra]
        error, volume = mean_square_errors(corners)
        closed = (error * volume).sum() / volume.sum()
        drawn = sampled(corners, 2000, generator)
        print(f"{path}: closed form {closed:.6g}, {2000} fields {drawn:.6g}, ratio {drawn / closed:.4f}")


if __name__ == "__main__":
    main()
