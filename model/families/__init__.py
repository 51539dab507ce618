# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
"""Geometry families: each is a function of a random generator that returns (Gmsh geometry text, approximate volume).

The text uses the OpenCASCADE kernel; every length is of order one. A family's name is its function's name.
"""
from . import drilled, gapped, organic, solids, swept, thin

MODULES = [solids, drilled, thin, gapped, swept, organic]
FAMILIES = {name: function for module in MODULES for name, function in vars(module).items()
            if callable(function) and getattr(function, "__module__", "") == module.__name__
            and not name.startswith("_")}
