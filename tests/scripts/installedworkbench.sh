#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Installs what the workbench needs, and no more, and runs it from there.
#   installedworkbench.sh SOURCE BUILD WORK CMAKE
set -euo pipefail
source=$1 build=$2 work=$3 cmake=$4

rm -rf "$work"
for component in library tools workbench; do
  "$cmake" --install "$build" --prefix "$work" --component "$component" >/dev/null
done
"$source/scripts/with-display.sh" "$source/tests/scripts/openswindow.sh" "$work" "$work/samples/slivers.msh" \
  "$work/bin/workbench"
