#!/usr/bin/env bash
# A key file written by the host build is read by the Windows build and the other way round,
# with the same keys:
#   crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER
# HOST_CLI is the host build's zelto-cli, WINDOWS_CLI zelto-cli.exe, RUNNER what runs it
# (scripts/wine-run.sh).
set -u
host=${1:?usage: crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER}
windows=${2:?usage: crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER}
runner=${3:?usage: crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER}
if [ ! -x "$host" ]; then
  echo "FAIL: the host build's zelto-cli is missing at $host: build the host preset first" >&2
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
pw="Cross2024"
step=""

fail() {
  printf 'FAIL at step "%s": %s\n--- exit status: %s\n--- standard error:\n%s\n' \
    "$step" "$1" "$status" "$err" >&2
  exit 1
}

# on BUILD FILE INPUT ARGS...: runs one build's program on FILE; it must succeed quietly.
on() {
  local build=$1 file=$2 input=$3
  shift 3
  if [ "$build" = host ]; then
    out=$(printf '%s' "$input" | "$host" --file "$file" "$@" 2>"$work/stderr")
  else
    out=$(printf '%s' "$input" | "$runner" "$windows" --file "Z:$file" "$@" 2>"$work/stderr")
  fi
  status=$?
  err=$(cat "$work/stderr")
  [ "$status" = 0 ] || fail "$build: $* ended with $status"
  [ -z "$err" ] || fail "$build: $* wrote to standard error"
}

# write BUILD FILE: a key file with keys, a deleted key and changed settings.
write() {
  local build=$1 file=$2 m="$pw"$'\n'
  on "$build" "$file" "$m$m" init
  on "$build" "$file" "${m}p&ss <w>rd \"1\""$'\n' add $'B\xC3\xBCcher & <Co>' \
    --label "home, work" --user "ada" --email "ada@example.org" \
    --url "https://example.org/?a=1&b=2" --note $'line one\r\nline two' --password-stdin
  on "$build" "$file" "$m"$'m\xC3\xA4il\n' add mail --label work --password-stdin
  on "$build" "$file" "$m" add "old shop" --label shopping --note "gone"
  on "$build" "$file" "$m" rm "old shop"
  on "$build" "$file" "$m" settings --autolock 120 --show-selected 5
}

# dump BUILD FILE: everything the file holds, as that build reads it.
dump() {
  local build=$1 file=$2 m="$pw"$'\n' text=""
  on "$build" "$file" "$m" ls --json
  text+=$out
  on "$build" "$file" "$m" ls --trash --json
  text+=$out
  on "$build" "$file" "$m" labels --json
  text+=$out
  for key in '#1' '#2'; do
    on "$build" "$file" "$m" show "$key" --json --reveal
    text+=$out
  done
  on "$build" "$file" "$m" settings
  text+=$out
  printf '%s' "$text"
}

step="written by the host build"
write host "$work/host.xml"
host_view=$(dump host "$work/host.xml") || exit 1
windows_view=$(dump windows "$work/host.xml") || exit 1
[ "$host_view" = "$windows_view" ] || fail "the Windows build reads other keys"
[[ $host_view == *'"pw": "p&ss <w>rd \"1\""'* ]] || fail "the key's password is not as written"
[[ $host_view == *$'"name": "B\xC3\xBCcher & <Co>"'* ]] || fail "the key's name is not as written"
[[ $host_view == *$'"pw": "m\xC3\xA4il"'* ]] || fail "the second key's password is not as written"

step="written by the Windows build"
write windows "$work/windows.xml"
windows_own=$(dump windows "$work/windows.xml") || exit 1
host_of_windows=$(dump host "$work/windows.xml") || exit 1
[ "$windows_own" = "$host_of_windows" ] || fail "the host build reads other keys"
[ "$host_of_windows" = "$host_view" ] || fail "the two builds wrote different keys"

step="changed by one build, read by the other"
on windows "$work/host.xml" "$pw"$'\n' edit mail --user "from windows"
on host "$work/host.xml" "$pw"$'\n' get mail user
[ "$out" = "from windows" ] || fail "the host build reads '$out'"
on host "$work/windows.xml" "$pw"$'\n' edit mail --user "from the host"
on windows "$work/windows.xml" "$pw"$'\n' get mail user
[ "$out" = "from the host" ] || fail "the Windows build reads '$out'"

echo "cross-build check passed"
