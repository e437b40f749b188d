"""Journeys that print: on a desk with a print system of its own and a printer on its network."""

import pathlib
import sys
import tempfile

import journey as journeys
from desk import wait_until

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "report"))
import print_journey  # noqa: E402  (the print system of the report's own journey)

PRINT_SETTINGS = ("CUPS_SERVER", "CUPS_SERVERROOT", "TMPDIR")


class PrintingJourney(journeys.Journey):
    """Printed pages and pictures are left in the folder `pictures`. The print system has no queue
    yet."""

    system = None
    printer = None
    pictures = ""

    @classmethod
    def set_up(cls, stack):
        cls.pictures = pathlib.Path(cls.pictures)
        cls.pictures.mkdir(parents=True, exist_ok=True)
        folder = stack.enter_context(tempfile.TemporaryDirectory(prefix="journey-print-"))
        cls.system = print_journey.PrintSystem(folder)
        stack.callback(cls.system.stop)
        cls.printer = print_journey.NetworkPrinter()
        stack.callback(cls.printer.close)

    # ---- The three ways to print, each to the customer window ----

    def by_button(self):
        self.program.click(self.program.button("Print"))

    def by_menu(self):
        self.program.wait_for_main_keyboard()
        self.desk.press("alt+f")
        self.program.wait_for("menu item", "Print")
        self.desk.press("p")

    def by_key(self):
        self.program.wait_for_main_keyboard()
        self.desk.press("ctrl+p")

    def page_in_printer(self, number, name):
        """Waits for a page in the printer and keeps it under the name. Returns what the printer was
        told before it, and the file."""
        wait_until(f"page {number} in the printer; the print system says: {self.system.log()}",
                   lambda: len(self.printer.pages) >= number)
        told, mark, page = self.printer.pages[number - 1].partition(b"%PDF")
        file = self.pictures / f"{name}.pdf"
        file.write_bytes(mark + page)
        return told, str(file)

    def launch(self, **environment):
        self.printer.pages.clear()
        settings = {name: self.system.environment[name] for name in PRINT_SETTINGS}
        super().launch(**settings, **environment)
