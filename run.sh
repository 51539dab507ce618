#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Sets up what is missing, builds, and runs `meshquality ARGS`; without arguments it reports on a sample mesh.
#   ./run.sh [ARGS]
# With the word "workbench" first it opens the desktop program instead, with the project, mesh or geometry FILE.
#   ./run.sh workbench [FILE]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
"$here/scripts/build.sh" release build
if [ "${1:-}" = workbench ]; then
  shift
  exec "$here/build/bin/workbench" "$@"
fi
if [ $# -eq 0 ]; then
  cd "$here"
  set -- report samples/plate-with-hole.msh
fi
exec "$here/build/bin/meshquality" "$@"
