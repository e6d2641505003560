#!/usr/bin/env bash
# Zelto.exe as a user meets it, under Wine on an X display, driven with xdotool:
#   e2e.sh ZELTO_EXE PROBE_EXE CLI_EXE LEGACY_FIXTURE SCREENSHOT_DIR
# Each scenario copies the program into a folder of its own, starts it, types and clicks,
# reads the windows back with PROBE_EXE and checks the exit status and the key file. CLI_EXE
# (zelto-cli.exe) makes key files with keys. The run has a display and a Wine prefix
# (WINEPREFIX, made when missing) of its own, so that other tests running at the same time
# can neither take the keyboard focus nor show windows in the screenshots.
# ZELTO_E2E_PROGRAMS, when set, names a folder whose Zelto.exe and zelto-cli.exe are tested
# instead of ZELTO_EXE and CLI_EXE (scripts/test.sh points it at the unpacked release).
set -u
zelto=${1:?usage: e2e.sh ZELTO_EXE PROBE_EXE CLI_EXE LEGACY_FIXTURE SCREENSHOT_DIR}
probe=${2:?}
cli=${3:?}
legacy_fixture=${4:?}
shots=${5:?}
if [ -n "${ZELTO_E2E_PROGRAMS:-}" ]; then
  zelto=$ZELTO_E2E_PROGRAMS/Zelto.exe
  cli=$ZELTO_E2E_PROGRAMS/zelto-cli.exe
fi
echo "testing $zelto"
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
: "${WINEPREFIX:?WINEPREFIX must name a Wine prefix for this run (made when missing)}"
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="

# shellcheck source=../../scripts/xvfb.sh
. "$root/scripts/xvfb.sh"
zelto_start_xvfb || exit 1
"$root/scripts/wine-prefix.sh" "$WINEPREFIX" --unmanaged || exit 1
work=$(mktemp -d)
zpid=""
cleanup() {
  [ -n "$zpid" ] && kill "$zpid" 2>/dev/null
  wineserver -k 2>/dev/null
  rm -rf "$work"
  zelto_stop_xvfb
}
trap cleanup EXIT
mkdir -p "$shots"

password="Secret12pw"
main_title='^Zelto \(2\.2\.1\)$'
login_title='^Zelto \(2\.2\.1\) - LogIn$'
setpw_title='^Zelto - Set Master Password$'
box_title='^Zelto$'
step=""
passed=0

fail() {
  printf 'FAIL in "%s": %s\n--- windows:\n' "$step" "$*" >&2
  wine "$probe" 2>/dev/null | tr -d '\r' >&2
  exit 1
}
ok() {
  passed=$((passed + 1))
  printf 'ok   %s\n' "$step"
}

# --- driving -------------------------------------------------------------------------

