#!/usr/bin/env bash
# The main job: builds the simulator and runs its demo scenario on the
# embedded default mailbox and settings.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target qvx-sim QuorvixClient QuorvixOLAP -j2 >/dev/null
exec build/release/apps/qvx-sim demo "$@"
