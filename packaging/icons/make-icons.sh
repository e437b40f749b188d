#!/usr/bin/env bash
# Makes the icon's usual sizes from its drawing. Needs rsvg-convert and convert (Debian packages
# librsvg2-bin, imagemagick).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" --output "tarvix-$size.png" tarvix.svg
done
# Windows keeps its sizes in one file.
convert tarvix-16.png tarvix-24.png tarvix-32.png tarvix-48.png tarvix-256.png ../windows/tarvix.ico
