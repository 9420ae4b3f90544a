#!/usr/bin/env bash
# Renders the add-in's real Win32 dialogs under Wine on a virtual display and
# saves each as a PNG under docs/images/, for the README.
#
#   tools/render-dialogs.sh
#
# Each dialog is brought up through QVXClient.dll by the Wine test host, as a
# host would bring it up (qvx_wine_tests.exe --show NAME), and photographed
# with ImageMagick's `import` once its window is on the screen; then the
# program is ended. Wine draws the windows' frames itself (no window manager
# runs on the virtual display). A documentation tool, not part of the tests;
# on a fresh Debian machine it installs what it needs first.
#
# A new dialog is one more line in `dialogs`: its --show name, its caption,
# and its picture.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$(pwd)

dialogs=(
  "error-report|Unknown Exception|docs/images/error-report.png"
  "fields|All Project Fields|docs/images/all-project-fields.png"
  "about|About|docs/images/about.png"
)

install() {
  tools/install-deps.sh windows
  local packages=(imagemagick x11-apps x11-utils) missing=()
  for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing+=("$p")
  done
  if ((${#missing[@]})); then
    local sudo=""
    [[ $(id -u) -ne 0 ]] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
  fi
}

# The X window of a top-level window with this caption, once it is viewable.
window_of() {
  local caption=$1 id
  for ((i = 0; i < 120; i++)); do
    id=$(xwininfo -root -tree | grep -F "\"$caption\"" | awk '{print $1}' | head -1 || true)
    if [[ -n "$id" ]] && xwininfo -id "$id" | grep -q "IsViewable"; then
      echo "$id"
      return 0
    fi
    sleep 0.5
  done
  return 1
}

render() {
  local bin="$root/build/mingw-x64/bin"
  export WINEPREFIX
  WINEPREFIX=$(mktemp -d "${TMPDIR:-/tmp}/qvx-render.XXXXXX")
  trap 'wineserver -k 2>/dev/null || true; rm -rf "$WINEPREFIX"' EXIT
  export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
  wineboot -i >/dev/null 2>&1
  # Wine draws the caption and frame itself, as Windows does.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Decorated /d N /f >/dev/null 2>&1
  wineserver -w
  mkdir -p docs/images
  for entry in "${dialogs[@]}"; do
    IFS='|' read -r name caption picture <<<"$entry"
    wine "$bin/qvx_wine_tests.exe" --show "$name" >/dev/null 2>&1 &
    local program=$!
    local id
    if ! id=$(window_of "$caption"); then
      echo "render: the dialog \"$caption\" did not appear" >&2
      exit 1
    fi
    sleep 1  # let it finish painting
    import -window "$id" "$picture"
    echo "   $picture: $(identify -format '%wx%h' "$picture")"
    wineserver -k 2>/dev/null || true
    wait "$program" 2>/dev/null || true
  done
}

if [[ "${1:-}" == "--inside-display" ]]; then
  render
  exit 0
fi

install
echo "== building mingw-x64"
cmake --preset mingw-x64 >/dev/null
cmake --build --preset mingw-x64 -j2 --target qvx_wine_tests
echo "== rendering"
xvfb-run -a -s "-screen 0 1024x768x24" "$0" --inside-display
