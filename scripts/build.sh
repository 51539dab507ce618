#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Sets up what is missing and builds one preset; quiet unless something is done or fails.
#   scripts/build.sh PRESET DIRECTORY [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1 directory=$2
shift 2

root=$(scripts/setup.sh --print-onnxruntime-root)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() { "$@" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }; }

if [ ! -f "$directory/build.ninja" ]; then
  echo "configuring $directory" >&2
  # Others' headers are compiled once, unless CMAKE_CXX_COMPILER_LAUNCHER names a cache, which knows every source.
  headers=ON
  [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] || headers=OFF
  quietly cmake --preset "$preset" ${root:+"-DONNXRUNTIME_ROOT=$root"} "-DDATAMANAGER_PRECOMPILED_HEADERS=$headers"
fi
ninja -C "$directory" -n "$@" | grep -q 'no work to do' || echo "building $directory (the first time takes minutes)" >&2
quietly cmake --build "$directory" --target "${@:-all}"
