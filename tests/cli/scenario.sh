#!/usr/bin/env bash
# The command line from first use to a converted older file, step by step:
#   scenario.sh CLI LEGACY_FIXTURE [RUNNER]
# CLI is zelto-cli (or zelto-cli.exe with RUNNER, e.g. scripts/wine-run.sh). Every step's
# output and exit status are checked; the first wrong one ends the run with a message.
set -u
cli=${1:?usage: scenario.sh CLI LEGACY_FIXTURE [RUNNER]}
legacy_fixture=${2:?usage: scenario.sh CLI LEGACY_FIXTURE [RUNNER]}
runner=${3:-}
legacy_password="legacy password"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# A Windows program sees the Linux folders on drive Z:.
drive=""
[ -n "$runner" ] && drive="Z:"
file="$drive$work/Zelto.xml"
step=""

fail() {
  printf 'FAIL at step "%s": %s\n' "$step" "$1" >&2
  printf -- '--- exit status: %s\n--- standard output:\n%s\n--- standard error:\n%s\n' \
    "$status" "$out" "$err" >&2
  exit 1
}

# run INPUT ARGS...: runs the program on the key file with INPUT on standard input.
run() {
  local input=$1
  shift
  out=$(printf '%s' "$input" | $runner "$cli" --file "$file" "$@" 2>"$work/stderr")
  status=$?
  err=$(cat "$work/stderr")
}

expect_status() { [ "$status" = "$1" ] || fail "exit status $status, expected $1"; }
expect_out() { [ "$out" = "$1" ] || fail "output differs from: $1"; }
expect_err() { [ "$err" = "$1" ] || fail "standard error differs from: $1"; }
expect_out_has() { [[ $out == *"$1"* ]] || fail "output lacks: $1"; }
expect_err_has() { [[ $err == *"$1"* ]] || fail "standard error lacks: $1"; }
# ok INPUT ARGS...: a step that must succeed without a word on standard error.
ok() {
  run "$@"
  expect_status 0
  expect_err ""
}

pw="Master2024"
m="$pw"$'\n'

step="help"
run "" --help
expect_status 0
for command in init ls labels show get add edit rm passwd backup settings help; do
  expect_out_has "  $command "
done
run "" show --help
expect_status 0
[[ $out == "Usage: zelto-cli [--file PATH] show"* ]] || fail "help of show"
run "" frobnicate
expect_status 1
expect_err_has "ERROR: unknown command 'frobnicate'"

step="init"
ok "$m$m" init
expect_out "created \"$file\""
head -c 38 "$work/Zelto.xml" | grep -q '^<?xml version="1.0" encoding="utf-8"?>' ||
  fail "the new file is no key file"

step="three adds with labels"
ok "${m}gh-secret-1"$'\n' add github --label "work, dev" --user alice --email alice@example.org \
  --url https://github.example/ --note $'first line\nsecond line' --password-stdin
expect_out 'added #1 "github"'
ok "$m" add bank --label home --user bob --generate
expect_out 'added #2 "bank"'
ok "${m}m@il pass"$'\n' add mail --label work --user carol --password-stdin
expect_out 'added #3 "mail"'

step="ls"
ok "$m" ls
expect_out $'#1 github (work, dev)\n#2 bank (home)\n#3 mail (work)'
ok "$m" ls --label work
expect_out $'#1 github (work, dev)\n#3 mail (work)'
ok "$m" ls --label Work
expect_out ""
ok "$m" labels
expect_out $'work\ndev\nhome'

step="show"
ok "$m" show github
expect_out $'#1\nname:  github\nlabel: work, dev\nuser:  alice\npw:    ********\nemail: alice@example.org\nurl:   https://github.example/\nnote:  first line\n       second line'
ok "$m" show '#1' --json --reveal
expect_out_has '"pw": "gh-secret-1"'
expect_out_has '"note": "first line\nsecond line"'

step="get pw"
ok "$m" get github pw
expect_out "gh-secret-1"
ok "$m" get bank pw
[[ $out =~ ^zl[A-Za-z0-9]{14}$ ]] || fail "generated password $out"
bank_pw=$out

step="edit"
ok "$m" edit github --name gitlab --user alice2 --label "work, code"
expect_out 'changed #1 "gitlab"'
ok "$m" get '#1' name
expect_out "gitlab"
ok "$m" get gitlab user
expect_out "alice2"
ok "$m" get gitlab pw
expect_out "gh-secret-1"
cp "$work/Zelto.xml" "$work/before-edit"
ok "$m" edit gitlab --user alice2
expect_out 'nothing changed in #1 "gitlab"'
cmp -s "$work/before-edit" "$work/Zelto.xml" || fail "an edit without change wrote the file"
ok "$m" get bank pw
expect_out "$bank_pw"

