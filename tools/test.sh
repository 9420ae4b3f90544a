#!/usr/bin/env bash
# Every test: the native build under AddressSanitizer and
# UndefinedBehaviorSanitizer (unit tests and scenarios), the scenario suite
# 20 times more in a row (no scenario may be flaky), a short run of every
# fuzz target, then QVXClient.dll for x64 and x86 with the COM-level tests
# under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install-deps.sh windows
cmake --preset debug >/dev/null
cmake --build --preset debug -j2
ctest --preset debug -j2
tools/repeat-scenarios.sh debug 20
tools/fuzz.sh 10
tools/wine-tests.sh
