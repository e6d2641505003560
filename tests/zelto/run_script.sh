#!/usr/bin/env bash
# scripts/run.sh on a fresh copy of the working tree brings up the login dialog:
#   run_script.sh SOURCE_DIR PROBE_EXE KEY_FILE
# The copy holds what a clone would (tracked and new files, nothing ignored, no build).
# So that nothing is downloaded, it is given the parser sources and npm packages the source
# tree has already fetched, as links. KEY_FILE (password known to the model tests) is put
# where run.sh starts the program; the login dialog must then speak the file's language.
# The run has a display of its own; the copy's build tree holds its Wine prefix.
set -u
src=${1:?usage: run_script.sh SOURCE_DIR PROBE_EXE KEY_FILE}
probe=${2:?}
key_file=${3:?}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

# shellcheck source=../../scripts/xvfb.sh
. "$root/scripts/xvfb.sh"
zelto_start_xvfb || exit 1
work=$(mktemp -d)
copy=$work/zelto
prefix=$copy/build/windows/wineprefix
pid=""
cleanup() {
  [ -n "$pid" ] && kill "$pid" 2>/dev/null
  [ -d "$prefix" ] && WINEPREFIX=$prefix wineserver -k 2>/dev/null
  rm -rf "$work"
  zelto_stop_xvfb
}
trap cleanup EXIT
fail() {
  printf 'FAIL: %s\n--- run.sh said:\n' "$*" >&2
  tail -n 40 "$work/run.log" >&2
  exit 1
}

mkdir -p "$copy"
(cd "$src" && git ls-files -z --cached --others --exclude-standard |
  tar --null -T - --ignore-failed-read -cf -) | tar -xf - -C "$copy" ||
  fail "could not copy the working tree"
[ -x "$copy/scripts/run.sh" ] || fail "scripts/run.sh is missing or not executable"
if [ -d "$src/build/third_party/irrlicht" ]; then
  mkdir -p "$copy/build/third_party"
  ln -s "$src/build/third_party/irrlicht" "$copy/build/third_party/irrlicht"
fi
[ -d "$src/node_modules" ] && ln -s "$src/node_modules" "$copy/node_modules"
mkdir -p "$work/run"
cp "$key_file" "$work/run/Zelto.xml"

ZELTO_RUN_DIR=$work/run "$copy/scripts/run.sh" >"$work/run.log" 2>&1 &
pid=$!

login_title='^Zelto \(2\.2\.1\) - LogIn$'
for i in $(seq 1 2200); do
  if xdotool search --name "$login_title" >/dev/null 2>&1; then
    break
  fi
  kill -0 "$pid" 2>/dev/null || fail "run.sh ended before the login dialog appeared"
  sleep 1
done
xdotool search --name "$login_title" >/dev/null 2>&1 || fail "no login dialog"
sleep 1
echo "ok   the login dialog is up"
[ -f "$work/run/Zelto.exe" ] || fail "Zelto.exe is not in the run folder"
shown=$(WINEPREFIX=$prefix WINEDEBUG=-all wine "$probe" 2>/dev/null | tr -d '\r')
grep -qF 'child 1005 Static "Bitte Passwort eingeben"' <<<"$shown" ||
  fail "the login does not speak the key file's language: $shown"
echo "ok   it read the key file beside the program"

WINEPREFIX=$prefix WINEDEBUG=-all wine "$probe" close "Zelto (2.2.1) - LogIn" ||
  fail "could not close the login dialog"
for i in $(seq 1 300); do
  kill -0 "$pid" 2>/dev/null || break
  sleep 0.1
done
kill -0 "$pid" 2>/dev/null && fail "the program did not end after its login was closed"
wait "$pid"
status=$?
pid=""
[ "$status" = 0 ] || fail "run.sh ended with $status"
echo "ok   closing the login ends the program with 0"
