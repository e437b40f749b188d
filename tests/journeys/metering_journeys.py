#!/usr/bin/env python3
"""Metering runs from the start of the program to the printed page: one for each fluid and mode, with
real keys and clicks on a real X server, printed on a printer of a real print system.

    metering_journeys.py PROGRAM PICTURES

Each fluid has its own way of working: the liquid runs are made with the mouse, the gas runs without
it, the steam runs with both. Pictures of the window and the printed pages are left in the folder
PICTURES. Where the desktop or the print system can't be set up, the journeys say so and end with
exit status 77: skipped.

The expected results are worked out beside each run.
"""

import re
import sys

import journey as journeys
import printing
from desk import wait_until

MODES = {
    "Calculate Flow Rate": "Flow Rate",
    "Calculate Differential Pressure": "Pressure Differential",
    "Calculate Beta Ratio": "Bore size",
}

class MeteringJourneys(printing.PrintingJourney):
    @classmethod
    def set_up(cls, stack):
        super().set_up(stack)
        cls.system.add_printer(cls.printer.port)

    def start(self, **environment):
        self.launch(**environment)
        self.program.wait_for_splash()
        self.take_picture("splash")
        self.program.wait_for_main_window()
        self.assertEqual(self.program.find_all("image", "Veltrane"), [], "the splash is gone")

    def take_picture(self, name):
        self.desk.take_picture(self.pictures / f"{self.id().split('.')[-1]}-{name}.png")

    # ---- Hands ----

    def click(self, role, name):
        """A click that chooses an option is over when that is chosen: the window manager looks at it
        first, and one that comes before it is done is lost."""
        control = self.program.wait_for(role, name)
        self.program.click(control)
        if role == "radio button":
            wait_until(name, lambda: control.checked)

    def focused_name(self):
        control = self.program.focused()
        return control.name if control else ""

    def tab_to(self, begins):
        """Presses the Tab key until it has led to a control."""
        for _ in range(40):
            before = self.focused_name()
            if before.startswith(begins):
                return
            self.desk.press("Tab")
            wait_until(f"the focus leaves {before}", lambda: self.focused_name() not in ("", before))
        self.fail(f"the Tab key does not lead to {begins}")

    def tab_and_type(self, begins, text):
        self.tab_to(begins)
        self.desk.write(text)
        self.program.wait_for_text(begins, text)

    # ---- What every run of a mode ends in ----

    def expect(self, mode, results):
        """The results stand in the window, in fields that are results, and can be printed."""
        wait_until(mode, lambda: self.program.option(mode).checked)
        for begins, text in results.items():
            self.program.wait_for_text(begins, text)
        self.assertEqual(self.program.message(), "No message")
        solved = self.program.field(next(iter(results)))
        self.assertRegex(solved.name, ", result$")
        self.assertTrue(self.program.button("Print").enabled)
        self.take_picture(MODES[mode].replace(" ", "_"))

    def print_and_expect(self, mode, customer, lines):
        """Prints; the page lies in the printer: title, customer and each label with its value."""
        self.way_to_print()
        self.program.write_customer(customer)
        if self.by_mouse:
            dialog = self.program.wait_for("dialog", "Brindle Tarvix")
            self.program.click(
                self.program.find_all("push button", "Print", top=dialog.accessible)[0])
        else:
            self.desk.press("Return")
        _, file = self.page_in_printer(
            list(MODES).index(mode) + 1,
            f"{self.id().split('.')[-1]}-{MODES[mode].replace(' ', '_')}")
        page = self.system.run("pdftotext", "-layout", file, "-")
        self.assertIn(f"Orifice calculation for {MODES[mode]} - Flange Taps - {self.fluid}\n", page)
        for label, value in {"Customer:": customer, **lines}.items():
            self.assertRegex(page, re.compile(rf"^ *{re.escape(label)} +{re.escape(value)}$",
                                              re.MULTILINE))
        self.program.wait_for_main_keyboard()

    def solve(self, mode, results, customer, lines):
        self.expect(mode, results)
        self.print_and_expect(mode, customer, lines)

    # ---- Liquid, with the mouse ----

    def test_liquid(self):
        self.fluid, self.way_to_print, self.by_mouse = "Liquid", self.by_button, True
        self.start()
        self.click("radio button", "Liquid")
        wait_until("the liquid's fields", lambda: self.program.find_all(
            "text", begins="Flowing Specific Gravity"))

        # E = 0.6 / sqrt(1 - 0.5^4) = 0.619677; Q = E 5.66646 x 0.25 x 4.026^2 sqrt(100) = 142.29
        self.click("radio button", "Calculate Flow Rate")
        self.program.pick("Nominal Size", "4")
        self.program.type_into("Base Specific Gravity", "1")
        self.program.type_into("Flowing Specific Gravity", "1")
        self.program.type_into("Differential Pressure", "100")
        self.program.type_into("Beta Ratio", "0.5")
        self.solve("Calculate Flow Rate",
                   {"Flow Rate, Gallons per Minute": "142.3", "Orifice Bore Diameter": "2.013"},
                   "Northfield",
                   {"Flow Rate": "142.30 Gallons/Minute",
                    "Differential Pressure": "100.00 Inches Water",
                    "Pipe Diameter": "4.026 Inches",
                    "Bore Diameter (approximate)": "2.013 Inches",
                    "Beta (approximate)": "0.50000"})

        # From the 142.3 in the field: h = 100 (142.3 / 142.2869)^2 = 100.018
        self.click("radio button", "Calculate Differential Pressure")
        self.solve("Calculate Differential Pressure", {"Differential Pressure": "100.0"},
                   "Northfield Two", {"Flow Rate": "142.30 Gallons/Minute",
                                      "Differential Pressure": "100.00 Inches Water"})

        # A = 142.3 / (5.66646 x 4.026^2 x 10), beta = (A^2 / (A^2 + 0.36))^0.25 = 0.500022
        self.click("radio button", "Calculate Beta Ratio")
        self.solve("Calculate Beta Ratio",
                   {"Beta Ratio": "0.50002", "Orifice Bore Diameter": "2.013"},
                   "Northfield Three", {"Beta (approximate)": "0.50002"})

        self.click("push button", "Exit")
        self.click("push button", "OK")
        self.assertEqual(self.program.wait_for_end(), 0)

    # ---- Gas, without the mouse ----

    def test_gas(self):
        self.fluid, self.way_to_print, self.by_mouse = "Gas", self.by_key, False
        self.start()
        self.assertEqual(self.focused_name(), "Calculate Beta Ratio")

        # Air at 60 Deg F and 100 psi gauge in a 2 inch pipe: E = 0.619677,
        # Y = 1 - (0.41 + 0.35 x 0.0625) (100 / (27.707 x 114.7)) / 1.3 = 0.989546,
        # Q = 218.468 E Y 0.25 x 2.067^2 (519.67 / 14.7) sqrt(100 x 114.7 / 519.67) an hour, 24 of
        # which are 570361.
        self.desk.press("Up")
        self.tab_and_type("Operating Temperature", "60")
        self.tab_and_type("Operating Pressure, PSI gauge", "100")
        self.tab_and_type("Base Specific Gravity", "1")
        self.tab_to("Nominal Size of the pipe, Inches: 2")
        self.tab_and_type("Differential Pressure, Inches Water", "100")
        self.tab_and_type("Beta Ratio", "0.5")
        self.solve("Calculate Flow Rate",
                   {"Flow Rate, Standard Cubic Feet per Day": "570,361",
                    "Orifice Bore Diameter": "1.034"},
                   "Ridge Gas",
                   {"Flow Rate": "570,361.00 Standard Cubic Feet/Day",
                    "Operating Temperature": "60.00 Deg F",
                    "Operating Pressure": "100.00 PSI (gauge)",
                    "Base Specific Gravity": "1.00",
                    "Zf": "1.00000 (assumed)",
                    "Pipe Diameter": "2.067 Inches"})

        # Back from 570361: the iteration from 50 inches ends at 99.9996.
        self.tab_to("Calculate Flow Rate")
        self.desk.press("Up")
        self.solve("Calculate Differential Pressure", {"Differential Pressure": "100.00"},
                   "Ridge Gas Two", {"Differential Pressure": "100.00 Inches Water"})

        self.desk.press("Up")
        self.solve("Calculate Beta Ratio",
                   {"Beta Ratio": "0.50000", "Orifice Bore Diameter": "1.034"},
                   "Ridge Gas Three", {"Beta (approximate)": "0.50000"})

        self.program.wait_for_main_keyboard()
        self.desk.press("alt+f")
        self.program.wait_for("menu item", "Exit")
        self.desk.press("x")
        self.program.wait_for_keyboard("push button", "OK")
        self.desk.press("Return")
        self.assertEqual(self.program.wait_for_end(), 0)

    # ---- Steam, with the mouse and the menu ----

    def test_steam(self):
        self.fluid, self.way_to_print, self.by_mouse = "Steam", self.by_menu, False
        self.start()
        self.click("radio button", "Steam")
        self.click("radio button", "From ASME Table (Op.Press. based)")
        wait_until("the pressure has the focus",
                   lambda: self.focused_name() == "Operating Pressure, PSI gauge")

        # Saturated at 100 psi gauge: 0.25704 lb per cubic foot in the table.
        # Q = 358.927 x 0.619677 x 0.989546 x 0.25 x 2.067^2 sqrt(100 x 0.25704) = 1191.87 an hour
        self.desk.write("100")
        self.program.wait_for_text("Operating Density, lb/cubic foot, from ASME Table", "0.25704")
        self.click("radio button", "Calculate Flow Rate")
        self.program.type_into("Differential Pressure", "100")
        self.program.type_into("Beta Ratio", "0.5")
        self.solve("Calculate Flow Rate", {"Flow Rate, Pounds per Hour": "1,192"}, "Mill 7",
                   {"Flow Rate": "1,192.00 Pounds/Hour",
                    "Operating Density": "0.257 lb/cubic foot",
                    "Operating Pressure": "100.00 PSI (gauge)",
                    "Beta (approximate)": "0.50000"})

        # Back from 1192: h = 100 (1192 / 1191.87)^2 and a little for Y = 100.03
        self.click("radio button", "Calculate Differential Pressure")
        self.solve("Calculate Differential Pressure", {"Differential Pressure": "100.0"},
                   "Mill 7 Two", {"Differential Pressure": "100.00 Inches Water"})

        self.click("radio button", "Calculate Beta Ratio")
        self.solve("Calculate Beta Ratio",
                   {"Beta Ratio": "0.50003", "Orifice Bore Diameter": "1.034"},
                   "Mill 7 Three", {"Beta (approximate)": "0.50003"})

        self.program.wait_for_main_keyboard()
        self.desk.press("alt+F4")
        self.assertEqual(self.program.wait_for_end(), 0)


if __name__ == "__main__":
    sys.exit(journeys.run(MeteringJourneys, __doc__, "pictures"))
