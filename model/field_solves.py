#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""The second labels, from real solves: field_solves.py FOLDER. Goes on where it was stopped.

Unseen families, every second run of Gmsh, meshes of up to 8,000 elements: the Poisson equation and linear elasticity
(Poisson ratio 0.3) are solved with linear elements for quadratic solutions given on the boundary. The error is a
quadratic form of the solution's Hessian, so its sum over an orthonormal basis of symmetric Hessians (6, and 18 for
the vector field) is the mean over all random ones. The labels hold the errors of the solve against the interpolation
errors of regular tetrahedra in the same norm, in the ways of accuracy_label.compare().
"""
import json
import pathlib
import sys

import numpy as np
from scipy.sparse import coo_matrix
from scipy.sparse.linalg import splu

from accuracy_label import REGULAR, barycentric_gradients, compare, local_volumes
from mesh_file import read_mesh
from split import TEST_FAMILIES

LAME, SHEAR = 0.3 / (1.3 * 0.4), 1 / 2.6
MOST_ELEMENTS, EVERY = 8000, 2
# Symmetric four-point rule: exact here, where the squared error is quadratic.
RULE = np.full((4, 4), 0.1381966011250105) + 0.4472135954999579 * np.eye(4)


def hessian_basis():
    basis = []
    for i in range(3):
        for j in range(i + 1):
            matrix = np.zeros((3, 3))
            matrix[i, j] = matrix[j, i] = 1 if i == j else np.sqrt(0.5)
            basis.append(matrix)
    return np.array(basis)


BASIS = hessian_basis()


def scalar_density(gradient):
    return (gradient ** 2).sum(-1)


def elastic_density(gradient):
    symmetric = (gradient + np.swapaxes(gradient, -1, -2)) / 2
    return LAME * np.trace(gradient, axis1=-2, axis2=-1) ** 2 + 2 * SHEAR * (symmetric ** 2).sum((-1, -2))


def scalar_fields():
    """Hessians [fields, components = 1, 3, 3]."""
    return BASIS[:, None]


def vector_fields():
    fields = np.zeros((18, 3, 3, 3))
    for component in range(3):
        fields[6 * component:6 * component + 6, component] = BASIS
    return fields


def values_at(points, hessians):
    return 0.5 * np.einsum("na,cab,nb->nc", points, hessians, points)


def square_errors(points, tetrahedra, values, hessians, density):
    """Mean over each element [m] of the density of the error's gradient, for nodal values [n, components]."""
    corners = points[tetrahedra]
    gradients, _ = barycentric_gradients(corners)
    own = np.einsum("mia,mic->mca", gradients, values[tetrahedra])
    places = np.einsum("qi,mia->mqa", RULE, corners)
    error = np.einsum("cab,mqb->mqca", hessians, places) - own[:, None]
    return density(error if len(hessians) == 3 else error[:, :, 0]).mean(1)


def scalar_stiffness(gradients, volume):
    return np.einsum("mia,mja,m->mij", gradients, gradients, volume)[:, :, None, :, None]


def elastic_stiffness(gradients, volume):
    products = np.einsum("mia,mjb->miajb", gradients, gradients)
    along = np.einsum("miaja->mij", products)
    whole = LAME * products + SHEAR * np.swapaxes(products, 2, 4)
    for component in range(3):
        whole[:, :, component, :, component] += SHEAR * along
    return whole * volume[:, None, None, None, None]


def scalar_load(hessians):
    return -np.trace(hessians, axis1=1, axis2=2)


def elastic_load(hessians):
    return -SHEAR * np.trace(hessians, axis1=1, axis2=2) - (LAME + SHEAR) * np.einsum("jji->i", hessians)


def assemble(blocks, tetrahedra, components, count):
    unknowns = (tetrahedra[:, :, None] * components + np.arange(components)).reshape(len(tetrahedra), -1)
    width = unknowns.shape[1]
    rows, columns = np.repeat(unknowns, width, 1).ravel(), np.tile(unknowns, (1, width)).ravel()
    return coo_matrix((blocks.reshape(-1), (rows, columns)), shape=(count, count)).tocsc()


def inner_nodes(tetrahedra, count):
    faces = np.sort(np.concatenate([np.delete(tetrahedra, k, 1) for k in range(4)]), axis=1)
    unique, times = np.unique(faces, axis=0, return_counts=True)
    return np.setdiff1d(np.unique(tetrahedra), unique[times == 1])


def solve_errors(points, tetrahedra, fields, stiffness, load, density):
    """Mean square errors [m] of the finite-element solutions, summed over the fields."""
    components = fields.shape[1]
    gradients, volume = barycentric_gradients(points[tetrahedra])
    matrix = assemble(stiffness(gradients, volume), tetrahedra, components, components * len(points))
    inner = (inner_nodes(tetrahedra, len(points))[:, None] * components + np.arange(components)).ravel()
    factor = splu(matrix[inner][:, inner]) if len(inner) else None
    share = np.bincount(tetrahedra.ravel(), np.repeat(volume / 4, 4), len(points))
    total = 0.0
    for hessians in fields:
        values = values_at(points, hessians)
        if factor is not None:
            force = (share[:, None] * load(hessians)).ravel()
            flat = values.ravel()  # a view: the exact values stay on the boundary
            flat[inner] += factor.solve((force - matrix @ flat)[inner])
        total = total + square_errors(points, tetrahedra, values, hessians, density)
    return total


def ideal_error(fields, density):
    """Mean square interpolation error of a regular tetrahedron of unit volume."""
    corners = np.array([[0, 2, 1, 3]])
    points = REGULAR[0] / np.cbrt(8 / 3)
    return sum(square_errors(points, corners, values_at(points, h), h, density)[0] for h in fields)


PROBLEMS = {"poisson": (scalar_fields(), scalar_stiffness, scalar_load, scalar_density),
            "elasticity": (vector_fields(), elastic_stiffness, elastic_load, elastic_density)}
IDEAL = {name: ideal_error(problem[0], problem[3]) for name, problem in PROBLEMS.items()}


def solved_accuracy(points, tetrahedra):
    points = points - points.mean(0)
    points = points / np.abs(points).max()
    volume = barycentric_gradients(points[tetrahedra])[1]
    local, labels = local_volumes(tetrahedra, volume, len(points)), {}
    for name, problem in PROBLEMS.items():
        found = compare(solve_errors(points, tetrahedra, *problem), volume, local, IDEAL[name])
        labels.update({name + way: float(value) for way, value in found.items()})
    return labels


def main():
    folder = pathlib.Path(sys.argv[1])
    out = folder / "solves.jsonl"
    done = {json.loads(line)["mesh"] for line in out.read_text().splitlines()} if out.exists() else set()
    for line in (folder / "meshes.jsonl").read_text().splitlines():
        row = json.loads(line)
        wanted = row["family"] in TEST_FAMILIES and row["elements"] <= MOST_ELEMENTS
        if row["mesh"] in done or not wanted or int(row["mesh"][:4]) % EVERY:
            continue
        try:
            labels = solved_accuracy(*read_mesh(folder / row["mesh"]))
        except np.linalg.LinAlgError:
            continue  # an element flat to the last digit; make_table.py leaves such meshes out
        with open(out, "a", encoding="ascii") as stream:
            stream.write(json.dumps({"mesh": row["mesh"], **labels}) + "\n")


if __name__ == "__main__":
    main()
