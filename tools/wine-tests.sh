#!/usr/bin/env bash
# Builds QVXClient.dll for x64 and x86 and its release zip, and runs the
# COM-level tests under Wine.
#
#   tools/wine-tests.sh [FILTER]
#
# Both MinGW-w64 presets are built. Each DLL must export exactly the four
# self-registration entry points and import only system DLLs. The x64 test
# host then runs under Wine in a private, throw-away WINEPREFIX inside a
# virtual X server; FILTER narrows it to tests whose "Suite.Name" contains
# it. The Object contract suite of the native tests then runs on the
# IDispatch face of the simulated objects. Where the 32-bit Wine (wine32:i386)
# is installed, the x86 preset is built with its tests too and the same
# tests run again, 32-bit, on the x86 DLL in a 32-bit prefix; where it is not,
# the x86 DLL is only built and checked, and the run says so loudly.
#
# Environment: QVX_WINEPREFIX=DIR reuses (and keeps) a prefix instead of a
# fresh one (DIR-x86 for the 32-bit run), which saves its set-up when run
# again and again by hand.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)
filter=${1:-}
started=$SECONDS

for tool in x86_64-w64-mingw32-g++-posix i686-w64-mingw32-g++-posix wine xvfb-run; do
  command -v "$tool" >/dev/null || {
    echo "wine tests: $tool is missing (tools/install-deps.sh windows)" >&2
    exit 1
  }
done

build() {
  local preset=$1
  shift
  echo "== building $preset"
  cmake --preset "$preset" "$@" >/dev/null
  cmake --build --preset "$preset" -j2
}

wine32=false
dpkg-query -W -f='${Status}' wine32:i386 2>/dev/null | grep -q "ok installed" && wine32=true

# The DLL's surface: exactly the four exports, and nothing but system DLLs.
check_dll() {
  local objdump=$1 dll=$2
  local dump exports imports unexpected
  dump=$("$objdump" -p "$dll")
  exports=$(sed -n '/\[Ordinal\/Name Pointer\] Table/,/^$/p' <<<"$dump" |
    awk '/^\t\[/ {print $3}' | sort | tr '\n' ' ')
  if [[ "$exports" != "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer " ]]; then
    echo "wine tests: $dll exports: $exports" >&2
    return 1
  fi
  imports=$(awk '/DLL Name:/ {print toupper($3)}' <<<"$dump" | sort -u)
  unexpected=$(grep -vxE 'ADVAPI32\.DLL|GDI32\.DLL|KERNEL32\.DLL|MSVCRT\.DLL|OLE32\.DLL|OLEAUT32\.DLL|SHELL32\.DLL|USER32\.DLL|COMCTL32\.DLL|COMDLG32\.DLL|UUID\.DLL' <<<"$imports" || true)
  if [[ -n "$unexpected" ]]; then
    echo "wine tests: $dll imports non-system DLLs: $unexpected" >&2
    return 1
  fi
  echo "   $dll: 4 exports, imports $(tr '\n' ' ' <<<"$imports")"
}

build mingw-x64
check_dll x86_64-w64-mingw32-objdump build/mingw-x64/bin/QVXClient.dll
build mingw-x86 -DQVX_BUILD_TESTS=$([[ $wine32 == true ]] && echo ON || echo OFF)
check_dll i686-w64-mingw32-objdump build/mingw-x86/bin/QVXClient.dll
# The release zip, unpacked beside the test host as a user unpacks it; the
# tests install from there with its scripts.
zip=$(tools/make-release.sh)
bitnesses=(x64)
[[ $wine32 == true ]] && bitnesses+=(x86)
for bits in "${bitnesses[@]}"; do
  bin=build/mingw-$bits/bin
  rm -rf "$bin"/release "$bin"/QuorvixClient-*/
  rm -rf "$bin"/custom-ui  # written again by this run's ribbon tests
  (cd "$bin" && cmake -E tar xf "$zip" && mv QuorvixClient-*/ release)
  echo "   $zip unpacked into $bin/release"
  for program in qvx_wine_tests.exe qvx_wine_contract_tests.exe QuorvixClient.exe qvx_post_message.exe QVXClient.dll; do
    [[ -f "$bin/$program" ]] || {
      echo "wine tests: $bin/$program was not built" >&2
      exit 1
    }
  done
done
echo "== built in $((SECONDS - started)) s"

export WINEDEBUG=-all
# No Mono or Gecko installers while the prefix is made: the tests need neither.
export WINEDLLOVERRIDES="mscoree=;mshtml="
prefixes=()
trap 'for p in "${prefixes[@]}"; do WINEPREFIX="$p" wineserver -k 2>/dev/null || true; rm -rf "$p"; done' EXIT

# run_tests BITS: the test host of that bitness on its DLL, in a prefix of
# its own (a 32-bit one for x86), then its ribbon documents against Office's
# schemas (found as the native ribbon.schema test finds them). Fails when
# anything failed.
run_tests() {
  local bits=$1 bin="$root/build/mingw-$1/bin" prefix arch=win64 result
  [[ $bits == x86 ]] && arch=win32
  if [[ -n "${QVX_WINEPREFIX:-}" ]]; then
    prefix=$QVX_WINEPREFIX
    [[ $bits == x86 ]] && prefix=$QVX_WINEPREFIX-x86
    mkdir -p "$prefix"
  else
    prefix=$(mktemp -d "${TMPDIR:-/tmp}/qvx-wine-$bits.XXXXXX")
    prefixes+=("$prefix")
  fi
  echo "== running the COM tests on the $bits DLL under $(wine --version 2>/dev/null) in $prefix"
  # One virtual display for the prefix's set-up and the tests; the prefix's
  # server is stopped before the display goes away.
  set +e
  WINEPREFIX=$prefix WINEARCH=$arch timeout -k 30 900 xvfb-run -a bash -c '
    set -u
    if [[ ! -f "$WINEPREFIX/system.reg" ]]; then
      wineboot -i >/dev/null 2>&1 || { echo "wine tests: wineboot failed" >&2; exit 1; }
      wineserver -w
    fi
    cd "$1"
    wine ./qvx_wine_tests.exe "$2"
    result=$?
    wine ./qvx_wine_contract_tests.exe "--gtest_filter=*${2}*" || result=1
    wineserver -k 2>/dev/null
    exit $result
  ' wine-tests "$bin" "$filter"
  result=$?
  set -e
  local schemas=${QVX_CUSTOMUI_SCHEMAS:-$root/../shared/reference/schemas}
  if [[ -f "$schemas/customUI14.xsd" && -d "$bin/custom-ui" ]]; then
    echo "== the $bits DLL's ribbon documents against the customUI schemas"
    /usr/bin/python3 tools/validate-custom-ui.py "$schemas" "$bin/custom-ui" || result=1  # Debian's, with python3-xmlschema
  else
    echo "== the $bits DLL's ribbon documents were not validated: no customUI schemas at $schemas"
  fi
  return "$result"
}

status=0
for bits in "${bitnesses[@]}"; do
  run_tests "$bits" || status=1
done
echo "== wine tests finished in $((SECONDS - started)) s"
if [[ $wine32 != true ]]; then
  echo "!! The x86 QVXClient.dll was built and its surface checked, but NOT run: 32-bit Wine"
  echo "!! (wine32:i386) is not installed on this machine. Only the x64 DLL was tested."
fi
exit "$status"
