#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Makes meshes of about 0.1, 0.5 and 2 million tetrahedra with Gmsh, for bench_meshquality.
#   make_meshes.sh DIRECTORY
set -euo pipefail
directory=$1
mkdir -p "$directory"
geometry=$directory/box.geo
cat > "$geometry" <<'GEO'
SetFactory("OpenCASCADE");
Box(1) = {0, 0, 0, 1, 1, 1};
Physical Volume("solid") = {1};
GEO
for mesh in "0.1M 0.0364" "0.5M 0.0210" "2M 0.0131"; do
  read -r name size <<< "$mesh"
  gmsh "$geometry" -3 -clmin "$size" -clmax "$size" -format msh22 -o "$directory/$name.msh" -v 2
done
