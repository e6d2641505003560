#!/usr/bin/env bash
# Creates the build's private Wine prefix once (the first start of Wine takes a while) and
# leaves wineserver running so that the tests start quickly.
set -euo pipefail
prefix=${1:?usage: wine-prefix.sh PREFIX}
export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$prefix"
if [ ! -f "$prefix/system.reg" ]; then
  wineboot --init >/dev/null 2>&1 || true
  wineserver -w || true
fi
[ -f "$prefix/system.reg" ] || { echo "Wine prefix could not be created in $prefix" >&2; exit 1; }
