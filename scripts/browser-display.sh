#!/usr/bin/env bash
# Sourced by run.sh on a machine without a display: a private Xvfb (xvfb.sh) that a browser
# shows through Debian's noVNC page, x11vnc on the display and websockify in front of it,
# all on 127.0.0.1 only. Other users of the machine reach the loopback too, so the VNC
# password is new each run and appears only in the address that is printed.
#   ZELTO_WEB_PORT  the page's port (default 6080)
# zelto_start_browser_display exports DISPLAY and ZELTO_VIEW_URL; zelto_stop_browser_display
# ends everything it started.

# shellcheck source=xvfb.sh
. "$(dirname "${BASH_SOURCE[0]}")/xvfb.sh"

zelto_novnc=/usr/share/novnc

# zelto_port_answers PORT: something listens on 127.0.0.1:PORT.
zelto_port_answers() { (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }

zelto_start_browser_display() {
  local web_port=${ZELTO_WEB_PORT:-6080} pw vnc_port i
  if ! command -v x11vnc >/dev/null || ! command -v websockify >/dev/null ||
     [ ! -f "$zelto_novnc/vnc.html" ]; then
    echo "x11vnc, websockify or novnc is missing (run scripts/install-deps.sh)" >&2
    return 1
  fi
  if zelto_port_answers "$web_port"; then
    echo "port $web_port on 127.0.0.1 is taken (another run.sh?); choose one with ZELTO_WEB_PORT" >&2
    return 1
  fi
  local on_exit
  on_exit=$(trap -p EXIT)
  zelto_start_xvfb || return 1
  # Leave the caller's EXIT trap as it was: its clean-up calls zelto_stop_browser_display.
  eval "${on_exit:-trap - EXIT}"
  ZELTO_VIEW_DIR=$(umask 077 && mktemp -d)
  pw=$(head -c 48 /dev/urandom | base64 | tr -dc 'A-Za-z0-9')
  pw=${pw:0:8}  # VNC uses eight characters at most
  (umask 077 && printf '%s\n' "$pw" >"$ZELTO_VIEW_DIR/passwd")
  # The password goes through a file that x11vnc removes, never through its command line.
  x11vnc -display "$DISPLAY" -localhost -passwdfile "rm:$ZELTO_VIEW_DIR/passwd" \
    -noipv6 -forever -shared -quiet >"$ZELTO_VIEW_DIR/x11vnc.log" 2>&1 &
  ZELTO_X11VNC_PID=$!
  for i in $(seq 1 100); do
    vnc_port=$(sed -n 's/^PORT=\([0-9]*\)$/\1/p' "$ZELTO_VIEW_DIR/x11vnc.log" | head -n 1)
    [ -n "$vnc_port" ] && break
    kill -0 "$ZELTO_X11VNC_PID" 2>/dev/null || break
    sleep 0.1
  done
  if [ -z "$vnc_port" ]; then
    echo "x11vnc did not start:" >&2
    tail -n 20 "$ZELTO_VIEW_DIR/x11vnc.log" >&2
    return 1
  fi
  websockify --web "$zelto_novnc" "127.0.0.1:$web_port" "127.0.0.1:$vnc_port" \
    >"$ZELTO_VIEW_DIR/websockify.log" 2>&1 &
  ZELTO_WEBSOCKIFY_PID=$!
  for i in $(seq 1 100); do
    zelto_port_answers "$web_port" && break
    kill -0 "$ZELTO_WEBSOCKIFY_PID" 2>/dev/null || break
    sleep 0.1
  done
  if ! zelto_port_answers "$web_port"; then
    echo "websockify did not start:" >&2
    tail -n 20 "$ZELTO_VIEW_DIR/websockify.log" >&2
    return 1
  fi
  export ZELTO_VIEW_URL="http://127.0.0.1:$web_port/vnc.html?autoconnect=1&resize=scale&password=$pw"
}

zelto_stop_browser_display() {
  local pid
  for pid in "${ZELTO_WEBSOCKIFY_PID:-}" "${ZELTO_X11VNC_PID:-}"; do
    [ -n "$pid" ] || continue
    kill "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
  done
  ZELTO_WEBSOCKIFY_PID= ZELTO_X11VNC_PID=
  zelto_stop_xvfb
  if [ -n "${ZELTO_VIEW_DIR:-}" ]; then
    rm -rf "$ZELTO_VIEW_DIR"
    ZELTO_VIEW_DIR=
  fi
}
