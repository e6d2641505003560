#!/usr/bin/env bash
# Fetches the XML pull parser's sources from Debian's irrlicht source package into DEST
# (inside the build tree). Only the handful of files the parser needs are unpacked.
set -euo pipefail
dest=${1:?usage: fetch-irrxml.sh DEST}
if [ -f "$dest/source/Irrlicht/irrXML.cpp" ]; then
  exit 0
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
if ! apt-get source --download-only irrlicht >apt.log 2>&1; then
  cat apt.log >&2
  echo "fetch-irrxml.sh: apt-get source irrlicht failed (is there a deb-src entry? run scripts/install-deps.sh)" >&2
  exit 1
fi
orig=$(ls irrlicht_*.orig.tar.* | sed -n 1p)
top=$(tar -tf "$orig" | sed -n 1p | cut -d/ -f1)
tar -xf "$orig" --wildcards \
  "$top/source/Irrlicht/irrXML.cpp" "$top/source/Irrlicht/CXMLReaderImpl.h" \
  "$top/include/*.h"
mkdir -p "$(dirname "$dest")"
rm -rf "$dest"
mv "$top" "$dest"
