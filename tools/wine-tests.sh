#!/usr/bin/env bash
# Builds QVXClient.dll for x64 and x86 and its release zip, and runs the
# COM-level tests under Wine.
#
#   tools/wine-tests.sh [FILTER]
#
# Both MinGW-w64 presets are built (the x86 one without its tests: running
# 32-bit programs needs the i386 Wine, which CI does not install). Each DLL
# must export exactly the four self-registration entry points and import
# only system DLLs. The x64 test host then runs under Wine in a private,
# throw-away WINEPREFIX inside a virtual X server; FILTER narrows it to tests
# whose "Suite.Name" contains it. The Object contract suite of the native
# tests then runs on the IDispatch face of the simulated objects.
#
# Environment: QVX_WINEPREFIX=DIR reuses (and keeps) a prefix instead of a
# fresh one, which saves its set-up when run again and again by hand.
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
  echo "== building $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j2
}

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
build mingw-x86
check_dll i686-w64-mingw32-objdump build/mingw-x86/bin/QVXClient.dll
# The release zip, unpacked beside the test host as a user unpacks it; the
# tests install from there with its scripts.
zip=$(tools/make-release.sh)
rm -rf build/mingw-x64/bin/release build/mingw-x64/bin/QuorvixClient-*/
rm -rf build/mingw-x64/bin/custom-ui  # written again by this run's ribbon tests
(cd build/mingw-x64/bin && cmake -E tar xf "$zip" && mv QuorvixClient-*/ release)
echo "   $zip unpacked into build/mingw-x64/bin/release"
echo "== built in $((SECONDS - started)) s"

bin="$root/build/mingw-x64/bin"
for program in qvx_wine_tests.exe qvx_wine_contract_tests.exe QuorvixClient.exe qvx_post_message.exe QVXClient.dll; do
  [[ -f "$bin/$program" ]] || {
    echo "wine tests: $bin/$program was not built" >&2
    exit 1
  }
done

if [[ -n "${QVX_WINEPREFIX:-}" ]]; then
  prefix=$QVX_WINEPREFIX
  mkdir -p "$prefix"
else
  prefix=$(mktemp -d "${TMPDIR:-/tmp}/qvx-wine.XXXXXX")
  trap 'WINEPREFIX="$prefix" wineserver -k 2>/dev/null || true; rm -rf "$prefix"' EXIT
fi
export WINEPREFIX=$prefix
export WINEDEBUG=-all
# No Mono or Gecko installers while the prefix is made: the tests need neither.
export WINEDLLOVERRIDES="mscoree=;mshtml="

echo "== running the COM tests under $(wine --version 2>/dev/null) in $prefix"
# One virtual display for the prefix's set-up and the tests; the prefix's
# server is stopped before the display goes away.
set +e
timeout -k 30 900 xvfb-run -a bash -c '
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
status=$?
set -e
# The ribbon documents the DLL answered through its vtable, against Office's
# schemas (found as the native ribbon.schema test finds them).
schemas=${QVX_CUSTOMUI_SCHEMAS:-$root/../shared/reference/schemas}
if [[ -f "$schemas/customUI14.xsd" && -d "$bin/custom-ui" ]]; then
  echo "== the DLL's ribbon documents against the customUI schemas"
  /usr/bin/python3 tools/validate-custom-ui.py "$schemas" "$bin/custom-ui" || status=1  # Debian's, with python3-xmlschema
else
  echo "== the DLL's ribbon documents were not validated: no customUI schemas at $schemas"
fi
echo "== wine tests finished in $((SECONDS - started)) s"
if ! dpkg-query -W -f='${Status}' wine32:i386 2>/dev/null | grep -q "ok installed"; then
  echo "!! The x86 QVXClient.dll was built and its surface checked, but NOT run: 32-bit Wine"
  echo "!! (wine32:i386) is not installed on this machine. Only the x64 DLL was tested."
fi
exit "$status"
