# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Geometry families: each is a function of a random generator that returns (Gmsh geometry text, approximate volume).

The text uses the OpenCASCADE kernel; every length is of order one. A family's name is its function's name.
"""
from . import drilled, fitted, gapped, machined, organic, solids, swept, thin


def _families_of(*modules):
    return {name: function for module in modules for name, function in vars(module).items()
            if callable(function) and getattr(function, "__module__", "") == module.__name__
            and not name.startswith("_")}


# In the order in which they were added: meshes are numbered block by block, so that those made before stay as they are.
BLOCKS = [_families_of(solids, drilled, thin, gapped, swept, organic), _families_of(machined), _families_of(fitted)]
FAMILIES = {name: function for block in BLOCKS for name, function in block.items()}