step="rm and ls --trash"
ok "$m" rm bank
expect_out 'moved #2 "bank" to the trash'
ok "$m" ls
expect_out $'#1 gitlab (work, code)\n#2 mail (work)'
ok "$m" ls --trash
expect_out '#1 bank (home)'
run "$m" get bank pw
expect_status 3
expect_err 'ERROR: no key named "bank"'

step="passwd"
run "${m}Bad pass"$'\nBad pass\n' passwd
expect_status 1
expect_err "ERROR: Invalid character in password (allowed: A-Z, a-z, 0-9)"
new="NewMaster99"
n="$new"$'\n'
ok "$m$n$n" passwd
expect_out_has "master password changed; the old file is kept as \"$drive$work/Zelto.backup."
backup_of_passwd=${out#*kept as \"}
backup_of_passwd=${backup_of_passwd%\"}
cmp -s "${backup_of_passwd#"$drive"}" /dev/null && fail "the backup is empty"
ok "$n" get mail pw
expect_out "m@il pass"
ok "$n" ls --trash
expect_out '#1 bank (home)'
run "$m" get gitlab pw
expect_status 2
expect_err "ERROR: wrong master password"
expect_out ""
m=$n

step="backup"
ok "$m" backup
[[ $out == "$drive$work/Zelto.backup."*".xml" ]] || fail "backup path"
cmp -s "${out#"$drive"}" "$work/Zelto.xml" || fail "the backup differs from the key file"

step="settings clamps"
ok "$m" settings
expect_out $'autolock: 30\nclear-clipboard: 30\nshow-selected: 2\nlanguage: English\nfirst-name: \nlast-name: \nemail: '
ok "$m" settings --autolock 4 --clear-clipboard 601 --show-selected 31
expect_out_has $'autolock: 0\nclear-clipboard: 600\nshow-selected: 30\n'
ok "$m" settings --autolock 5 --language Deutsch
expect_out_has $'autolock: 5\nclear-clipboard: 600\nshow-selected: 30\nlanguage: Deutsch\n'
grep -q '<autolock>5</autolock>' "$work/Zelto.xml" || fail "autolock not stored"
grep -q '<language>Deutsch</language>' "$work/Zelto.xml" || fail "language not stored"

step="settings user fields"
ok "$m" settings --first-name Ada --last-name Lovelace --email ada@example.org
expect_out $'autolock: 5\nclear-clipboard: 600\nshow-selected: 30\nlanguage: Deutsch\nfirst-name: Ada\nlast-name: Lovelace\nemail: ada@example.org'
grep -q 'Lovelace' "$work/Zelto.xml" && fail "a user field was stored in plain text"
ok "$m" settings --last-name ""
expect_out_has $'first-name: Ada\nlast-name: \nemail: ada@example.org'

step="ambiguous name"
run "${m}other"$'\n' add mail --password-stdin
expect_status 0
expect_out 'added #3 "mail"'
expect_err 'WARNING: 2 keys are named "mail" (#2, #3); name one by its position'
grep -q '<language>Deutsch</language>' "$work/Zelto.xml" || fail "a write lost the language"
run "$m" get mail pw
expect_status 3
expect_err 'ERROR: 2 keys are named "mail" (#2, #3); name one by its position'
ok "$m" get '#3' pw
expect_out "other"
run "$m" get '#9' pw
expect_status 3
expect_err "ERROR: no key at position #9"

step="legacy file converted"
mkdir "$work/legacy"
cp "$legacy_fixture" "$work/legacy/Zelto.xml"
file="$drive$work/legacy/Zelto.xml"
run "wrong password 1"$'\n' ls
expect_status 2
expect_out ""
[[ $err == 'ERROR: failed to read "'*'(Incorrect password))' ]] || fail "wrong password detail"
[ "$(ls "$work/legacy")" = Zelto.xml ] || fail "a failed conversion left files behind"
ok "$legacy_password"$'\n' ls
expect_out $'#1 Bank (money, home)\n#2 M\xC3\xBCller GmbH\n#3 Plain name'
grep -q encrypted "$work/legacy/Zelto.xml" && fail "the file was not converted"
cmp -s "$legacy_fixture" "$work"/legacy/Zelto.backup.*.xml || fail "no backup of the older file"
ok "$legacy_password"$'\n' get Bank pw
expect_out "p&ss<w>rd \"1\" 'x'"
ok "$legacy_password"$'\n' settings
expect_out $'autolock: 30\nclear-clipboard: 45\nshow-selected: 2\nlanguage: Deutsch\nfirst-name: \nlast-name: \nemail: '
[ "$(ls "$work/legacy" | grep -c .)" = 2 ] || fail "the converter left files behind"

echo "scenario passed"
