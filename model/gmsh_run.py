# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Draws mesher options and runs Gmsh on one geometry until the element count is near the one wanted."""
import os
import pathlib
import resource
import subprocess

from mesh_file import read_mesh
from tetrahedron_metrics import volumes

# What Debian's Gmsh is built with; its frontal algorithm needs a Netgen that it lacks.
ALGORITHMS = {"delaunay": 1, "hxt": 10, "initial": 3}
SECONDS = 20  # of processor time, so that a busy machine makes the same meshes; 50,000 elements take three
# HXT's meshes depend on addresses and on memory it has not written: with both fixed, they repeat.
COMMAND = ["setarch", "-R", "gmsh", "-", "-v", "1", "-nt", "1", "-rand", "1e-9", "-save", "-format", "msh22",
           "-o", "one.msh", "one.geo"]
ENVIRONMENT = {"PATH": os.environ["PATH"], "MALLOC_PERTURB_": "1", "LC_ALL": "C", "OMP_NUM_THREADS": "1"}


def limit_time():
    resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))


def draw_options(generator):
    """The options of one mesh, as a dictionary that can be written to a table."""
    kind = generator.random()
    low, high = (200, 4000) if kind < 0.94 else (4000, 15000) if kind < 0.985 else (15000, 50000)
    return {
        "algorithm": str(generator.choice(list(ALGORITHMS), p=[0.5, 0.38, 0.12])),
        "surface": int(generator.choice([1, 5, 6])),
        "optimise": int(generator.integers(0, 4)),  # 0 none, 1 and 3 Gmsh's own, 2 twice
        "grading": str(generator.choice(["even", "point", "linear", "curvature"], p=[0.4, 0.25, 0.2, 0.15])),
        "ratio": float(10 ** generator.uniform(0.15, 1)),
        "wanted": int(low * (high / low) ** generator.random()),
        "centre": [float(x) for x in generator.uniform(-0.5, 1, 3)],
    }


def size_text(options, size):
    ratio, (x, y, z) = options["ratio"], options["centre"]
    fine, coarse = size / ratio ** 0.5, size * ratio ** 0.5
    fields = {
        "point": f"{fine} + {coarse - fine} * Sqrt((x - ({x})) ^ 2 + (y - ({y})) ^ 2 + (z - ({z})) ^ 2)",
        "linear": f"Max({fine}, {fine} + {coarse - fine} * (x + {abs(y)} * y))",
    }
    if options["grading"] == "curvature":
        return f"Mesh.CharacteristicLengthMax = {size};\nMesh.MeshSizeFromCurvature = {int(8 + ratio)};\n"
    text = f"Mesh.CharacteristicLengthMin = {fine};\nMesh.CharacteristicLengthMax = {4 * coarse};\n"
    if options["grading"] == "even":
        return f"Mesh.CharacteristicLengthMin = {size};\nMesh.CharacteristicLengthMax = {size};\n"
    return (text + f'Field[1] = MathEval;\nField[1].F = "{fields[options["grading"]]}";\nBackground Field = 1;\n'
            "Mesh.CharacteristicLengthExtendFromBoundary = 0;\nMesh.CharacteristicLengthFromPoints = 0;\n")


def option_text(options):
    passes = "OptimizeMesh \"Gmsh\";\n" if options["optimise"] == 2 else ""
    return (f"Mesh.Algorithm = {options['surface']};\nMesh.Algorithm3D = {ALGORITHMS[options['algorithm']]};\n"
            f"Mesh.Optimize = {int(options['optimise'] > 0)};\nMesh 3;\n" + passes)


def run_once(geometry, options, size, folder):
    script, mesh = pathlib.Path(folder, "one.geo"), pathlib.Path(folder, "one.msh")
    mesh.unlink(missing_ok=True)
    parts = ['SetFactory("OpenCASCADE");', geometry, size_text(options, size), option_text(options)]
    script.write_text("\n".join(parts))
    try:
        subprocess.run(COMMAND, cwd=folder, env=ENVIRONMENT, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=False, preexec_fn=limit_time)
        points, tetrahedra = read_mesh(mesh)
    except (OSError, ValueError, IndexError):
        return None
    return (points, tetrahedra) if len(tetrahedra) and (volumes(points, tetrahedra) > 0).all() else None


def run_gmsh(geometry, volume, options, folder):
    """Returns (points, tetrahedra), or None when Gmsh makes no valid mesh of 200 to 50,000 elements."""
    size, best = (10 * volume / options["wanted"]) ** (1 / 3), None
    for attempt in range(4):
        made = run_once(geometry, options, size, folder)
        if made is None:
            if attempt == 1:
                break
            size *= 1.3
            continue
        count = len(made[1])
        if 200 <= count <= 50000:
            best = made
            if 0.4 < count / options["wanted"] < 2.5:
                break
        size *= min(2.0, max(0.4, (count / options["wanted"]) ** (1 / 3)))
    return best
