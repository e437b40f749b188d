#!/usr/bin/env bash
# Makes the JPEGs that stand beside the program from their drawings. Needs rsvg-convert (Debian
# package librsvg2-bin) and ImageMagick.
#
# The JPEGs say 200 dots per inch: 424 x 106 dots are 2.12 x 0.53 inches, which fits into the three
# empty lines of 12 point text above the title of the printed report (0.566 inch).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for name in BrindleLogo VeltraneLogo; do
    rsvg-convert --width 424 --height 106 "$name.svg" |
        convert png:- -background white -flatten -strip -units PixelsPerInch -density 200 \
            -sampling-factor 4:2:0 -quality 92 "$name.jpg"
done
