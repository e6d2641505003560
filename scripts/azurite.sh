#!/usr/bin/env bash
# Sourced by the scripts that test the cloud export: starts the table service emulator
# pinned in package.json (installed by scripts/install-deps.sh) on 127.0.0.1, in memory,
# on a free port, without telemetry, and exports
#   ZELTO_AZURITE_PORT             the port it listens on
#   ZELTO_CLOUD_CONNECTION_STRING  the emulator's well-known account at that port
# It stops when the calling script exits (an EXIT trap set before is kept) or on
# zelto_stop_azurite.

zelto_azurite_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
zelto_azurite_key='Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/K1SZFPTOtr/KBHBeksoGMGw=='

# A port on 127.0.0.1 that nothing answers on.
zelto_free_port() {
  local port i
  for i in $(seq 1 50); do
    port=$((20000 + RANDOM % 20000))
    if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
      echo "$port"
      return 0
    fi
  done
  return 1
}

zelto_start_azurite() {
  local bin port attempt i previous
  bin=$zelto_azurite_root/node_modules/.bin/azurite-table
  if [ ! -x "$bin" ]; then
    echo "azurite is not installed (run scripts/install-deps.sh)" >&2
    return 1
  fi
  for attempt in 1 2 3; do
    port=$(zelto_free_port) || break
    ZELTO_AZURITE_DIR=$(mktemp -d)
    (cd "$ZELTO_AZURITE_DIR" && exec "$bin" --tableHost 127.0.0.1 --tablePort "$port" \
        --inMemoryPersistence --disableTelemetry --silent) >"$ZELTO_AZURITE_DIR/azurite.log" 2>&1 &
    ZELTO_AZURITE_PID=$!
    for i in $(seq 1 150); do
      if ! kill -0 "$ZELTO_AZURITE_PID" 2>/dev/null; then
        break  # it died, perhaps because the port was taken meanwhile
      fi
      if (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
        export ZELTO_AZURITE_PORT=$port
        export ZELTO_CLOUD_CONNECTION_STRING="DefaultEndpointsProtocol=http;AccountName=devstoreaccount1;AccountKey=$zelto_azurite_key;TableEndpoint=http://127.0.0.1:$port/devstoreaccount1"
        previous=$(trap -p EXIT)
        previous=${previous#"trap -- '"}
        previous=${previous%"' EXIT"}
        if [ -n "$previous" ] && [ "${previous#*zelto_stop_azurite}" = "$previous" ]; then
          # shellcheck disable=SC2064
          trap "zelto_stop_azurite; $previous" EXIT
        else
          trap zelto_stop_azurite EXIT
        fi
        echo "azurite table service on 127.0.0.1:$port"
        return 0
      fi
      sleep 0.2
    done
    echo "azurite did not start on port $port (attempt $attempt):" >&2
    tail -n 20 "$ZELTO_AZURITE_DIR/azurite.log" >&2
    zelto_stop_azurite
  done
  return 1
}

zelto_stop_azurite() {
  if [ -n "${ZELTO_AZURITE_PID:-}" ]; then
    kill "$ZELTO_AZURITE_PID" 2>/dev/null
    wait "$ZELTO_AZURITE_PID" 2>/dev/null
    ZELTO_AZURITE_PID=
  fi
  if [ -n "${ZELTO_AZURITE_DIR:-}" ]; then
    rm -rf "$ZELTO_AZURITE_DIR"
    ZELTO_AZURITE_DIR=
  fi
  unset ZELTO_AZURITE_PORT ZELTO_CLOUD_CONNECTION_STRING
}
