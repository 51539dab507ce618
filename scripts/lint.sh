#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Static checks of the library, its siblings and the programs; prints findings only. Needs clang-tidy and cppcheck.
# .clang-tidy and .cppcheck-suppressions hold what is left out, each with its reason.
#   scripts/lint.sh [FILE...]     only these files
set -euo pipefail
cd "$(dirname "$0")/.."
for tool in cppcheck clang-tidy; do
  command -v "$tool" >/dev/null 2>&1 || { echo "lint: install $tool first" >&2; exit 1; }
done
[ $# -gt 0 ] || mapfile -t files < <(git ls-files 'datamanager/*.cpp' 'platform/*.cpp' 'apps/*.cpp')
[ $# -eq 0 ] || files=("$@")
root=$(scripts/setup.sh --print-onnxruntime-root)
cmake --preset release -B build-lint -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DONNXRUNTIME_ROOT="$root" \
  -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_C_COMPILER=clang -DDATAMANAGER_BUILD_TESTS=OFF >/dev/null
# What is generated (moc, resources, user-interface classes) must be there to be included.
targets=$(ninja -C build-lint -t targets all | sed -n 's/^\([^:]*_autogen\): .*/\1/p' | sort -u)
# shellcheck disable=SC2086
ninja -C build-lint $targets >/dev/null
status=0
cppcheck --quiet --std=c++17 --language=c++ --library=qt --enable=warning,performance,portability,style \
  --inline-suppr --suppressions-list=.cppcheck-suppressions --error-exitcode=1 -DQ_DISABLE_COPY_MOVE\(x\)= \
  -I . -I platform -I apps --template='{file}:{line}: {id}: {message}' "${files[@]}" || status=1
printf '%s\0' "${files[@]}" | xargs -0 -r -n 4 -P "$(nproc)" clang-tidy --quiet -p build-lint 2>/dev/null || status=1
exit $status
