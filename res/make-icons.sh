#!/usr/bin/env bash
# Draws the program's icons with ImageMagick: a key on a rounded tile in the window
# background colour. Writes zelto.ico (256, 48, 32, 16) and zelto-small.ico (16, 32) into
# the given folder (default: this script's folder). Run again after changing the drawing.
set -euo pipefail
out=${1:-$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The drawing is made once at 256 pixels; the smaller sizes are scaled from it.
convert -size 256x256 xc:none \
  -fill '#CC9393' -stroke '#6E3F3F' -strokewidth 8 \
  -draw 'roundrectangle 12,12 243,243 44,44' \
  -fill '#C0C8F0' -stroke '#0000C0' -strokewidth 14 \
  -draw 'circle 86,128 86,74' \
  -fill '#0000C0' -stroke none \
  -draw 'circle 86,128 86,106' \
  -draw 'rectangle 132,116 226,140' \
  -draw 'rectangle 178,140 196,176' \
  -draw 'rectangle 208,140 226,164' \
  -fill '#CC9393' -draw 'circle 86,128 86,114' \
  -depth 8 "$work/key-256.png"

for size in 48 32 16; do
  convert "$work/key-256.png" -filter Lanczos -resize ${size}x${size} -depth 8 "$work/key-${size}.png"
done

convert "$work/key-256.png" "$work/key-48.png" "$work/key-32.png" "$work/key-16.png" \
  "$out/zelto.ico"
convert "$work/key-16.png" "$work/key-32.png" "$out/zelto-small.ico"
