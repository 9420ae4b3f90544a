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
# 32-bit Office loads the x86 DLL, and the i386 Wine runs its tests. Best
# effort: it is installed only when apt can resolve it as it stands, and the
# Wine tests say loudly when it is missing.
if [[ "${1:-}" == "windows" ]] &&
  ! dpkg-query -W -f='${Status}' wine32:i386 2>/dev/null | grep -q "ok installed"; then
  sudo=""
  [[ $(id -u) -ne 0 ]] && sudo="sudo"
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    $sudo dpkg --add-architecture i386
  fi
  $sudo apt-get update -qq || true  # an i386 index that fails leaves wine32 unresolvable below
  if $sudo apt-get install -s -y -qq --no-install-recommends wine32:i386 >/dev/null 2>&1; then
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends wine32:i386 ||
      echo "!! wine32:i386 failed to install: the x86 DLL's Wine tests will not run" >&2
  else
    echo "!! wine32:i386 cannot be installed from this machine's package sources:" \
      "the x86 DLL's Wine tests will not run" >&2
  fi
fi
