#!/usr/bin/env bash
# A long fuzzing campaign measured in processor time, not wall time: each
# target runs niced (so it takes only what the machine leaves over) until it
# has used CPU_SECONDS of processor time, two at a time on the two cores. Its
# processor time is read from /proc every 10 s into OUT/<target>.cpu, so a
# run that is killed still shows what it used, and the same reading ends it:
# `ulimit -t` counts sampled ticks, which on a VM can run minutes ahead of
# /proc, so the cap and the recorded figure would differ. Reaching the cap
# ends a target with exit 137 (killed), which is its normal end here.
# Corpora and findings are kept in OUT/corpus and OUT/findings across runs,
# so the hours of several runs add up; distil a run's finds into the
# repository's corpus with
#   build/fuzz/fuzz/<target> -merge=1 fuzz/corpus/<target> OUT/corpus/<target>
#
#   tools/fuzz-long.sh CPU_SECONDS OUT [TARGET...]    # e.g. 3660 /work/fuzzing
#
# libFuzzer's -timeout is wall time; a niced run can wait behind other work,
# hence 60 s, not the default. A finding stops that target; its input is in
# OUT/findings/<target>/.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/fuzz-lib.sh

run_one() {  # OUT CPU_SECONDS TARGET
  local out=$1 secs=$2 target=$3
  fuzz_prepare "$out" "$target"
  local corpus=$out/corpus/$target findings=$out/findings/$target
  (
    # Where the kernel groups processes by session (autogroup), nice ranks a
    # process only within its group, and a build in another session would
    # still share the machine half and half. So the target runs in a session
    # of its own whose group is niced too (setsid execs in place: same pid).
    exec setsid sh -c 'echo 19 >/proc/self/autogroup 2>/dev/null; exec nice -n 19 "$@"' _ \
      build/fuzz/fuzz/"$target" -max_total_time=1000000 -timeout=60 \
      -rss_limit_mb=2048 -artifact_prefix="$findings/" -print_final_stats=1 "$corpus"
  ) >"$out/$target.log" 2>&1 &
  local pid=$! tick
  tick=$(getconf CLK_TCK)
  echo "start $(date -u +%FT%TZ)" >"$out/$target.cpu"
  while kill -0 "$pid" 2>/dev/null; do
    local stat
    if read -r -a stat <"/proc/$pid/stat" 2>/dev/null; then
      local used=$(((stat[13] + stat[14]) / tick))
      echo "$(date -u +%FT%TZ) cpu_s $used" >"$out/$target.cpu.now"
      ((used < secs)) || kill -KILL "$pid" 2>/dev/null || true
    fi
    sleep 10
  done
  local status=0
  wait "$pid" || status=$?
  { echo "end $(date -u +%FT%TZ) exit $status"; cat "$out/$target.cpu.now"; } >>"$out/$target.cpu"
}

if [[ $# -lt 2 ]]; then
  echo "usage: tools/fuzz-long.sh CPU_SECONDS OUT [TARGET...]" >&2
  exit 2
fi
secs=$1 out=$2
shift 2
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  targets=("${QVX_FUZZ_TARGETS[@]}")
fi
mkdir -p "$out"
fuzz_build "${targets[@]}"
export -f run_one fuzz_prepare
printf '%s\n' "${targets[@]}" | xargs -P 2 -I{} bash -c 'run_one "$@"' _ "$out" "$secs" {}
