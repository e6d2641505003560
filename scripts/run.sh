#!/usr/bin/env bash
# Installs what is missing, builds Zelto.exe (the windows preset) and starts it under Wine
# on the current X display. The program keeps its key file Zelto.xml beside itself, so it
# runs from a folder of its own that survives a clean build:
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

if [ -z "${DISPLAY:-}" ]; then
  cat >&2 <<'EOF'
run.sh: DISPLAY is not set, so there is no screen to show Zelto on.
Run it from a desktop session, or over ssh with X forwarding (ssh -X). On a machine
without a screen, start a virtual one and watch it with a VNC viewer:
    Xvfb :99 -screen 0 1280x1024x24 &
    x11vnc -display :99 &        # then connect a VNC viewer to port 5900
    DISPLAY=:99 scripts/run.sh
EOF
  exit 1
fi

prefix=$root/build/windows/wineprefix
scripts/wine-prefix.sh "$prefix"

run_dir=${ZELTO_RUN_DIR:-${XDG_DATA_HOME:-$HOME/.local/share}/zelto}
mkdir -p "$run_dir"
# A new file under the name, so that a copy that is running keeps its own.
cp build/windows/zelto/Zelto.exe "$run_dir/.Zelto.exe.new"
mv -f "$run_dir/.Zelto.exe.new" "$run_dir/Zelto.exe"
echo "starting $run_dir/Zelto.exe"
cd "$run_dir"
WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" exec wine ./Zelto.exe
