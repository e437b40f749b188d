#!/usr/bin/env python3
"""One calculation printed on every kind of paper: from the real window on a real X server, by its
button, its menu and Ctrl+P in turn, over the queues of a real print system, and into PDF files where
there is none.

    paper_journey.py PROGRAM PICTURES

The printed pages are left in the folder PICTURES. Where the desktop or the print system can't be set
up, the journey says so and ends with exit status 77: skipped.
"""

import itertools
import pathlib
import re
import sys

import journey as journeys
import printing
from desk import wait_until

# Queue, its settings, the size of the sheet in points, and the part of its size at which the page is
# printed: 72 characters of 12 points, 518.5 points, have to fit into 0.88 of the width. (Executive:
# 0.88 x 522 / 518.5 = 0.886. A5: 0.88 x 420 / 518.5 = 0.713.) A sheet that lies on its side gets the
# page as it stands on an upright one.
PAPERS = (
    ("Letter", {"PageSize": "Letter"}, (612, 792), 1),
    ("A4", {"PageSize": "A4"}, (595, 842), 1),
    ("Legal", {"PageSize": "Legal"}, (612, 1008), 1),
    ("A3", {"PageSize": "A3"}, (842, 1191), 1),
    ("Executive", {"PageSize": "Executive"}, (522, 756), 0.886),
    ("A5", {"PageSize": "A5"}, (420, 595), 0.713),
    ("A5-landscape", {"PageSize": "A5", "orientation_requested_default": 4}, (595, 420), 0.713),
    ("A5-rotated", {"PageSize": "A5Rotated"}, (595, 420), 0.713),
)

# Papers that the description from cups-filters lacks.
MORE_PAPERS = (("A3", "A3", 842, 1191), ("A5Rotated", "A5 (landscape)", 595, 420))

# Water in a 4 inch pipe: 142.3 US gallons a minute (worked out in the metering journeys).
LINES = (
    r"Orifice calculation for Flow Rate - Flange Taps - Liquid",
    r"Customer: Northfield Refinery",
    r"Tag: FE-4102/B",
    r"Flow Rate +142\.30 Gallons/Minute",
    r"Differential Pressure +100\.00 Inches Water",
    r"Base Specific Gravity +1\.00",
    r"Pipe Diameter +4\.026 Inches",
    r"Bore Diameter \(approximate\) +2\.013 Inches",
    r"Beta \(approximate\) +0\.50000",
    r"Note: Values for the beta ratio are approximate, typically within",
    r"pressure, or flow rate, please consult your Brindle representative for",
    r"Marlow Falls, OH +Tel\. \(555\) 555-0110.*",
    r"\d\d [A-Z][a-z][a-z] 20\d\d +Web site: www\.brindle\.example",
)


def description_with_more_papers(folder):
    text = pathlib.Path(printing.print_journey.DESCRIPTION).read_text(encoding="utf-8")
    for key, name, width, height in MORE_PAPERS:
        for option, value in (("PageSize", ""), ("PageRegion", ""),
                              ("ImageableArea", f"0 0 {width} {height}"),
                              ("PaperDimension", f"{width} {height}")):
            first = f"*{option} Letter/Letter:"
            assert first in text, first
            text = text.replace(first, f'*{option} {key}/{name}: "{value}"\n{first}', 1)
    file = pathlib.Path(folder) / "papers.ppd"
    file.write_text(text, encoding="utf-8")
    return file


