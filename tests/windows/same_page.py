"""Whether two printed pages look the same: every word in its place, and the pictures of both."""

import html
import re
import subprocess

# In points. Windows measures letters in whole dots of the printer, so that a long line ends up to a
# letter's width elsewhere.
SIDEWAYS = 5.5
UP_OR_DOWN = 1.5
# The pictures are compared in boxes, by how dark they are on the whole, since no two systems smooth a
# letter's edge alike. In dots, 72 an inch: a box holds a word or two of a line.
BOX_WIDTH, BOX_HEIGHT = 48, 8
# Of 255. The same line differs by 11 at most; the box of a line that is missing, by 29 at least.
BOX_TOLERANCE = 20

WORD = re.compile(r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="[\d.]+">(.*)</word>')


def without_soft_hyphens(text):
    """Wine's fonts have one shape for the hyphen and the soft one, and call it the latter."""
    return text.replace("\u00ad", "-")


def words(file):
    """The words of a PDF file's page, each with its left and upper edge in points."""
    text = subprocess.run(["pdftotext", "-bbox", str(file), "-"], capture_output=True, check=True,
                          encoding="utf-8").stdout
    return [(without_soft_hyphens(html.unescape(word)), float(left), float(top))
            for left, top, word in WORD.findall(text)]


def boxes(file):
    """The page's picture as rows of boxes, 0 (black) to 255."""
    picture = subprocess.run(["pdftoppm", "-r", "72", "-gray", "-singlefile", str(file)],
                             capture_output=True, check=True).stdout
    width, height, start = size_of_picture(picture)
    pixels = picture[start:]

    def grey(left, top):
        inside = b"".join(pixels[y * width + left:y * width + min(left + BOX_WIDTH, width)]
                          for y in range(top, min(top + BOX_HEIGHT, height)))
        return sum(inside) / len(inside)
    return [[grey(left, top) for left in range(0, width, BOX_WIDTH)]
            for top in range(0, height, BOX_HEIGHT)]


def size_of_picture(picture):
    header = re.match(rb"P5\s+(\d+)\s+(\d+)\s+255\s", picture)
    return int(header[1]), int(header[2]), header.end()


def differences(one, other):
    """What differs between the pages of two PDF files, one line each."""
    first, second = words(one), words(other)
    if not first or len(first) != len(second):
        return [f"{len(first)} and {len(second)} words"]
    found = []
    for place, ((here, left, top), (there, other_left, other_top)) in enumerate(zip(first, second)):
        if here != there and not is_month(first, place):
            found.append(f"'{here}' and '{there}'")
        if abs(left - other_left) > SIDEWAYS or abs(top - other_top) > UP_OR_DOWN:
            found.append(f"'{here}' at {left:.1f}, {top:.1f} and {other_left:.1f}, {other_top:.1f}")
    return found + picture_differences(boxes(one), boxes(other))


def is_month(page, place):
    """Whether this is the month of a date, whose name is the system's own."""
    return (0 < place < len(page) - 1 and re.fullmatch(r"\d\d", page[place - 1][0]) is not None
            and re.fullmatch(r"\d{4}", page[place + 1][0]) is not None)


def picture_differences(one, other):
    if [len(row) for row in one] != [len(row) for row in other]:
        return ["pages of different sizes"]
    return [f"the picture's box {column}, {row}: {here:.0f} and {there:.0f}"
            for row, (first, second) in enumerate(zip(one, other))
            for column, (here, there) in enumerate(zip(first, second))
            if abs(here - there) > BOX_TOLERANCE]
