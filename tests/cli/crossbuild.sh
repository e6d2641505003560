#!/usr/bin/env bash
# A key file written by the host build is read by the Windows build and the other way round,
# with the same keys:
#   crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER
# HOST_CLI is the host build's zelto-cli, WINDOWS_CLI zelto-cli.exe, RUNNER what runs it
# (scripts/wine-run.sh).
set -u
usage="usage: crossbuild.sh HOST_CLI WINDOWS_CLI RUNNER"
host=${1:?$usage} windows=${2:?$usage} runner=${3:?$usage}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
m=$'Cross2024\n'
fail() { echo "FAIL: $1" >&2; exit 1; }
[ -x "$host" ] || fail "no host build's zelto-cli at $host: build the host preset first"

# on BUILD FILE INPUT ARGS...: runs one build's program on FILE; it must succeed quietly.
on() {
  local program=("$host" --file "$2") input=$3
  [ "$1" = host ] || program=("$runner" "$windows" --file "Z:$2")
  shift 3
  out=$(printf '%s' "$input" | "${program[@]}" "$@" 2>"$work/stderr") && [ ! -s "$work/stderr" ] ||
    fail "${program[*]} $*: $(cat "$work/stderr")"
}
# write BUILD FILE: a key file with keys, a deleted key and changed settings.
write() {
  on "$@" "$m$m" init
  on "$@" "${m}p&ss <w>rd \"1\""$'\n' add $'B\xC3\xBCcher & <Co>' --label "home, work" --user ada \
    --email ada@example.org --url "https://example.org/?a=1&b=2" --note $'line one\r\nline two' \
    --password-stdin
  on "$@" "$m"$'m\xC3\xA4il\n' add mail --label work --password-stdin
  on "$@" "$m" add "old shop" --label shopping --note gone
  on "$@" "$m" rm "old shop"
  on "$@" "$m" settings --autolock 120 --show-selected 5
}
# dump BUILD FILE: everything the file holds, as that build reads it.
dump() {
  for command in "ls --json" "ls --trash --json" "labels --json" "show #1 --json --reveal" \
    "show #2 --json --reveal" settings; do
    on "$@" "$m" $command # split into words on purpose
    printf '%s\n' "$out"
  done
}

for build in host windows; do write $build "$work/$build.xml"; done
view=$(dump host "$work/host.xml") || exit 1
for want in '"pw": "p&ss <w>rd \"1\""' $'"name": "B\xC3\xBCcher & <Co>"' $'"pw": "m\xC3\xA4il"' \
  '"note": "line one\r\nline two"' '"name": "old shop"' 'autolock: 120'; do
  [[ $view == *"$want"* ]] || fail "the host build's file lacks $want"
done
for read in "windows host" "windows windows" "host windows"; do
  set -- $read
  [ "$(dump "$1" "$work/$2.xml")" = "$view" ] || fail "the $1 build reads other keys in $2.xml"
done
for change in "windows host" "host windows"; do  # changed by one build, read by the other
  set -- $change
  on "$1" "$work/$2.xml" "$m" edit mail --user "from $1"
  on "$2" "$work/$2.xml" "$m" get mail user
  [ "$out" = "from $1" ] || fail "the $2 build reads '$out'"
done
echo "cross-build check passed"