class PaperJourney(printing.PrintingJourney):
    def setUp(self):
        self.start()
        self.choose("Liquid")
        self.choose("Calculate Flow Rate")
        self.program.pick("Nominal Size", "4")
        for begins, text in (("Flowing Specific Gravity", "1"), ("Base Specific Gravity", "1"),
                             ("Differential Pressure", "100"), ("Beta Ratio", "0.5")):
            self.program.type_into(begins, text)
        self.program.wait_for_text("Flow Rate", "142.3")

    def print_report(self, way):
        """Prints for the same customer; the first time the customer window is empty."""
        way()
        line = self.program.wait_for_keyboard("text", "Customer")
        for field, text in ((line, "Northfield Refinery"),
                            (self.program.field("Tag"), "FE-4102/B")):
            field.write(text)
            wait_until(f"'{text}' is written", lambda said=text, in_=field: in_.text == said)
        self.desk.press("Return")

    # ---- What is on paper ----

    def expect_page(self, file, title, sheet, scale):
        info = self.system.run("pdfinfo", file)
        self.assertRegex(info, rf"Title: +{title}\n")
        self.assertRegex(info, r"Pages: +1\n")
        size = re.search(r"Page size: +([\d.]+) x ([\d.]+) pts", info)
        for seen, wanted in zip(size.groups(), sheet):
            self.assertAlmostEqual(float(seen), wanted, delta=1)
        text = self.system.run("pdftotext", "-layout", file, "-")
        for line in LINES:
            self.assertRegex(text, re.compile(rf"^ *{line}$", re.MULTILINE))
        # Nothing hangs over the edge, and the words are as large as they should be.
        places = self.system.run("pdftotext", "-bbox", file, "-")
        words = [(*map(float, place), word) for *place, word in re.findall(
            r'<word xMin="(.*)" yMin="(.*)" xMax="(.*)" yMax="(.*)">(.*)</word>', places)]
        page = re.search(r'<page width="([\d.]+)" height="([\d.]+)">', places)
        width, height = map(float, page.groups())
        if re.search(r"Page rot: +(90|270)\n", info):
            width, height = height, width  # the words are told as they stand, the sheet as it lies
        for left, top, right, bottom, word in words:
            self.assertGreater(min(left, top), 0.03 * min(width, height), word)
            self.assertLess(right, 0.97 * width, word)
            self.assertLess(bottom, 0.97 * height, word)
        left, top, right, bottom, _ = next(word for word in words if word[4] == "Differential")
        length = max(right - left, bottom - top)
        self.assertAlmostEqual(length, 12 * 7.2012 * scale, delta=0.6)
        pictures_on_page = self.system.run("pdfimages", "-list", file).splitlines()[2:]
        self.assertEqual(len(pictures_on_page), 1)
        self.assertIn(" 1272 ", pictures_on_page[0])

    def test_every_paper_by_button_menu_and_key(self):
        description = description_with_more_papers(self.system.folder)
        ways = itertools.cycle((self.by_button, self.by_menu, self.by_key))
        for number, ((name, settings, sheet, scale), way) in enumerate(zip(PAPERS, ways), 1):
            with self.subTest(name):
                self.system.add_printer(self.printer.port, name, description, **settings)
                self.print_report(way)
                told, file = self.page_in_printer(number, name)
                self.assertIn(b'JOB NAME = "Orifice calculation FE-4102-B"', told)
                self.expect_page(file, "Orifice calculation FE-4102-B", sheet, scale)
        for name, *_ in PAPERS:
            self.system.run("lpadmin", "-x", name)

    def test_pdf_files_where_there_is_no_printer(self):
        home = self.desk.folder / "home"
        names = ["Orifice calculation FE-4102-B.pdf", "Orifice calculation FE-4102-B (2).pdf",
                 "Orifice calculation FE-4102-B (3).pdf"]
        for name, way in zip(names, (self.by_button, self.by_menu, self.by_key)):
            self.print_report(way)
            field = wait_until("the dialog proposes a file", self.proposed_file)
            self.assertEqual(field.text, str(home / name))
            self.desk.wait_for_keyboard(self.desk.wait_for_window("^Print$"))
            self.desk.press("Return")
            wait_until(f"there is {name}", (home / name).exists)
            wait_until("the dialog is gone", lambda: self.proposed_file() is None)
            # American paper: the locale names no country.
            self.expect_page(str(home / name), "Orifice calculation FE-4102/B", (612, 792), 1)
        self.assertEqual(sorted(file.name for file in home.glob("*.pdf")), sorted(names))

    def proposed_file(self):
        fields = [field for field in self.program.find_all("text") if field.text.endswith(".pdf")]
        return fields[0] if fields else None


if __name__ == "__main__":
    sys.exit(journeys.run(PaperJourney, __doc__, "pictures"))
