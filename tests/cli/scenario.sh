#!/usr/bin/env bash
# The command line from first use to a converted older file, step by step:
#   scenario.sh CLI LEGACY_FIXTURE [RUNNER]
# CLI is zelto-cli (or zelto-cli.exe with RUNNER, e.g. scripts/wine-run.sh). Every step's
# output and exit status are checked; the first wrong one ends the run with a message.
set -u
cli=${1:?usage: scenario.sh CLI LEGACY_FIXTURE [RUNNER]}
legacy=${2:?usage: scenario.sh CLI LEGACY_FIXTURE [RUNNER]}
runner=${3:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
drive=${runner:+Z:}  # a Windows program sees the Linux folders on drive Z:
file="$drive$work/Zelto.xml"

fail() { printf 'FAIL: %s\n--- output:\n%s\n--- standard error:\n%s\n' "$1" "$out" "$err" >&2; exit 1; }
# t STATUS OUTPUT INPUT ARGS...: runs the program on the key file with INPUT on standard
# input. The exit status and the output ('*': any) must be as given; status 0 must come
# with nothing on standard error, 0+ may have warnings.
t() {
  local want=$1 expected=$2 input=$3
  shift 3
  out=$(printf '%s' "$input" | $runner "$cli" --file "$file" "$@" 2>"$work/stderr")
  status=$?
  err=$(cat "$work/stderr")
  [ "$status" = "${want%+}" ] && { [ "$want" != 0 ] || [ -z "$err" ]; } &&
    [[ $expected == '*' || $out == "$expected" ]] || fail "$*: not status ${want%+} and: $expected"
}
# x STATUS INPUT MESSAGE ARGS...: a step that fails with that one error and no output. An
# empty INPUT shows that nothing was asked before the refusal.
x() { t "$1" "" "$2" "${@:4}" && [ "$err" = "ERROR: $3" ] || fail "${*:4}: not the error: $3"; }
has() { [[ $out == *"$1"* ]] || fail "output lacks: $1"; }

# Help, and what is refused before there is a key file.
t 0 '*' "" --help
for command in init ls labels show get add edit rm passwd backup settings export help; do has "  $command "; done
has $'\n  get KEY FIELD         print one field\'s value\n'
t 0 '*' "" add --help
has $'\n  --password-stdin      read the key\'s password as the next secret\n'
has $'\n--generate and --password-stdin exclude each other.\n'
t 0 '*' "" show --help
[[ $out == "Usage: zelto-cli [--file PATH] show KEY"* && $out != *exclude* ]] || fail "help of show"
x 1 "" $'unknown command \'frobnicate\'\nRun \'zelto-cli --help\' for the commands and their options.' frobnicate
x 4 "" "failed to read \"$file\" (no such file; 'zelto-cli init' creates one)" ls
x 1 $'abc1234\nabc1234\n' "Password size to small" init
x 1 $'abcdef\xffg\nabcdef\xffg\n' "Invalid character in password (allowed: A-Z, a-z, 0-9)" init
x 1 $'Abcd1234\nabcd1234\n' "Password and verification text are not equal" init
x 1 $'abcd1234\n' "the new master password was not repeated" init
x 1 "" "no new master password was given" init

# A new file; files without their sections are refused and left alone.
m=$'Master2024\n'
t 0 "created \"$file\"" "$m$m" init
x 4 "" "\"$file\" exists already; nothing was written" init
cp "$work/Zelto.xml" "$work/before"
printf '<?xml version="1.0"?>\r\n<Zelto>\r\n</Zelto>' >"$work/Zelto.xml"
x 4 "$m" "failed to read \"$file\" (<settings> section not found)" ls
sed '/<keys>/,/<\/keys>/d' "$work/before" >"$work/Zelto.xml"
x 4 "$m" "failed to read \"$file\" (KeyList not found)" ls
cp "$work/before" "$work/Zelto.xml"
# Keys and how they are listed and shown.
t 0 'added #1 "github"' "${m}gh-secret-1"$'\n' add github --label "work, dev" --user alice \
  --email alice@example.org --url https://github.example/ --note $'first line\nsecond line' \
  --password-stdin
t 0 'added #2 "bank"' "$m" add bank --label home --user bob --generate
t 0 'added #3 "mail"' "${m}m@il pass"$'\n' add mail --label work --user carol --password-stdin
t 0 $'#1 github (work, dev)\n#2 bank (home)\n#3 mail (work)' "$m" ls
t 0 $'#1 github (work, dev)\n#3 mail (work)' "$m" ls --label work
t 0 $'work\ndev\nhome' "$m" labels
t 0 $'#1\nname:  github\nlabel: work, dev\nuser:  alice\npw:    ********\nemail: alice@example.org\nurl:   https://github.example/\nnote:  first line\n       second line' \
  "$m" show github
t 0 '*' "$m" show '#1' --json --reveal
has '"pw": "gh-secret-1"'
t 0 $'first line\nsecond line' "$m" get github note
t 0 '*' "$m" get bank pw
[[ $out =~ ^zl[A-Za-z0-9]{14}$ ]] || fail "generated password $out"
# Wrong or missing master passwords; refusals that ask for nothing.
x 2 $'short\n' "wrong master password" ls
x 1 "" "no master password was given" ls

x 1 "" "a key needs a name" edit github --name ""
x 1 "" "a key needs a name" add ""
x 1 "" "--generate and --password-stdin exclude each other" edit github --generate --password-stdin
x 1 "" "unknown field 'password' (one of name, label, user, pw, email, url, note)" get github password
# Edits, and a key moved to the trash.
t 0 'changed #1 "gitlab"' "$m" edit github --name gitlab --user alice2 --label "work, code"
t 0 alice2 "$m" get gitlab user
t 0 gh-secret-1 "$m" get gitlab pw
cp "$work/Zelto.xml" "$work/before"
t 0 'nothing changed in #1 "gitlab"' "$m" edit gitlab --user alice2
cmp -s "$work/before" "$work/Zelto.xml" || fail "an edit without change wrote the file"
t 0 'moved #2 "bank" to the trash' "$m" rm bank
t 0 $'#1 gitlab (work, code)\n#2 mail (work)' "$m" ls
t 0 '#1 bank (home)' "$m" ls --trash
x 3 "$m" 'no key named "bank"' get bank pw

# A new master password: the old file kept as a backup; a backup on request.
x 1 "${m}Bad pass"$'\nBad pass\n' "Invalid character in password (allowed: A-Z, a-z, 0-9)" passwd
n=$'NewMaster99\n'
cp "$work/Zelto.xml" "$work/before"
t 0 '*' "$m$n$n" passwd
has "master password changed; the old file is kept as \"$drive$work/Zelto.backup."
backup=${out#*kept as \"$drive}
cmp -s "${backup%\"}" "$work/before" || fail "the backup is not the old file"
t 0 "m@il pass" "$n" get mail pw
t 0 '#1 bank (home)' "$n" ls --trash
x 2 "$m" "wrong master password" get gitlab pw
m=$n
t 0 '*' "$m" backup
[[ $out == "$drive$work/Zelto.backup."*".xml" ]] && cmp -s "${out#"$drive"}" "$work/Zelto.xml" ||
  fail "the backup differs from the key file"

# Settings, clamped and stored; the user fields enciphered.
x 1 "" "--language takes English or Deutsch" settings --language Francais
t 0 $'autolock: 30\nclear-clipboard: 30\nshow-selected: 2\nlanguage: English\nfirst-name: \nlast-name: \nemail: ' \
  "$m" settings
t 0 '*' "$m" settings --clear-clipboard 601
has $'autolock: 30\nclear-clipboard: 600\nshow-selected: 2\n'
t 0 '*' "$m" settings --language Deutsch
t 0 $'autolock: 0\nclear-clipboard: 600\nshow-selected: 30\nlanguage: Deutsch\nfirst-name: Ada\nlast-name: Lovelace\nemail: ada@example.org' \
  "$m" settings --autolock 4 --show-selected 31 --first-name Ada --last-name Lovelace --email ada@example.org
grep -q '<autolock>0</autolock>' "$work/Zelto.xml" || fail "autolock not stored"
grep -q Lovelace "$work/Zelto.xml" && fail "a user field was stored in plain text"
t 0 '*' "$m" settings --last-name ""
has $'first-name: Ada\nlast-name: \nemail: ada@example.org'
if [ -z "$runner" ]; then  # no service on the host, but the data box comes first
  unset ZELTO_CLOUD_CONNECTION_STRING
  t 4 '*' "$m" export --show-data
  [[ $out == 'xmlData: <?xml version="1.0" encoding="utf-8"?>'*'</Zelto>' ]] || fail "data box"
  data=${out#xmlData: }
  t 4 "xmlData: ${#data} bytes of the enciphered key file (--show-data prints them)" "$m" export
  [ "$err" = "ERROR: cloud export failed: the cloud export is not available on this platform" ] ||
    fail "the export's failure"
fi

# A name two keys share.
t 0+ 'added #3 "mail"' "${m}other"$'\n' add mail --password-stdin
[ "$err" = 'WARNING: 2 keys are named "mail" (#2, #3); name one by its position' ] ||
  fail "no warning of the shared name"
grep -q '<language>Deutsch</language>' "$work/Zelto.xml" || fail "a write lost the language"
x 3 "$m" '2 keys are named "mail" (#2, #3); name one by its position' get mail pw
t 0 other "$m" get '#3' pw
x 3 "$m" "no key at position #9" get '#9' pw

# A file of the older format, converted on first use with its backup kept.
mkdir "$work/legacy"
cp "$legacy" "$work/legacy/Zelto.xml"
file="$drive$work/legacy/Zelto.xml"
l=$'legacy password\n'
t 2 "" $'wrong password 1\n' ls
[[ $err == 'ERROR: failed to read "'*'(Incorrect password))' ]] || fail "wrong password detail"
[ "$(ls "$work/legacy")" = Zelto.xml ] || fail "a failed conversion left files behind"
t 0 $'#1 Bank (money, home)\n#2 M\xC3\xBCller GmbH\n#3 Plain name' "$l" ls
grep -q encrypted "$work/legacy/Zelto.xml" && fail "the file was not converted"
cmp -s "$legacy" "$work"/legacy/Zelto.backup.*.xml || fail "no backup of the older file"
t 0 "p&ss<w>rd \"1\" 'x'" "$l" get Bank pw
t 0 $'autolock: 30\nclear-clipboard: 45\nshow-selected: 2\nlanguage: Deutsch\nfirst-name: \nlast-name: \nemail: ' \
  "$l" settings
[ "$(ls "$work/legacy" | grep -c .)" = 2 ] || fail "the converter left files behind"
echo "scenario passed"
