#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Runs tests that create every manager under valgrind's memcheck: any error, and any memory that nothing points at when
# the process ends, fails. Singletons are never destroyed, so what they still point at is no leak. Needs valgrind.
#   scripts/memcheck.sh [TEST...]     these tests instead of the usual ones
set -euo pipefail
cd "$(dirname "$0")/.."
command -v valgrind >/dev/null 2>&1 || { echo "memcheck: install valgrind first" >&2; exit 1; }
tests=("$@")
[ $# -gt 0 ] || tests=(
  tst_processlife tst_casedata tst_geometrydata tst_idaigeometrymanager tst_idaimeshmanager tst_interactionmanager
  tst_recordreader tst_singleton
  tst_selecteddatamanager tst_selectmodelswitch tst_recordpool tst_selectionreentrancy tst_selectionatexit
  tst_selectionsignalstate
  tst_materiallibrarymanager tst_examplelibrarymanager tst_materialimport tst_materialfiles tst_materiallisteners
  tst_unreadablelibraries tst_keptcopy
  tst_relativecoordinatesystem tst_relativecoordinatesystemdate tst_relativecoordinatesystemdatemanager
  tst_coordinatesystemfile tst_coordinatelisteners
  tst_modelinference tst_cipherfailures tst_ibasesignal tst_globalhelper)
scripts/build.sh release build "${tests[@]}"

logs=$PWD/build/memcheck
mkdir -p "$logs"
# Children too: some tests start themselves.
options="--quiet --trace-children=yes --num-callers=30 --suppressions=$PWD/tests/memcheck-suppressions.txt
  --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite --error-exitcode=99"
# What Qt compiles regular expressions to reads ahead of its input, interpreted they do not; GLib's event loop keeps
# something of each thread that ends.
export QT_QPA_PLATFORM=offscreen QT_ENABLE_REGEXP_JIT=0 QT_NO_GLIB=1 QTEST_FUNCTION_TIMEOUT=3600000

check() { # TEST
  rm -f "$logs/$1".*
  # shellcheck disable=SC2086
  if (cd "build/tests/$1" && valgrind $options --log-file="$logs/$1.%p" "bin/$1" >"$logs/$1.output" 2>&1) &&
      ! cat "$logs/$1".[0-9]* | grep -q .; then
    echo "memcheck: $1: nothing"
    return
  fi
  cat "$logs/$1".[0-9]* >&2
  grep -E '^(FAIL|Totals)|Loc:' "$logs/$1.output" >&2 || true
  echo "memcheck: $1 failed, see $logs" >&2
  return 1
}
export -f check
export logs options
printf '%s\n' "${tests[@]}" | xargs -n 1 -P "$(nproc)" bash -c 'set -euo pipefail; check "$0"'
