#!/usr/bin/env bash
# Installs whatever the build and the tests need and is missing. Safe to run again.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang clang-format dpkg-dev
  libssl-dev libgtest-dev googletest libbenchmark-dev nlohmann-json3-dev
  g++-mingw-w64-x86-64-posix mingw-w64-tools
  wine wine64 fonts-wine xvfb xauth xdotool imagemagick
  x11vnc novnc websockify chromium python3-websocket  # run.sh without a display, and its browser test
)

# --- cloud export tests: the emulator pinned in package.json and package-lock.json. ---
# npm ci runs only when node_modules is missing or the lock file changed since it last ran.
install_npm_packages() {
  local root stamp sum
  root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
  [ -f "$root/package-lock.json" ] || return 0
  stamp=$root/node_modules/.zelto-lock.sha256
  sum=$(sha256sum "$root/package-lock.json" | cut -d' ' -f1)
  if [ -x "$root/node_modules/.bin/azurite-table" ] && [ "$(cat "$stamp" 2>/dev/null)" = "$sum" ]; then
    return 0
  fi
  echo "installing npm packages (npm ci)"
  (cd "$root" && npm ci --no-audit --no-fund --loglevel=error) || return 1
  echo "$sum" >"$stamp"
}
# --- end of the cloud export block ---

if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
# Cloud export tests: node and npm from Debian, unless the machine has them already (some
# node packages bring their own npm and conflict with Debian's).
command -v node >/dev/null 2>&1 || missing+=(nodejs)
command -v npm >/dev/null 2>&1 || missing+=(npm)

# irrXML comes from the irrlicht source package, so apt needs a deb-src entry.
need_src=0
if ! grep -rqsE '^(deb-src|Types:.*deb-src)' /etc/apt/sources.list /etc/apt/sources.list.d/; then
  need_src=1
fi

if [ "${#missing[@]}" -eq 0 ] && [ "$need_src" -eq 0 ]; then
  install_npm_packages  # cloud export tests
  exit $?
fi

# machine_source: "URI SUITE [KEYRING]" of the first enabled binary source that is not the
# security suite, from the machine's own apt sources (one-line and deb822 files). Nothing
# when there is none.
machine_source() {
  local f
  for f in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -f "$f" ] || continue
    awk '$1 == "deb" {
           keyring = ""; i = 2
           if ($2 ~ /^\[/) {
             for (; i <= NF; i++) {
               if (match($i, /signed-by=[^] ]+/)) keyring = substr($i, RSTART + 10, RLENGTH - 10)
               if ($i ~ /\]$/) { i++; break }
             }
           }
           if ($(i + 1) ~ /-security$/) next
           print $i, $(i + 1), keyring; exit
         }' "$f"
  done
  for f in /etc/apt/sources.list.d/*.sources; do
    [ -f "$f" ] || continue
    awk 'BEGIN { RS = ""; FS = "\n" }
         {
           types = uri = suite = keyring = ""; enabled = 1
           for (n = 1; n <= NF; n++) {
             split($n, w, /[ \t]+/)
             if (w[1] == "Types:") types = " " substr($n, 7) " "
             else if (w[1] == "URIs:") uri = w[2]
             else if (w[1] == "Suites:") suite = w[2]
             else if (w[1] == "Signed-By:" && w[2] ~ /^\//) keyring = w[2]
             else if (w[1] == "Enabled:" && w[2] == "no") enabled = 0
           }
           if (enabled && types ~ / deb / && uri != "" && suite !~ /-security$/) {
             print uri, suite, keyring; exit
           }
         }' "$f"
  done
}

if [ "$need_src" -eq 1 ]; then
  # The source packages come from where the machine's own binary packages come from.
  read -r uri suite keyring < <(machine_source | head -n 1) || true
  if [ -z "${uri:-}" ] || [ -z "${suite:-}" ]; then
    echo "install-deps.sh: no package source found under /etc/apt (sources.list, sources.list.d);" \
      "configure the machine's Debian sources first, then run this again" >&2
    exit 1
  fi
  {
    printf 'Types: deb-src\nURIs: %s\nSuites: %s\nComponents: main\n' "$uri" "$suite"
    [ -n "${keyring:-}" ] && printf 'Signed-By: %s\n' "$keyring"
  } | "${sudo[@]}" tee /etc/apt/sources.list.d/zelto-src.sources >/dev/null
fi

export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
if [ "${#missing[@]}" -gt 0 ]; then
  echo "installing: ${missing[*]}"
  "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

install_npm_packages  # cloud export tests
