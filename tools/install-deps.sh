#!/usr/bin/env bash
# Installs what the builds and tests need on a Debian machine; does nothing
# for packages that are already there. Pass "windows" to add the MinGW-w64
# cross compilers, Wine, Xvfb and the GoogleTest sources (built for Windows).
set -euo pipefail
packages=(g++ cmake ninja-build libgtest-dev libgmock-dev libbenchmark-dev clang-format python3 libxml2-dev)
if [[ "${1:-}" == "windows" ]]; then
  packages+=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64 xvfb xauth googletest)
fi
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
