#!/usr/bin/env bash
# Installs whatever the build and the tests need and is missing. Safe to run again.
set -euo pipefail

packages=(
  cmake ninja-build g++ clang clang-format dpkg-dev
  libssl-dev libgtest-dev googletest libbenchmark-dev nlohmann-json3-dev
  g++-mingw-w64-x86-64-posix mingw-w64-tools
  wine wine64 fonts-wine xvfb xauth xdotool imagemagick
)

if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

# irrXML comes from the irrlicht source package, so apt needs a deb-src entry.
need_src=0
if ! grep -rqsE '^(deb-src|Types:.*deb-src)' /etc/apt/sources.list /etc/apt/sources.list.d/; then
  need_src=1
fi

if [ "${#missing[@]}" -eq 0 ] && [ "$need_src" -eq 0 ]; then
  exit 0
fi

if [ "$need_src" -eq 1 ]; then
  codename=$(. /etc/os-release && echo "${VERSION_CODENAME}")
  uri=http://deb.debian.org/debian
  keyring=/usr/share/keyrings/debian-archive-keyring.gpg
  if [ -f /etc/apt/sources.list.d/debian.sources ]; then
    # Take the machine's own mirror and keyring so that apt sees one consistent source.
    uri=$(awk '/^URIs:/ {print $2; exit}' /etc/apt/sources.list.d/debian.sources)
    keyring=$(awk '/^Signed-By:/ {print $2; exit}' /etc/apt/sources.list.d/debian.sources)
  elif [ -f /etc/apt/sources.list ]; then
    uri=$(awk '/^deb / && $0 !~ /security/ {print $2; exit}' /etc/apt/sources.list)
  fi
  printf 'Types: deb-src\nURIs: %s\nSuites: %s\nComponents: main\nSigned-By: %s\n' \
    "$uri" "$codename" "$keyring" | "${sudo[@]}" tee /etc/apt/sources.list.d/zelto-src.sources >/dev/null
fi

export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
if [ "${#missing[@]}" -gt 0 ]; then
  echo "installing: ${missing[*]}"
  "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
