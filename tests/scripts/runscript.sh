#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Runs run.sh in a tree of its own, in which nothing needs to be built: its build.sh notes how it is called, its
# meshquality tells how, its workbench is the real one.
#   runscript.sh SOURCE [WORKBENCH]
set -euo pipefail
source=$1 workbench=${2:-}

tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
expect() { # WHAT EXPECTED FOUND
  [ "$2" = "$3" ] || { printf 'run.sh: %s: expected "%s", found "%s"\n' "$1" "$2" "$3" >&2; exit 1; }
}

mkdir -p "$tree/scripts" "$tree/build/bin/ConfigFiles" "$tree/build/temp" "$tree/elsewhere"
cp "$source/run.sh" "$tree"
cat >"$tree/scripts/build.sh" <<'END'
#!/bin/sh
echo "$@" >>"$(dirname "$0")/calls"
[ ! -e "$(dirname "$0")/broken" ]
END
cat >"$tree/build/bin/meshquality" <<'END'
#!/bin/sh
printf '%s|' "$PWD" "$@"
exit 1
END
chmod +x "$tree/scripts/build.sh" "$tree/build/bin/meshquality"

cd "$tree/elsewhere"
code=0
told=$("$tree/run.sh") || code=$?
expect "without arguments" "$tree|report|samples/plate-with-hole.msh|" "$told"
expect "exit code" 1 "$code"
[ -f "$source/samples/plate-with-hole.msh" ]
told=$("$tree/run.sh" check --json "a mesh.msh" '') || true
expect "with arguments" "$tree/elsewhere|check|--json|a mesh.msh||" "$told"
expect "what is built" "release build release build" "$(paste -sd ' ' "$tree/scripts/calls")"

touch "$tree/scripts/broken"
code=0
told=$("$tree/run.sh" report a.msh) || code=$?
expect "exit code of a build that fails" 1 "$code"
expect "what is run when it fails" "" "$told"
rm "$tree/scripts/broken"

if [ -n "$workbench" ]; then
  cp "$workbench" "$tree/build/bin/workbench"
  cp "$source/samples/libraries/MaterialLibrary.json" "$tree/build/bin/ConfigFiles"
  "$source/scripts/with-display.sh" "$source/tests/scripts/openswindow.sh" "$tree/build" "$source/samples/slivers.msh" \
    "$tree/run.sh" workbench
fi
