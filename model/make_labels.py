#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Measures the meshes of make_meshes.py: make_labels.py FOLDER. Goes on where it was stopped."""
import json
import pathlib
import sys

from accuracy_label import accuracies
from mesh_file import read_mesh
from tetrahedron_metrics import FEATURES, element_metrics


def measured(points, tetrahedra):
    smallest = element_metrics(points, tetrahedra)[:, FEATURES.index("ScaledJacobian")].min()
    return {"minScaledJacobian": float(smallest),
            **{"accuracy" + name: float(value) for name, value in accuracies(points, tetrahedra).items()}}


def main():
    folder = pathlib.Path(sys.argv[1])
    out = folder / "labels.jsonl"
    done = {json.loads(line)["mesh"] for line in out.read_text().splitlines()} if out.exists() else set()
    for line in (folder / "meshes.jsonl").read_text().splitlines():
        mesh = json.loads(line)["mesh"]
        if mesh not in done:
            labels = measured(*read_mesh(folder / mesh))
            with open(out, "a", encoding="ascii") as stream:
                stream.write(json.dumps({"mesh": mesh, **labels}) + "\n")


if __name__ == "__main__":
    main()