# wait_until WHY COMMAND...: runs COMMAND every 0.2 s until it succeeds, up to 30 s;
# fails with WHY after that.
wait_until() {
  local why=$1 i
  shift
  for i in $(seq 1 150); do
    "$@" && return 0
    sleep 0.2
  done
  fail "$why"
}
# start DIR: runs the copy of Zelto.exe in DIR in the background.
start() {
  (cd "$1" && exec wine ./Zelto.exe) >/dev/null 2>&1 &
  zpid=$!
}
# ends_with_zero: the program ends within 20 s, with exit status 0.
ends_with_zero() {
  gone() { ! kill -0 "$zpid" 2>/dev/null; }
  wait_until "the program did not end" gone
  wait "$zpid"
  code=$?
  zpid=""
  [ "$code" = 0 ] || fail "exit status $code"
}
close_main() {
  press alt+F4
  ends_with_zero
}
# need_window TITLE_REGEX: $win names the X window of that title.
need_window() {
  found() { win=$(xdotool search --name "$1" 2>/dev/null | head -n 1) && [ -n "$win" ]; }
  wait_until "no window titled $1" found "$1"
  sleep 0.5  # let it finish painting
}
windows() { wine "$probe" 2>/dev/null | tr -d '\r'; }
has() { windows | grep -qF -- "$1"; }
# wait_shown TEXT: until the probe shows TEXT. X keeps windows of closed dialogs under
# their titles, so a title alone does not tell that a new login is up.
wait_shown() { wait_until "not shown within 30 s: $1" has "$1"; }
expect_shown() { has "$1" || fail "not shown: $1"; }
# click_child ID [DOWN]: a click in the child with that identifier in the window $win
# names (or the one titled $probe_title): the middle, or DOWN pixels below its top edge.
click_child() {
  local title at
  # While the main window hides behind a login, X may report either for the login's title.
  title=${probe_title:-$(xdotool getwindowname "$win")}
  at=$(windows | awk -v title="\"$title\"" -v id="$1" -v down="${2:-}" '
    /^window / { inside = index($0, title) > 0 }
    inside && $1 == "child" && $2 == id {
      match($0, /rect=[-0-9]+,[-0-9]+,[-0-9]+,[-0-9]+/)
      split(substr($0, RSTART + 5, RLENGTH - 5), r, ",")
      y = down == "" ? int((r[2] + r[4]) / 2) : r[2] + down
      point = int((r[1] + r[3]) / 2) " " y
    }
    END { print point }')
  [ -n "$at" ] || fail "no child $1 to click"
  # shellcheck disable=SC2086
  xdotool mousemove $at click 1
  sleep 0.3
}
type_text() {
  # Characters outside the keyboard map need a key remapped each; give them more time.
  xdotool type --delay "${2:-25}" "$1"
  sleep 0.3
}
press() {
  xdotool key "$@"
  sleep 0.3
}
# shoot NAME [root]: a picture of the window $win names, or of the whole display.
shoot() {
  import -window "${2:-$win}" "$shots/$1.png" 2>/dev/null || fail "no screenshot $1"
}
# list_items ID: the items of the list or combo box with that identifier, one a line.
list_items() {
  windows | awk -v id="$1" '
    $1 == "child" { inside = ($2 == id) }
    inside && $1 == "item" { sub(/^ *item /, ""); print }'
}
# main_rect: the main window's rectangle as the probe reports it.
main_rect() {
  windows | awk '/^window / && index($0, "\"Zelto (2.2.1)\"") {
    match($0, /rect=[-0-9,]+/); print substr($0, RSTART + 5, RLENGTH - 5) }'
}
# login PASSWORD: types into the login dialog and confirms.
login() {
  need_window "$login_title"
  click_child 1006
  [ -n "$1" ] && type_text "$1"
  press Return
}
# message TEXT: the box titled with the program's name says TEXT; it is confirmed.
message() {
  need_window "$box_title"
  expect_shown "Static \"$1\""
  press Return
}
# cli DIR INPUT ARGS...: zelto-cli on DIR's key file with INPUT on standard input.
cli() {
  local dir=$1 input=$2
  shift 2
  printf '%s' "$input" | wine "$cli" --file "Z:$dir/Zelto.xml" "$@" >/dev/null 2>&1 ||
    fail "zelto-cli $*"
}
fresh_folder() {
  mkdir -p "$work/$1"
  cp "$zelto" "$work/$1/Zelto.exe"
  echo "$work/$1"
}

# --- scenarios -----------------------------------------------------------------------

step="first start: the master password is set, the key file written, the empty list shown"
first=$(fresh_folder first)
start "$first"
need_window "$setpw_title"
shoot e2e-set-master-password
click_child 124
type_text "$password"
press Tab
type_text "$password"
press Return
need_window "$login_title"
[ -f "$first/Zelto.xml" ] || fail "no Zelto.xml after the first start"
grep -q "<verify>" "$first/Zelto.xml" || fail "the new key file has no verify value"
automatic_prompt=$(windows | grep -o 'child 1005 Static "[^"]*"')
cp "$first/Zelto.xml" "$work/key-file-before"
login "$password"
need_window "$main_title"
expect_shown 'item "No keys found!"'
expect_shown 'child 136 Static " Ready"'
windows | grep -q 'child 130 Button "Edit" .* enabled=0' || fail "Edit enabled without a key"
shoot e2e-main-first-start
close_main
cmp -s "$first/Zelto.xml" "$work/key-file-before" || fail "a login and close changed the key file"
ok

