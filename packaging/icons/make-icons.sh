#!/usr/bin/env bash
# Makes the icon's usual sizes from its drawing. Needs rsvg-convert (Debian package librsvg2-bin).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" --output "tarvix-$size.png" tarvix.svg
done
