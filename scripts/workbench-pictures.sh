#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Takes the pictures of docs/workbench.md from the running program, on a virtual display. The Chinese one needs a font
# with Chinese letters, such as that of fonts-wqy-zenhei.
#   scripts/workbench-pictures.sh [DIRECTORY]      where to, instead of docs/images/
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-docs/images}
scripts/build.sh release build workbench_pictures datamanager_translations DefaultLibraries
mkdir -p "$target"
scripts/with-display.sh build/bin/workbench_pictures samples "$target"
# Fewer colours where the program for it is there: a quarter of the size.
if command -v pngquant >/dev/null 2>&1; then
  pngquant --force --ext .png --quality 60-95 --strip "$target"/workbench-*.png
fi
