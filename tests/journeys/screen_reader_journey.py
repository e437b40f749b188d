#!/usr/bin/env python3
"""A whole metering run by somebody who neither sees the window nor uses keys or a mouse: everything
is found, worked and read over the accessibility bus, from outside the program.

    screen_reader_journey.py PROGRAM

Where the desktop can't be set up, the journey says so and ends with exit status 77: skipped.
"""

import sys

import journey as journeys
from desk import wait_until


class ScreenReaderJourney(journeys.Journey):
    def setUp(self):
        import program  # pylint: disable=import-outside-toplevel  (needs the desk's environment)
        self.events = []
        self.listener = program.Listener(self.events)
        self.addCleanup(self.listener.close)
        self.start()

    def enter(self, field, text):
        """Puts a text into a field."""
        self.program.field(field).write(text)
        self.program.wait_for_text(field, text)

    def wait_for_event(self, kind, name):
        def look():
            self.listener.listen()
            return (kind, name) in self.events
        wait_until(f"{kind} '{name}'; there were {self.events}", look)

    def test_metering_run(self):
        program = self.program
        # The window opens for a gas and says what it wants to know.
        self.assertTrue(program.option("Air - Gas").checked)
        self.assertEqual(program.message(), "Incomplete fluid data (Op. Temperature, "
                                            "Op. Pressure, Base Specific Gravity).")

        # Methane-like gas at 20 Deg C and 30 bar absolute, corrected by Zf, in a 4 inch pipe.
        self.choose("Calculate Flow Rate")
        self.enter("Operating Temperature, Deg F", "20")
        self.choose("Deg C")
        self.assertEqual(program.field("Operating Temperature").name,
                         "Operating Temperature, Deg C")
        self.go_through("Operating Pressure unit", "bar")
        self.choose("Absolute")
        self.enter("Operating Pressure, bar absolute", "30")
        # Without a correction that is a matter of a warning: 435.1 - 14.7 = 420.4 psi gauge.
        warning = ("At this pressure, no compressibility correction "
                   "will result in erroneous computations.")
        self.wait_for_event("shown", warning)
        self.assertEqual([alert.name for alert in program.find_all("alert", warning)], [warning])
        self.choose("Zf")
        self.assertEqual(program.find_all("alert", warning), [])
        self.enter("Compressibility at Flowing Conditions (Zf)", "0.93")
        self.enter("Base Specific Gravity, air = 1", "0.6")
        self.go_through("Nominal Size of the pipe, Inches", "4")
        self.assertEqual(program.list("Pipe ID and schedule").name,
                         'Pipe ID and schedule: 4.026"  Sch 40, STD, Sch 40S')
        self.go_through("Flow Rate per time", "Hour", "Decrease")
        self.go_through("Differential Pressure unit", "mbar")
        self.enter("Differential Pressure, mbar", "250")

        # The message line announces what is missing, then the range that is left.
        self.events.clear()
        self.enter("Beta Ratio", "0.7")
        range_warning = "Warning: Beta value exceeds standard range (0.15 to 0.67)."
        self.wait_for_event("renamed", range_warning)
        self.enter("Beta Ratio", "0.5")
        self.wait_for_event("renamed", "No message")

        # Tf = 527.67 Deg R, Pf = 30 x 14.5039 = 435.117 psia, h = 250 x 0.40175 = 100.4375,
        # E = 0.619677, Y = 1 - (0.41 + 0.35 / 16) (100.4375 / (27.707 x 435.117)) / 1.3 = 0.997232,
        # Q = 218.468 E Y 0.25 x 4.026^2 (519.67 / 14.7)
        #     x sqrt(100.4375 x 435.117 / (527.67 x 0.93 x 0.6)) = 235613.6
        result = program.field("Flow Rate, Standard Cubic Feet per Hour")
        self.assertEqual(result.name, "Flow Rate, Standard Cubic Feet per Hour, result")
        self.assertEqual(result.text, "235,614")
        self.assertEqual(program.field("Orifice Bore Diameter, Inches").text, "2.013")
        self.assertEqual(program.message(), "No message")

        # The other way round: the bore is the result now, and is announced as such.
        self.choose("Calculate Beta Ratio")
        self.assertEqual(program.field("Beta Ratio").name, "Beta Ratio, result")
        self.assertEqual(program.field("Beta Ratio").text, "0.50000")
        self.assertEqual(program.field("Flow Rate").name, "Flow Rate, Standard Cubic Feet per Hour")

        # The customer window, and out of it again.
        program.button("Print").act("Press")
        line = program.wait_for("text", "Customer")
        line.write("Northfield")
        wait_until("the customer's line", lambda: line.text == "Northfield")
        program.button("Cancel").act("Press")
        wait_until("the customer window is gone", lambda: not program.find_all("text", "Customer"))

        # The About window by its menu item.
        program.wait_for("menu item", "About").act("Press", answers_late=True)
        program.wait_for("label", begins="Brindle Tarvix")
        program.button("Close").act("Press")
        wait_until("the About window is gone", lambda: not program.find_all("push button", "Close"))

        program.button("Exit").act("Press")
        program.button("OK").act("Press")
        self.assertEqual(program.wait_for_end(), 0)

    def test_user_entered_pipe(self):
        program = self.program
        self.choose("Liquid")
        self.go_through("Nominal Size of the pipe, Inches", "42")
        pipes = program.list("Pipe ID and schedule")
        for _ in range(2):
            before = pipes.name
            pipes.act("Increase")
            wait_until(f"the pipe after {before}", lambda: pipes.name != before)
        # The last entry asks for the diameter.
        answer = program.wait_for("text", begins="Enter a Pipe ID in Inches.")
        answer.write("40.5")
        program.button("OK").act("Press")
        wait_until("the diameter in the list",
                   lambda: pipes.name == 'Pipe ID and schedule: 40.500" (User Entered)')
        self.assertEqual(len(program.find_all("label", begins="No Nominal Size")), 1)


if __name__ == "__main__":
    sys.exit(journeys.run(ScreenReaderJourney, __doc__))
