#!/usr/bin/env bash
# Builds the libFuzzer targets (preset "fuzz": clang with the fuzzer,
# AddressSanitizer and UndefinedBehaviorSanitizer) and runs each for SECONDS
# (default 10) on a copy of its corpus in fuzz/corpus/<target>/.
#
#   tools/fuzz.sh [SECONDS] [TARGET...]
#
# A finding (crash, sanitizer report or broken round trip) fails the run and
# leaves the input as build/fuzz/findings/<target>/crash-*; add it to the
# corpus once fixed. New inputs found stay in build/fuzz/corpus/<target>/.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/fuzz-lib.sh
seconds=${1:-10}
shift || true
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  targets=("${QVX_FUZZ_TARGETS[@]}")
fi
fuzz_build "${targets[@]}"

status=0
for target in "${targets[@]}"; do
  fuzz_prepare build/fuzz "$target"
  corpus=build/fuzz/corpus/$target findings=build/fuzz/findings/$target
  echo "== $target for ${seconds} s"
  if ! build/fuzz/fuzz/"$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
      -artifact_prefix="$findings/" -print_final_stats=1 "$corpus" 2>build/fuzz/"$target".log; then
    status=1
    tail -40 build/fuzz/"$target".log
  fi
  grep -E "stat::number_of_executed_units|stat::peak_rss_mb" build/fuzz/"$target".log | tr '\n' ' '
  echo
done
exit "$status"
