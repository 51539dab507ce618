#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Writes what the suite expects of mesh.onnx: the scores of the sample meshes, without the library and its runtime.

Mesh reader, features and evaluation of the graph are those of this folder, on numpy. To be run whenever mesh.onnx or a
sample mesh has changed.
"""
import hashlib
import json
import pathlib

from evaluate import SHIPPED, scores
from mesh_file import read_mesh
from tetrahedron_metrics import mean_features

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGET = ROOT / "tests" / "meshquality" / "shipped-model" / "expected-scores.json"


def main():
    meshes = sorted((ROOT / "samples").glob("*.msh"))
    expected = {
        "madeBy": "model/expected_scores.py",
        "modelSha256": hashlib.sha256(SHIPPED.read_bytes()).hexdigest(),
        "scores": {mesh.name: round(float(scores(mean_features(*read_mesh(mesh)))[0]), 9) for mesh in meshes},
    }
    TARGET.parent.mkdir(exist_ok=True)
    TARGET.write_text(json.dumps(expected, indent=2) + "\n", encoding="ascii")


if __name__ == "__main__":
    main()
