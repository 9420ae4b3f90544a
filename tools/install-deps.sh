#!/usr/bin/env bash
# Installs what the builds and tests need on a Debian machine; does nothing
# for packages that are already there. Pass "windows" to add the MinGW-w64
# cross compilers, Wine, Xvfb and the GoogleTest sources (built for Windows).
# clang and its runtime (libFuzzer, the sanitizers) build the fuzz targets.
set -euo pipefail
packages=(g++ cmake ninja-build libgtest-dev libgmock-dev libbenchmark-dev clang-format python3 python3-xmlschema libxml2-dev
          clang libclang-rt-14-dev)
if [[ "${1:-}" == "windows" ]]; then
  packages+=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64 xvfb xauth googletest
             locales)
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
# The Wine tests run the add-in in a German and an English (UK) user locale,
# which Wine takes from these Unix locales.
if [[ "${1:-}" == "windows" ]]; then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo="sudo"
  for locale in de_DE en_GB; do
    locale -a | grep -qix "${locale}.utf-\?8" || $sudo localedef -i "$locale" -f UTF-8 "${locale}.UTF-8"
  done
fi
