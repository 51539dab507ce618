#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Line and branch coverage of the library and its siblings by their own tests, file by file. Fails below the two limits.
# Needs gcovr. docs/reliability.md tells what does not count as a branch.
#   scripts/coverage.sh [OPTION...]     further options of gcovr, such as --html-details FILE
set -euo pipefail
cd "$(dirname "$0")/.."
command -v gcovr >/dev/null 2>&1 || { echo "coverage: install gcovr first" >&2; exit 1; }
lines=98 branches=90
scripts/build.sh coverage build-coverage
find build-coverage -name '*.gcda' -delete
# Instrumented as they are, some functions take longer than Qt Test allows.
(cd build-coverage && QTEST_FUNCTION_TIMEOUT=3600000 ctest --output-on-failure --timeout 3600 -j "$(nproc)")

# A line that decides nothing has no branch of ours: what the compiler makes there guards a static local, cleans up when
# something is thrown, or comes out of a template or a macro of a library.
decisions='\b(if|for|while|switch|case|default|catch)\b|\?|&&|\|\||==|!=|<=|>=|\) \{$'
# Two threads that count at once can leave a number that is none, which gcovr then passes over.
gcovr --root . --filter 'datamanager/' --filter 'platform/' --gcov-ignore-parse-errors \
  --exclude-throw-branches --exclude-unreachable-branches --exclude-branches-by-pattern "^(?!.*($decisions)).*$" \
  --json build-coverage/coverage.json "$@" build-coverage
report() { gcovr --root . --add-tracefile build-coverage/coverage.json "$@"; }
echo "== lines"
report --sort-uncovered --txt
echo "== branches"
report --sort-uncovered --branches --txt --fail-under-line "$lines" --fail-under-branch "$branches" --print-summary
