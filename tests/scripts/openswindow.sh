#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Starts the workbench with a mesh, waits until its window is seen and the mesh lies where the predictor reads it, and
# ends it by SIGTERM. Needs a display (scripts/with-display.sh). The command may be a script that becomes the program.
#   openswindow.sh APPLICATION MESH COMMAND [ARG...]      APPLICATION: the directory with the program's bin/ and temp/
set -euo pipefail
application=$1 mesh=$2
shift 2

work=$(mktemp -d)
program=
finish() {
  if [ -n "$program" ]; then kill -KILL "$program" 2>/dev/null || true; fi
  rm -rf "$work"
}
trap finish EXIT
fail() {
  echo "openswindow: $1" >&2
  cat "$work/output" >&2
  exit 1
}

# Windows by their class, which is the program's name; those that it has for itself are not seen.
is_window_seen() {
  local id
  for id in $(xwininfo -root -tree 2>/dev/null | grep -F '("workbench" "workbench")' | grep -oE '0x[0-9a-f]+' || true); do
    if xwininfo -id "$id" 2>/dev/null | grep -q 'Map State: IsViewable'; then return 0; fi
  done
  return 1
}
is_mesh_there() { cmp -s "$mesh" "$application/temp/mesh.msh"; }
wait_for() { # WHAT COMMAND
  for _ in $(seq 600); do
    if "$2"; then return; fi
    kill -0 "$program" 2>/dev/null || fail "it ended before its $1 was there"
    sleep 0.1
  done
  fail "its $1 is not there after a minute"
}

rm -f "$application/temp/mesh.msh"
env -u DATAMANAGER_LANGUAGE HOME="$work" XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work/cache" \
  QT_LOGGING_RULES=qt.qpa.xcb.warning=false "$@" "$mesh" >"$work/output" 2>&1 &
program=$!
wait_for window is_window_seen
wait_for mesh is_mesh_there

kill -TERM "$program"
code=0
wait "$program" || code=$?
program=
[ "$code" -eq 0 ] || fail "it ended with $code"
[ ! -s "$work/output" ] || fail "it printed"
[ -z "$(ls -A "$work/cache/DataManager/workbench/projects")" ] || fail "it left its working directory behind"
