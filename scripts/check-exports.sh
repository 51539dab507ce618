#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Checks that shared libraries export what lies in our namespaces, under the symbol version, and nothing else.
#   scripts/check-exports.sh VERSION LIBRARY...
set -euo pipefail
version=$1
shift
ours='(DataManager|BaseModule|DataModel|ConfigOption|BaseWidget|QJsonHelper|GlobalConfig)'
faults=0
for library in "$@"; do
  exported=$(nm --dynamic --defined-only --with-symbol-versions --demangle "$library" | cut -d' ' -f3- |
    grep -vx "$version\(@@$version\)\?" || true)
  if [ -z "$exported" ]; then
    echo "$library: exports nothing" >&2
    faults=1
  fi
  foreign=$(grep -vE "^([a-z -]+ (for|to) )?$ours(::.*)?@@$version\$" <<<"$exported" || true)
  if [ -n "$foreign" ]; then
    printf '%s: exports what is not ours, or without the version %s:\n%s\n' "$library" "$version" "$foreign" >&2
    faults=1
  fi
done
exit "$faults"
