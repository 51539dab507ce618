#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds with each compiler, in each build type, with shared and with static libraries; a warning fails. Installs
# each and builds and runs consumers on the install. The whole suite runs where SUITE names the combination.
#   [COMPILERS='gcc clang'] [TYPES='Debug Release'] [LINKS='shared static'] [SUITE='gcc-Release-static'] scripts/matrix.sh [CMAKE_OPTION...]
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(scripts/setup.sh --print-onnxruntime-root)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
quietly() { "$@" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }; }

one() { # COMPILER TYPE LINK [OPTION...]
  local name=$1-$2-$3 type=$2 build=$PWD/build-matrix/$1-$2-$3 cc=gcc cxx=g++ shared=ON tests=OFF consumer
  if [ "$1" = clang ]; then cc=clang cxx=clang++; fi
  if [ "$3" = static ]; then shared=OFF; fi
  case " ${SUITE:-} " in *" $name "*) tests=ON ;; esac
  shift 3
  rm -rf "$build"
  quietly cmake -G Ninja -S . -B "$build" "-DCMAKE_C_COMPILER=$cc" "-DCMAKE_CXX_COMPILER=$cxx" "-DCMAKE_BUILD_TYPE=$type" \
    "-DBUILD_SHARED_LIBS=$shared" "-DDATAMANAGER_BUILD_TESTS=$tests" \
    "-DONNXRUNTIME_ROOT=$root" "$@"
  quietly cmake --build "$build" ${JOBS:+-j "$JOBS"}
  if grep -q 'warning:' "$log"; then cat "$log" >&2; exit 1; fi
  quietly cmake --install "$build" --prefix "$build/prefix"
  for consumer in installed pkgconfig; do
    quietly env DATAMANAGER_DEPS_DIR=/nonexistent cmake -G Ninja -S "tests/consumers/$consumer" \
      -B "$build/consumers/$consumer" "-DCMAKE_PREFIX_PATH=$build/prefix" "-DCMAKE_CXX_COMPILER=$cxx" \
      "-DCMAKE_C_COMPILER=$cc" "-DCMAKE_BUILD_TYPE=$type"
    quietly cmake --build "$build/consumers/$consumer"
    (cd "$build" && quietly env QT_QPA_PLATFORM=offscreen "consumers/$consumer/consumer")
    grep -q 'consumer: ok' "$log" || { cat "$log" >&2; exit 1; }
  done
  if [ -x "$build/prefix/bin/meshquality" ]; then
    "$build/prefix/bin/meshquality" report samples/slivers.msh | sed '1d' >"$build/report"
  fi
  if [ "$tests" = ON ]; then (cd "$build" && quietly ctest -j "$(nproc)" --output-on-failure); fi
  echo "$name: ok"
}

for compiler in ${COMPILERS:-gcc clang}; do
  for type in ${TYPES:-Debug Release}; do
    for link in ${LINKS:-shared static}; do
      one "$compiler" "$type" "$link" "$@"
    done
  done
done
# The same figures from all of them.
{ sha256sum build-matrix/*/report 2>/dev/null || true; } | cut -d' ' -f1 | sort -u | wc -l | grep -qx '[01]' ||
  { echo "matrix: reports differ: build-matrix/*/report" >&2; exit 1; }