# refused TEXT BUTTON MESSAGE: TEXT in the login (set through the probe when it holds a \u
# escape: no keyboard types a lone surrogate) leaves its button reading BUTTON (Cancel while
# shorter than a password); Return brings MESSAGE, the program ends with 0, the file stays.
refused() {
  start "$first"
  need_window "$login_title"
  click_child 1006
  if [[ $1 == *'\u'* ]]; then
    wine "$probe" settext "Zelto (2.2.1) - LogIn" 1006 "$1" >/dev/null 2>&1 || fail "no login edit"
  else
    type_text "$1" 80
  fi
  expect_shown "child 1 Button \"$2\""
  press Return
  message "$3"
  ends_with_zero
  cmp -s "$first/Zelto.xml" "$work/key-file-before" || fail "the key file changed"
}

step="wrong passwords: a wrong one, lone surrogates, seven characters, over 128 bytes"
refused "Wrong12pw" OK "ERROR: Incorrect password"
# A lone surrogate is a wrong password, not an empty one.
refused "\\uD800$password" OK "ERROR: Incorrect password"
refused "$password\\uD800" OK "ERROR: Incorrect password"
refused "Short7x" Cancel "ERROR: invalid password"
# 120 euro signs: 120 characters (the dialog takes up to 127), three bytes each: the dialog
# takes it, the cipher does not.
refused "$(printf '\xe2\x82\xac%.0s' $(seq 1 120))" OK "ERROR: failed to set password"
ok

step="empty login ends silently"
start "$first"
login ""
ends_with_zero  # a message box would hold the program open
ok

step="cancelled first start writes nothing"
cancelled=$(fresh_folder cancelled)
start "$cancelled"
need_window "$setpw_title"
press Escape
need_window "$box_title"
windows | grep -q 'Static "ERROR: Failed to create default Zelto Xml-File "[^"]*Zelto.xml""' ||
  fail "no message naming the key file in quotes"
press Return
ends_with_zero
[ ! -e "$cancelled/Zelto.xml" ] || fail "a key file was written"
ok

step="keys: masked rows, the filter box, filtering by a label, the selection"
keys=$(fresh_folder keys)
cli "$keys" "$password"$'\n'"$password"$'\n' init
cli "$keys" "$password"$'\n' add Bank --label "money, home" --user ada
cli "$keys" "$password"$'\n'"mail-secret"$'\n' add Mail --label "work, home" --password-stdin
cli "$keys" "$password"$'\n' add Office --label "Work"
cli "$keys" "$password"$'\n' add Post
cli "$keys" "$password"$'\n' settings --show-selected 30
start "$keys"
login "$password"
need_window "$main_title"
# Two characters of each row, then one star for each character more.
rows=$(list_items 121 | tr '\n' ' ')
[ "$rows" = '"Ba****************" "Ma***************" "Of***********" "Po**" ' ] || fail "rows: $rows"
labels=$(list_items 146 | tr '\n' ' ')
[ "$labels" = '"" "money" "home" "work" "Work" ' ] || fail "filter box: $labels"
shoot e2e-main-filled
# The filter box: a click gives it the focus (and opens it), Escape closes it again; then
# the arrow key walks down to "work".
click_child 146
press Escape
for i in 1 2 3 4 5 6; do
  list_items 146 | grep -qx '"work" selected' && break
  press Down
done
list_items 146 | grep -qx '"work" selected' || fail "could not choose the label work"
[ "$(list_items 121)" = '"Ma***************"' ] ||
  fail "filtered rows: $(list_items 121 | tr '\n' ' ')"
