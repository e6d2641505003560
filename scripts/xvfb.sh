#!/usr/bin/env bash
# Sourced by the scripts that need an X display: starts a private Xvfb on a free display
# number, exports DISPLAY, and stops the server when the calling script exits.
zelto_start_xvfb() {
  local n
  for n in $(seq 90 130); do
    if [ ! -e "/tmp/.X${n}-lock" ] && [ ! -e "/tmp/.X11-unix/X${n}" ]; then
      Xvfb ":${n}" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
      ZELTO_XVFB_PID=$!
      export DISPLAY=":${n}"
      local i
      for i in $(seq 1 50); do
        [ -e "/tmp/.X11-unix/X${n}" ] && break
        sleep 0.1
      done
      if ! kill -0 "$ZELTO_XVFB_PID" 2>/dev/null; then
        echo "Xvfb failed to start on :${n}" >&2
        return 1
      fi
      trap zelto_stop_xvfb EXIT
      return 0
    fi
  done
  echo "no free X display number" >&2
  return 1
}

zelto_stop_xvfb() {
  if [ -n "${ZELTO_XVFB_PID:-}" ]; then
    kill "$ZELTO_XVFB_PID" 2>/dev/null
    wait "$ZELTO_XVFB_PID" 2>/dev/null
    ZELTO_XVFB_PID=
  fi
}
