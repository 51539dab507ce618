#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Fuzzes each target for a time, two at once, starting from the committed corpora, which stay as they are.
#   scripts/fuzz.sh SECONDS [TARGET...]
# What a target stumbles over, the log and the grown corpus are in build-fuzz/runs/TARGET.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:?how many seconds for each target?}
shift
targets=("$@")
[ "${#targets[@]}" -gt 0 ] || mapfile -t targets < <(find fuzz -name 'fuzz_*.cpp' -printf '%f\n' | sed 's/^fuzz_//; s/\.cpp$//' | sort)

scripts/setup.sh --with-clang
scripts/build.sh fuzz build-fuzz "${targets[@]/#/fuzz_}"

fuzz() { # TARGET
  local target=$1 run=build-fuzz/runs/$1
  rm -rf "$run"
  mkdir -p "$run/corpus"
  # Targets write their input into a file; in memory that is quick. Leaks are looked for when the suite replays the
  # corpus: telling Qt's own from ours takes call stacks that make this ten times slower.
  ASAN_OPTIONS=detect_leaks=0 TMPDIR=$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}") \
    "build-fuzz/bin/fuzz_$target" -max_total_time="$seconds" -max_len=4096 -timeout=60 -rss_limit_mb=4096 \
    -detect_leaks=0 -print_final_stats=1 -dict="fuzz/$target/$target.dict" -artifact_prefix="$run/" \
    "$run/corpus" "fuzz/$target/corpus" >"$run/log" 2>&1 || { tail -n 40 "$run/log" >&2; echo "fuzz: $target failed" >&2; return 1; }
  printf '%s: %s\n' "$target" "$(grep DONE "$run/log")"
}
export -f fuzz
export seconds
printf '%s\n' "${targets[@]}" | xargs -n 1 -P 2 bash -c 'set -euo pipefail; fuzz "$0"'
