#!/usr/bin/env bash
# Makes the JPEGs that stand beside the program from their drawings. Needs rsvg-convert (Debian
# package librsvg2-bin) and ImageMagick.
#
# The JPEGs say 300 dots per inch: 640 x 160 dots are 2.13 x 0.53 inches, which fits into the three
# empty lines of 12 point text above the title of the printed report (0.566 inch).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for name in BrindleLogo VeltraneLogo; do
    rsvg-convert --width 640 --height 160 "$name.svg" |
        convert png:- -background white -flatten -strip -units PixelsPerInch -density 300 \
            -sampling-factor 4:4:4 -quality 92 "$name.jpg"
done
