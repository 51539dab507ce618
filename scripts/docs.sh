#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds the API documentation into build/doxygen/html; any warning fails. Needs doxygen.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v doxygen >/dev/null 2>&1 || { echo "docs: install doxygen first" >&2; exit 1; }
rm -rf build/doxygen
mkdir -p build/doxygen
doxygen docs/Doxyfile
echo "docs: build/doxygen/html/index.html"
