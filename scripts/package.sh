#!/usr/bin/env bash
# Builds the release of the Windows programs (preset windows-release: optimised, stripped,
# static) and packs them for Windows users:
#   scripts/package.sh [--no-build] [OUT_DIR]
# writes OUT_DIR/Zelto-<version>-win64.zip (OUT_DIR: dist/) holding Zelto.exe, zelto-cli.exe,
# README.txt and SHA256SUMS. The same commit gives the same bytes in any checkout folder:
# the build maps its folders away and leaves time stamps out, the About dialog's date is the
# commit's (SOURCE_DATE_EPOCH), and the zip has fixed names, order, dates and modes.
# --no-build packs what build/windows-release already holds.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

build=1
if [ "${1:-}" = --no-build ]; then
  build=0
  shift
fi
out=${1:-$root/dist}

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct) || {
  echo "package.sh: needs a git checkout (the commit's date dates the release)" >&2
  exit 1
}
export SOURCE_DATE_EPOCH

# The version the program writes into its key files.
version=$(sed -nE 's/^constexpr long zlVersion(Major|Minor|Patch) = ([0-9]+);.*/\2/p' \
  model/zlVersion.h | paste -sd.)
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || {
  echo "package.sh: no version in model/zlVersion.h" >&2
  exit 1
}

bin=build/windows-release
if [ "$build" = 1 ]; then
  if [ -n "$(git status --porcelain --untracked-files=no)" ]; then
    echo "package.sh: the working tree has changes; the package holds them" >&2
  fi
  mkdir -p build
  log=build/package-build.log
  echo "building the release (log: $log)"
  if ! { cmake --preset windows-release &&
         cmake --build --preset windows-release -j "$(nproc 2>/dev/null || echo 2)"; } >"$log" 2>&1; then
    grep -E -B2 -A12 'error|FAILED' "$log" | head -n 60 >&2
    echo "package.sh: the build failed; the whole log is in $log" >&2
    exit 1
  fi
fi
for f in "$bin/zelto/Zelto.exe" "$bin/cli/zelto-cli.exe"; do
  [ -f "$f" ] || { echo "package.sh: $f is missing" >&2; exit 1; }
done

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cp "$bin/zelto/Zelto.exe" "$bin/cli/zelto-cli.exe" "$stage/"
sed -e "s/@VERSION@/$version/" -e 's/$/\r/' release/README.txt >"$stage/README.txt"
(cd "$stage" && sha256sum Zelto.exe zelto-cli.exe README.txt >SHA256SUMS)

zip=$out/Zelto-$version-win64.zip
mkdir -p "$out"
python3 - "$stage" "$zip.new" "$SOURCE_DATE_EPOCH" Zelto.exe zelto-cli.exe README.txt SHA256SUMS <<'EOF'
import os, sys, time, zipfile
stage, target, epoch, names = sys.argv[1], sys.argv[2], int(sys.argv[3]), sys.argv[4:]
# Zip dates are local times from 1980 on: the commit's time in UTC, never earlier.
stamp = time.gmtime(max(epoch, 315532800))[:6]
with zipfile.ZipFile(target, "w") as z:
    for name in names:
        info = zipfile.ZipInfo(name, stamp)
        info.compress_type = zipfile.ZIP_DEFLATED
        info.create_system = 3
        info.external_attr = 0o100644 << 16
        with open(os.path.join(stage, name), "rb") as f:
            z.writestr(info, f.read(), compresslevel=9)
EOF
mv -f "$zip.new" "$zip"
echo "$zip: $(stat -c %s "$zip") bytes, Zelto.exe $(stat -c %s "$stage/Zelto.exe") bytes"
echo "sha256 $(sha256sum "$zip" | cut -d' ' -f1)"
