#!/usr/bin/env bash
# scripts/run.sh on a machine without a display, as a newcomer meets it: a fresh run folder
# (so a first start), the address it prints opened in headless Chromium, and in the picture
# the Set Master Password dialog. Then run.sh is stopped and must leave nothing running.
#   browser_view.sh SCREENSHOT
# Everything started here is stopped at the end, whatever happened.
set -u
shot=${1:?usage: browser_view.sh SCREENSHOT}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
work=$(mktemp -d)
run_pid=""
chrome_pid=""

# end_group PID: ends the process group that PID leads, waiting up to 10 s.
end_group() {
  local i
  kill -TERM -- "-$1" 2>/dev/null
  for i in $(seq 1 100); do
    pgrep -g "$1" >/dev/null || return 0
    sleep 0.1
  done
  kill -KILL -- "-$1" 2>/dev/null
}
stop_run() {
  local i
  kill -TERM "$run_pid" 2>/dev/null  # run.sh stops what it started
  for i in $(seq 1 200); do
    kill -0 "$run_pid" 2>/dev/null || break
    sleep 0.1
  done
}
cleanup() {
  [ -n "$chrome_pid" ] && end_group "$chrome_pid"
  if [ -n "$run_pid" ]; then
    stop_run
    end_group "$run_pid"  # whatever it left
  fi
  rm -rf "$work"
}
trap cleanup EXIT
fail() {
  printf 'FAIL: %s\n--- run.sh said:\n' "$*" >&2
  sed 's/password=[^&[:space:]]*/password=.../' "$work/run.log" | tail -n 30 >&2
  exit 1
}

port=$(/usr/bin/python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])') ||
  fail "no free port"

# Sessions of their own, so that whatever run.sh or chromium leave is found by its group.
env -u DISPLAY ZELTO_RUN_DIR="$work/run" ZELTO_WEB_PORT="$port" \
  setsid "$root/scripts/run.sh" >"$work/run.log" 2>&1 &
run_pid=$!
url=""
for i in $(seq 1 600); do
  url=$(grep -o 'http://127\.0\.0\.1:[0-9]*/vnc\.html?[^[:space:]]*' "$work/run.log" | head -n 1)
  [ -n "$url" ] && break
  kill -0 "$run_pid" 2>/dev/null || fail "run.sh ended without an address"
  sleep 0.5
done
[ -n "$url" ] || fail "no address within 300 s"
[[ $url == "http://127.0.0.1:$port/vnc.html?"*autoconnect=1*password=* ]] ||
  fail "the address lacks autoconnect or the password"
echo "ok   run.sh without a display printed the address to open"

setsid chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
  --disable-background-networking --disable-component-update --disable-sync \
  --user-data-dir="$work/chrome" --window-size=1280,1024 --remote-debugging-address=127.0.0.1 \
  --remote-debugging-port=0 about:blank >"$work/chrome.log" 2>&1 &
chrome_pid=$!
devtools=""
for i in $(seq 1 300); do
  devtools=$(head -n 1 "$work/chrome/DevToolsActivePort" 2>/dev/null)
  [ -n "$devtools" ] && break
  kill -0 "$chrome_pid" 2>/dev/null || break
  sleep 0.1
done
[ -n "$devtools" ] || { tail -n 20 "$work/chrome.log" >&2; fail "chromium did not start"; }

mkdir -p "$(dirname "$shot")"
# It ends with 0 once the page's picture holds enough pixels of the dialog colour.
/usr/bin/python3 "$root/tests/zelto/browser_shot.py" "$devtools" "$url" "$shot" 240 ||
  fail "the page did not show the dialog within 240 s (see $shot)"
echo "ok   the browser shows the Set Master Password dialog ($shot)"

stop_run
kill -0 "$run_pid" 2>/dev/null && fail "run.sh did not end when asked to"
wait "$run_pid" 2>/dev/null
# Processes still alive in its group after a grace period; killed ones that nobody has
# reaped yet (zombies) are gone in all but name.
for i in $(seq 1 100); do
  left=$(ps -o pid=,stat= -g "$run_pid" 2>/dev/null | awk '$2 !~ /^Z/ { printf "%s ", $1 }')
  [ -z "$left" ] && break
  sleep 0.1
done
run_pid=""
[ -z "$left" ] || fail "run.sh left processes running: $left"
(exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null && fail "port $port still answers"
echo "ok   stopping run.sh stops everything it started"
