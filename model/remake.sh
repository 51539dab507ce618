#!/bin/sh
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Remakes data, model, judgement and plots: model/remake.sh FOLDER [MESHQUALITY]. Hours of one core, gigabytes in
# FOLDER; stopped and started again it goes on. MESHQUALITY defaults to the program in build/bin.
set -eu
[ $# -ge 1 ] || { echo "usage: $0 FOLDER [MESHQUALITY]" >&2; exit 2; }
folder=$1
here=$(cd "$(dirname "$0")" && pwd)
program=${2:-$here/../build/bin/meshquality}
export OMP_NUM_THREADS=1
python3 "$here/make_meshes.py" "$folder"
python3 "$here/make_labels.py" "$folder"
python3 "$here/field_solves.py" "$folder"
python3 "$here/make_table.py" "$folder" "$here/data/meshes.csv" "$program"
python3 "$here/make_jitter.py" "$folder" "$here/data/meshes.csv" "$here/data/jitter.csv"
python3 "$here/train.py"
python3 "$here/expected_scores.py"
python3 "$here/judge.py" > "$here/data/judgement.md"
python3 "$here/invariants.py" "$folder" | tee "$here/data/invariants.txt"
python3 "$here/plots.py"
