#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Sets up what is missing, builds, and runs `meshquality ARGS`; without arguments it reports on a sample mesh.
#   ./run.sh [ARGS]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
"$here/scripts/build.sh" release build
if [ $# -eq 0 ]; then
  cd "$here"
  set -- report samples/plate-with-hole.msh
fi
exec "$here/build/bin/meshquality" "$@"
