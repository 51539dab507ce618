#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Habits of the sources that no compiler checks. With the commands of a build, also that no source of ours is compiled
# with casts from ASCII, Qt's keywords or its foreach.
#   scripts/check-sources.sh [compile_commands.json]
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -gt 0 ]; then commands=$1; else commands=; fi
faults=0

report() { # WHAT LINES
  if [ -n "$2" ]; then
    printf '%s:\n%s\n' "$1" "$2" | sed '2,$s/^/  /' >&2
    faults=1
  fi
}

# Files of the tree: git's where there is git, so that what a build has left is no matter.
tree() {
  { git ls-files --cached --others --exclude-standard 2>/dev/null ||
    find . -path './build*' -prune -o -type f -printf '%P\n'; } | while read -r file; do
    if [ -f "$file" ]; then printf '%s\n' "$file"; fi
  done
}
# What people write; data, fixtures and corpora may be anything.
mapfile -t all < <(tree)
mapfile -t written < <(printf '%s\n' "${all[@]}" |
  grep -E '\.(cpp|h|in|cmake|sh|py|bash|1|md|qrc|ts|json|yml)$|(^|/)(CMakeLists\.txt|Doxyfile|run)$' |
  grep -vE '^(fuzz/corpus|fuzz/.*corpus|tests/.*(fixtures|data|files|models)/|samples/.*\.json|packaging/)')
# The guide shows its program whole, as its reader would write it.
mapfile -t licensed < <(printf '%s\n' "${written[@]}" |
  grep -E '\.(cpp|h|cmake|sh|py|bash|1)$|(^|/)(CMakeLists\.txt|run)$' | grep -v '^docs/getting-started/')
mapfile -t sources < <(printf '%s\n' "${written[@]}" | grep -E '\.(cpp|h)$')
mapfile -t headers < <(printf '%s\n' "${sources[@]}" | grep -E '\.h$')
[ "${#sources[@]}" -gt 100 ] || { echo "check-sources: no sources found" >&2; exit 1; }

report "no licence header in the first four lines" "$(for file in "${licensed[@]}"; do
  head -n 4 "$file" | grep -q 'SPDX-FileCopyrightText: 2026 DataManager contributors' &&
    head -n 4 "$file" | grep -q 'SPDX-License-Identifier: BSD-3-Clause' || echo "$file"
done)"
# Documents show what programs print, blanks and tabs included.
mapfile -t texts < <(printf '%s\n' "${written[@]}" | grep -vE '\.md$')
report "blanks at the end of a line" "$(grep -nE '[[:blank:]]+$' "${texts[@]}" || true)"
report "tabs" "$(grep -nP '\t' "${texts[@]}" || true)"
report "line ends of another system" "$(grep -lP '\r$' "${written[@]}" || true)"
report "no line end at the end" "$(for file in "${written[@]}"; do
  if [ -s "$file" ] && [ -n "$(tail -c 1 "$file")" ]; then echo "$file"; fi
done)"
report "no #pragma once" "$(grep -L '^#pragma once$' "${headers[@]}" || true)"
report "using namespace in a header" "$(grep -nE '^ *using namespace' "${headers[@]}" || true)"

# Headers of ours are included from the roots, <datamanager/...>; in quotes only what lies beside the file, and in tests
# what lies below tests/ or fuzz/.
report "an include in quotes that is not beside the file" "$(grep -nE '^#include "' "${sources[@]}" |
  while IFS=: read -r file line include; do
    name=${include#*\"}
    name=${name%%\"*}
    case "$name" in *.moc) continue ;; esac
    if [ -f "$(dirname "$file")/$name" ] && [ "${name#*/}" = "$name" ]; then continue; fi
    case "$file" in tests/* | fuzz/* | benchmarks/*) if [ -f "tests/$name" ] || [ -f "fuzz/$name" ]; then continue; fi ;; esac
    echo "$file:$line: $include"
  done)"
report "an include in quotes within the library" \
  "$(printf '%s\n' "${sources[@]}" | grep -E '^(datamanager|platform|apps)/' | xargs grep -nE '^#include "[^"]*\.h"' || true)"
report "a directory upwards in an include" "$(grep -nE '^#include [<"]([^>"]*/)?\.\./' "${sources[@]}" || true)"
report "the library includes from the programs, or a sibling from the library" \
  "$({ printf '%s\n' "${sources[@]}" | grep -E '^(datamanager|platform)/' |
      xargs grep -nE '^#include <(apps|console|meshquality|materials|workbench)/'
    printf '%s\n' "${sources[@]}" | grep -E '^platform/' | xargs grep -nE '^#include <datamanager/'; } || true)"
# The workbench's views talk through managers; only the main window, which places them, knows them.
window=apps/workbench/window/MainWindow
mapfile -t views < <(sed -nE 's|^#include <(workbench/[^>]*)>.*|apps/\1|p' "$window"*.cpp "$window.h" | sort -u |
  xargs grep -lE '^class [A-Za-z0-9_]+ : public Q[A-Za-z]*(Widget|View|Frame)$')
[ "${#views[@]}" -gt 0 ] || { echo "check-sources: no views found in $window" >&2; exit 1; }
report "a view is known beside its own sources and the main window" "$(for view in "${views[@]}"; do
  printf '%s\n' "${sources[@]}" | grep -E '^apps/' | grep -vE "^(${view%.h}|$window)[A-Za-z0-9]*\.(cpp|h)$" |
    xargs grep -nF "#include <${view#apps/}>" || true
done)"
report "Qt's keywords" "$(grep -nE '^ *(signals|(public|private|protected) slots|slots):|^ *emit [a-z]|\bQ?foreach *\(' \
  "${sources[@]}" || true)"

if [ -n "$commands" ]; then
  own=$(grep '"command"' "$commands" | grep -E -- "-c [^ ]*/(datamanager|platform|apps|tests|benchmarks|fuzz)/[^ ]*\.cpp" || true)
  [ -n "$own" ] || report "no compilation in $commands" "$commands"
  for definition in QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH; do
    report "compiled without $definition" "$(grep -v -- "-D$definition" <<<"$own" | grep -oE -- '-c [^ ]*' || true)"
  done
fi
exit "$faults"
