#!/usr/bin/env bash
# Runs the whole scenario suite again and again in one build, to show that no
# scenario is flaky: every run must pass, and the first failure ends it with
# the failing scenarios' output.
#
#   tools/repeat-scenarios.sh [PRESET [COUNT]]     (debug and 20 unless told)
#
# The build must be there (cmake --build --preset PRESET).
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-debug}
count=${2:-20}
started=$SECONDS
log=$(mktemp "${TMPDIR:-/tmp}/qvx-scenarios.XXXXXX")
trap 'rm -f "$log"' EXIT
for ((run = 1; run <= count; ++run)); do
  if ! ctest --preset "$preset" -R '^scenario\.' -j2 --output-on-failure >"$log" 2>&1; then
    cat "$log"
    echo "scenarios: run $run of $count failed" >&2
    exit 1
  fi
done
echo "scenarios: $count runs in a row passed in $((SECONDS - started)) s"
