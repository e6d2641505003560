#!/usr/bin/env bash
# Runs one Windows program under Wine with the build's private prefix and no debug noise.
# ctest calls it as the cross-compiling emulator; WINEPREFIX comes from the test's environment.
set -u
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-"mscoree,mshtml="}
if [ -z "${WINEPREFIX:-}" ]; then
  echo "wine-run.sh: WINEPREFIX is not set" >&2
  exit 125
fi
exec wine "$@"
