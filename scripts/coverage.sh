#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Line and branch coverage of the library and its siblings by the whole suite, file by file. Needs gcovr.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v gcovr >/dev/null 2>&1 || { echo "coverage: install gcovr first" >&2; exit 1; }
scripts/build.sh coverage build-coverage
find build-coverage -name '*.gcda' -delete
(cd build-coverage && ctest --output-on-failure -j "$(nproc)")
gcovr --root . --filter 'datamanager/' --filter 'platform/' --exclude-throw-branches --print-summary \
  --sort-uncovered "$@" build-coverage
