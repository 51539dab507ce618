#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Runs a program with windows on a virtual display of its own, drawn in software, and returns its exit code.
#   scripts/with-display.sh PROGRAM [ARG...]
set -euo pipefail
work=$(mktemp -d)
number=$work/number
Xvfb -displayfd 9 -screen 0 1600x1000x24 -nolisten tcp -noreset 9>"$number" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null; rm -rf "$work"' EXIT
for _ in $(seq 200); do
  [ -s "$number" ] && break
  kill -0 "$server" 2>/dev/null || { echo "with-display: Xvfb did not start" >&2; exit 1; }
  sleep 0.05
done
export DISPLAY=":$(cat "$number")" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1
unset WAYLAND_DISPLAY
code=0
"$@" || code=$?
exit "$code"
