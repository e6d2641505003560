#!/usr/bin/env bash
# Creates the build's private Wine prefix once (the first start of Wine takes a while) and
# leaves wineserver running so that the tests start quickly.
#   wine-prefix.sh PREFIX [--unmanaged]
# --unmanaged is for test displays without a window manager: Wine otherwise waits about 2 s
# for every closed window to be withdrawn. A real desktop needs its windows managed, so
# every call without the flag sets them back.
set -euo pipefail
prefix=${1:?usage: wine-prefix.sh PREFIX [--unmanaged]}
export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
mkdir -p "$prefix"
if [ ! -f "$prefix/system.reg" ]; then
  wineboot --init >/dev/null 2>&1 || true
  wineserver -w || true
fi
[ -f "$prefix/system.reg" ] || { echo "Wine prefix could not be created in $prefix" >&2; exit 1; }
managed=Y
[ "${2:-}" = --unmanaged ] && managed=N
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d "$managed" /f >/dev/null 2>&1 ||
  { echo "could not set the window management of $prefix" >&2; exit 1; }
