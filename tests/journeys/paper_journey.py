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
        self.calculate()

    def calculate(self):
        self.program.option("Liquid").act("Press")
        self.program.option("Calculate Flow Rate").act("Press")
        size = self.program.list("Nominal Size")
        self.desk.click(*size.middle)
        self.desk.click(*self.program.wait_for("list item", "4").middle)
        for begins, text in (("Flowing Specific Gravity", "1"), ("Base Specific Gravity", "1"),
                             ("Differential Pressure", "100"), ("Beta Ratio", "0.5")):
            field = self.program.field(begins)
            self.desk.click(*field.middle)
            wait_until(f"the focus in {begins}",
                       lambda name=begins: self.program.focused().name.startswith(name))
            self.desk.write(text)
            self.program.wait_for_text(begins, text)
        self.program.wait_for_text("Flow Rate", "142.3")

    # ---- The three ways to print ----

    def by_button(self):
        self.desk.click(*self.program.button("Print").middle)

    def by_menu(self):
        self.desk.press("alt+f")
        self.program.wait_for("menu item", "Print")
        self.desk.press("p")

    def by_key(self):
        self.desk.press("ctrl+p")

    def print_report(self, way):
        """Prints for the same customer; the first time the customer window is empty."""
        way()
        line = self.program.wait_for("text", "Customer")
        wait_until("the customer's line has the focus",
                   lambda: (self.program.focused() or line).name == "Customer")
        for begins, text in (("Customer", "Northfield Refinery"), ("Tag", "FE-4102/B")):
            field = self.program.wait_for("text", begins)
            field.write(text)
            wait_until(f"'{text}' in {begins}", lambda said=text, in_=field: in_.text == said)
        self.desk.press("Return")

    # ---- What is on paper ----

    def expect_page(self, file, title, sheet, scale):
        info = self.system.run("pdfinfo", str(file))
        self.assertRegex(info, rf"Title: +{title}\n")
        self.assertRegex(info, r"Pages: +1\n")
        size = re.search(r"Page size: +([\d.]+) x ([\d.]+) pts", info)
        for seen, wanted in zip(size.groups(), sheet):
            self.assertAlmostEqual(float(seen), wanted, delta=1)
        text = self.system.run("pdftotext", "-layout", str(file), "-")
        for line in LINES:
            self.assertRegex(text, re.compile(rf"^ *{line}$", re.MULTILINE))
        # Nothing hangs over the edge, and the words are as large as they should be.
        words = re.findall(r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" '
                           r'yMax="([\d.-]+)">([^<]*)</word>',
                           self.system.run("pdftotext", "-bbox", str(file), "-"))
        page = re.search(r'<page width="([\d.]+)" height="([\d.]+)">',
                         self.system.run("pdftotext", "-bbox", str(file), "-"))
        width, height = (float(side) for side in page.groups())
        if re.search(r"Page rot: +(90|270)\n", info):
            width, height = height, width  # the words are told as they stand, the sheet as it lies
        for left, top, right, bottom, word in words:
            self.assertGreater(min(float(left), float(top)), 0.03 * min(width, height), word)
            self.assertLess(float(right), 0.97 * width, word)
            self.assertLess(float(bottom), 0.97 * height, word)
        left, top, right, bottom, _ = next(word for word in words if word[4] == "Differential")
        length = max(float(right) - float(left), float(bottom) - float(top))
        self.assertAlmostEqual(length, 12 * 7.2012 * scale, delta=0.6)
        pictures_on_page = self.system.run("pdfimages", "-list", str(file)).splitlines()[2:]
        self.assertEqual(len(pictures_on_page), 1)
        self.assertIn(" 1272 ", pictures_on_page[0])

    def test_every_paper_by_button_menu_and_key(self):
        description = description_with_more_papers(self.system.folder)
        ways = itertools.cycle((self.by_button, self.by_menu, self.by_key))
        for number, ((name, settings, sheet, scale), way) in enumerate(zip(PAPERS, ways), 1):
            with self.subTest(name):
                self.system.add_printer(self.printer.port, name, description, **settings)
                self.print_report(way)
                wait_until(f"page {number} in the printer; the print system: {self.system.log()}",
                           lambda count=number: len(self.printer.pages) >= count)
                data = self.printer.pages[number - 1]
                self.assertIn(b'JOB NAME = "Orifice calculation FE-4102-B"',
                              data[:data.index(b"%PDF")])
                file = self.pictures / f"{name}.pdf"
                file.write_bytes(data[data.index(b"%PDF"):])
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
            self.desk.press("Return")
            wait_until(f"there is {name}", (home / name).exists)
            wait_until("the dialog is gone", lambda: self.proposed_file() is None)
            # American paper: the locale names no country.
            self.expect_page(home / name, "Orifice calculation FE-4102/B", (612, 792), 1)
        self.assertEqual(sorted(file.name for file in home.glob("*.pdf")), sorted(names))

    def proposed_file(self):
        fields = [field for field in self.program.find_all("text") if field.text.endswith(".pdf")]
        return fields[0] if fields else None


if __name__ == "__main__":
    sys.exit(journeys.run(PaperJourney, __doc__, "pictures"))