click_child 121 10  # the first row
expect_shown 'child 136 Static " Key "Mail" selected"'
windows | grep -q 'child 132 Button "Copy Password" .* enabled=1' || fail "Copy Password stays off"
shoot e2e-main-filtered
click_child 132
wait_shown "child 136 Static \" Copied 'Password' to clipboard\""
shoot e2e-main-copied
close_main
ok

step="German key file: login and main window speak German"
german=$(fresh_folder german)
cp "$keys/Zelto.xml" "$german/Zelto.xml"
cli "$german" "$password"$'\n' settings --language Deutsch
start "$german"
need_window "$login_title"
expect_shown 'child 1005 Static "Bitte Passwort eingeben"'
login "$password"
need_window "$main_title"
expect_shown 'child 131 Button "Benutzer kopieren"'
expect_shown 'child 136 Static " Bereit"'
shoot e2e-main-german
close_main
ok

step="older key file: converted at start by the converter inside Zelto.exe"
old=$(fresh_folder legacy)
cp "$legacy_fixture" "$old/Zelto.xml"
start "$old"
need_window "$login_title"
# Its language is not applied before the password is known.
expect_shown "$automatic_prompt"
login "legacy password"
need_window "$main_title"
rows=$(list_items 121 | wc -l)
[ "$rows" -ge 2 ] || fail "the converted keys are not listed ($rows rows)"
has 'item "No keys found!"' && fail "the converted file shows no keys"
close_main
grep -q "<version>" "$old/Zelto.xml" || fail "Zelto.xml is not in the current format"
grep -q "encrypted" "$old/Zelto.xml" && fail "Zelto.xml still holds the older format"
backup=$(ls "$old"/Zelto.backup.*.xml 2>/dev/null | head -n 1)
[ -n "$backup" ] || fail "no backup of the older file"
cmp -s "$backup" "$legacy_fixture" || fail "the backup is not the older file"
[ ! -e "$old/ZeltoPre.exe" ] && [ ! -e "$old/ZeltoPre.xml" ] || fail "converter files left behind"
ok

step="lock button: the window hides behind the login until the password is typed"
cli "$keys" "$password"$'\n' settings --autolock 0
start "$keys"
login "$password"
need_window "$main_title"
before=$(main_rect)
click_child 141
wait_shown 'child 1006 Edit'
locked=$(main_rect)
[ "$locked" != "$before" ] || fail "the window kept its size while locked ($locked)"
shoot e2e-locked root
probe_title="Zelto (2.2.1) - LogIn" click_child 1006
type_text "$password"
press Return
restored() { [ "$(main_rect)" = "$before" ]; }
wait_until "the window was not restored to $before" restored
expect_shown 'child 132 Button "Copy Password"'
ok

step="Alt+? opens the about dialog (the message loop's accelerators); File, Backup through the real popup menu"
need_window "$main_title"
press alt+question
need_window '^Zelto - About$'
wait_shown '"Zelto - About"'
press Return
about_closed() { ! has '"Zelto - About"'; }
wait_until "the about dialog stays open" about_closed
press F10
press Return
press Down
sleep 1
shoot e2e-file-popup root
press Return
need_window '^Zelto - File created$'
press Return
ls "$keys"/Zelto.backup.*.xml >/dev/null 2>&1 || fail "no backup written"
wait_shown "Backup of 'Zelto.xml' done"
close_main
ok

step="automatic lock after six idle seconds; cancelling its login ends the program with 0"
cli "$keys" "$password"$'\n' settings --autolock 6
start "$keys"
login "$password"
need_window "$main_title"
# The pointer stays where the login left it: no activity.
wait_shown 'child 1006 Edit'
[ "$(main_rect)" != "$before" ] || fail "the window was not hidden by the lock"
press Escape
ends_with_zero
ok

printf '%d scenarios passed\n' "$passed"
