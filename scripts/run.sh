#!/usr/bin/env bash
# Installs what is missing, builds Zelto.exe (the windows preset) and starts it under Wine
# on the current X display; without one, on a virtual display that a browser on this
# machine shows (scripts/browser-display.sh). The program keeps its key file Zelto.xml
# beside itself, so it runs from a folder of its own that survives a clean build:
#   ZELTO_RUN_DIR (default: ${XDG_DATA_HOME:-~/.local/share}/zelto)
# Wine runs in a private prefix inside the build tree (build/windows/wineprefix).
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

scripts/install-deps.sh

mkdir -p build
log=build/run-build.log
echo "building Zelto.exe (log: $log)"
if ! { cmake --preset windows && cmake --build --preset windows --target Zelto -j 2; } >"$log" 2>&1; then
  grep -E -B2 -A12 'error|Error|FAILED' "$log" | head -n 60 >&2
  echo "run.sh: the build failed; the whole log is in $log" >&2
  exit 1
fi

prefix=$root/build/windows/wineprefix
run_dir=${ZELTO_RUN_DIR:-${XDG_DATA_HOME:-$HOME/.local/share}/zelto}
mkdir -p "$run_dir"
# A new file under the name, so that a copy that is running keeps its own.
cp build/windows/zelto/Zelto.exe "$run_dir/.Zelto.exe.new"
mv -f "$run_dir/.Zelto.exe.new" "$run_dir/Zelto.exe"
export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="

if [ -n "${DISPLAY:-}" ]; then
  scripts/wine-prefix.sh "$prefix"
  echo "starting $run_dir/Zelto.exe"
  cd "$run_dir"
  exec wine ./Zelto.exe
fi

# No display (a server, a container): a virtual one, shown in a browser.
# shellcheck source=browser-display.sh
. scripts/browser-display.sh
zpid=""
stop_all() {
  set +e  # every step runs, whatever the one before returned
  trap - EXIT INT TERM
  [ -n "$zpid" ] && kill "$zpid" 2>/dev/null
  wineserver -k 2>/dev/null && wineserver -w 2>/dev/null
  zelto_stop_browser_display
}
trap stop_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
zelto_start_browser_display
scripts/wine-prefix.sh "$prefix"
echo "starting $run_dir/Zelto.exe on a virtual display; open this address in a browser on this machine:"
echo
echo "    $ZELTO_VIEW_URL"
echo
web_port=${ZELTO_WEB_PORT:-6080}
echo "(from another machine: ssh -L $web_port:127.0.0.1:$web_port to this one first). Ctrl+C stops it."
cd "$run_dir"
# Wine's own desktop draws title bars and frames, which a bare Xvfb has no one to draw.
wine explorer /desktop=Zelto,1280x1024 ./Zelto.exe &
zpid=$!
status=0
wait "$zpid" || status=$?
zpid=""
exit "$status"
