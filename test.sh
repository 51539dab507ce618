#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Sets up what is missing, builds, and runs the whole suite; ARGS go to ctest, for example -R selection.
#   ./test.sh [ARGS]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
"$here/scripts/build.sh" release build
cd "$here/build"
exec ctest --output-on-failure -j "$(($(nproc) + 1))" "$@"
