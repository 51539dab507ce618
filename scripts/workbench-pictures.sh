#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Takes the pictures of docs/workbench.md from the running program, on a virtual display.
#   scripts/workbench-pictures.sh [DIRECTORY]      where to, instead of docs/images/
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-docs/images}
scripts/build.sh release build workbench_pictures datamanager_translations
mkdir -p "$target"
scripts/with-display.sh build/bin/workbench_pictures samples "$target"
