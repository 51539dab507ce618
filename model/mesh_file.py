# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Reads and writes the tetrahedra of an MSH 2.2 ASCII file with contiguous node numbers and two tags."""
import numpy as np


def read_mesh(path):
    """Returns (points [n, 3], tetrahedra [m, 4], zero-based)."""
    with open(path, encoding="ascii", errors="replace") as stream:
        lines = stream.read().split("\n")
    start, end = lines.index("$Nodes") + 2, lines.index("$EndNodes")
    points = np.array([line.split(" ")[1:4] for line in lines[start:end]], dtype=float)
    start, end = lines.index("$Elements") + 2, lines.index("$EndElements")
    rows = (line.split(" ") for line in lines[start:end])
    corners = [row[5:9] for row in rows if row[1] == "4"]
    return points.reshape(-1, 3), np.array(corners, dtype=np.int64).reshape(-1, 4) - 1


def write_mesh(path, points, tetrahedra):
    with open(path, "w", encoding="ascii") as stream:
        stream.write(f"$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n{len(points)}\n")
        stream.writelines(f"{i} {x!r} {y!r} {z!r}\n" for i, (x, y, z) in enumerate(points.tolist(), 1))
        stream.write(f"$EndNodes\n$Elements\n{len(tetrahedra)}\n")
        stream.writelines(f"{i} 4 2 1 1 {a} {b} {c} {d}\n"
                          for i, (a, b, c, d) in enumerate((np.asarray(tetrahedra) + 1).tolist(), 1))
        stream.write("$EndElements\n")
