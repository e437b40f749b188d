#!/usr/bin/env bash
# Makes the JPEGs that stand beside the program from their drawings. Needs rsvg-convert (Debian
# package librsvg2-bin) and ImageMagick.
#
# The JPEGs say 600 dots per inch: 1272 x 318 dots are 2.12 x 0.53 inches, which fits into the three
# empty lines of 12 point text above the title of the printed report (0.566 inch). The drawings begin
# at the picture's upper left corner, so that the logo stands flush with the text below it and the
# white of the picture's foot keeps it off the title.
#
# Full colour for every dot: coarser colours make a speckled halo around the letters. A finer quality
# takes the start longer to read and cannot be told apart on paper.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for name in BrindleLogo VeltraneLogo; do
    rsvg-convert --width 1272 --height 318 "$name.svg" |
        convert png:- -background white -flatten -strip -units PixelsPerInch -density 600 \
            -sampling-factor 4:4:4 -quality 95 "$name.jpg"
done
