#!/usr/bin/env bash
# Builds QVXClient.dll for 64-bit and 32-bit Office (MinGW-w64, presets
# mingw-x64 and mingw-x86) and packs both into one zip a Windows user
# installs from, without administrator rights:
#
#   tools/make-release.sh            # build/release-zip/QuorvixClient-<version>.zip
#
#   QuorvixClient-<version>/
#     README.txt                     what to do (tools/release/README.txt)
#     install.cmd, uninstall.cmd     register / unregister per user with the
#     bitness.cmd                    regsvr32 of Office's bitness (registry or argument)
#     x64/QVXClient.dll, x86/QVXClient.dll
#
# The scripts get Windows line ends. Prints the zip's path last.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)

for tool in x86_64-w64-mingw32-g++-posix i686-w64-mingw32-g++-posix; do
  command -v "$tool" >/dev/null || {
    echo "make-release: $tool is missing (tools/install-deps.sh windows)" >&2
    exit 1
  }
done

version=$(sed -n 's/^project(QVXClient VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name="QuorvixClient-$version"
out="$root/build/release-zip"
stage="$out/$name"
rm -rf "$stage" "$out/$name.zip"
mkdir -p "$stage/x64" "$stage/x86"

for bits in x64 x86; do
  echo "== building mingw-$bits" >&2
  # A build folder configured already keeps its options (the Wine tests build
  # the x86 one with its tests).
  [[ -f "build/mingw-$bits/CMakeCache.txt" ]] || cmake --preset "mingw-$bits" >/dev/null
  cmake --build --preset "mingw-$bits" -j2 --target QVXClient >&2
  cp "build/mingw-$bits/bin/QVXClient.dll" "$stage/$bits/"
done

for file in install.cmd uninstall.cmd bitness.cmd README.txt; do
  sed -e "s/@VERSION@/$version/" -e 's/\r$//' -e 's/$/\r/' "tools/release/$file" >"$stage/$file"
done

(cd "$out" && cmake -E tar cf "$name.zip" --format=zip "$name")
rm -rf "$stage"
echo "$out/$name.zip"
