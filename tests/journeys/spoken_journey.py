#!/usr/bin/env python3
"""What a real screen reader says of the window: Orca runs beside the program, and its speech is
judged, text by text and in order, so that nothing else is said between.

    spoken_journey.py PROGRAM

Where the desktop or the screen reader can't be set up, or an Orca is running already, the journey
says so and ends with exit status 77: skipped.

The texts are written down by hand: what a user who sees nothing has to be told. "panel", "text",
"combo box", "selected" and the like are Orca's own words.
"""

import sys
import time

import journey as journeys
import reader as readers
from desk import wait_until

# Seconds in which a result that is still to be said would have come: it is said when nothing has
# changed it for one.
LONG_PAUSE = 3

SELECTED_OPTION = "selected radio button"
PIPE = (
    ["Pipe panel.", "Nominal Size of the pipe, Inches: 2 combo box."],
    ['Pipe ID and schedule: 2.067"  Sch 40, STD, Sch 40S combo box.'],
    ["Pipe ID unit: Inches combo box."],
)
BUTTONS = (
    ["Print push button.", "Prints the calculation report."],
    ["Exit push button.", "Ends the program."],
)


def option(*names):
    """An option, after the frame in front of it where that is entered. Orca makes a pause after each
    name."""
    return [name + "." * name[-1].isalnum() for name in names] + [SELECTED_OPTION]


def pipe_to_buttons(flow_unit, time_unit, differential_pressure):
    """The stations behind the fluid's own, with the flow rate as the result and a beta of 0.5."""
    return (
        *PIPE,
        ["Flow Rate panel.", f"Flow Rate unit: {flow_unit} combo box."],
        [f"Flow Rate per time: {time_unit} combo box."],
        ["Differential Pressure panel.", "Differential Pressure, Inches Water text.",
         f"{differential_pressure} selected."],
        ["Differential Pressure unit: Inches Water combo box."],
        ["Orifice Bore Diameter panel.", "Orifice Bore Diameter, Inches text.", "1.034 selected."],
        ["Orifice Bore Diameter unit: Inches combo box."],
        ["Beta Ratio panel.", "Beta Ratio text.", "0.5 selected."],
        *BUTTONS)


class SpokenJourney(journeys.Journey):
    reader = None

    @classmethod
    def set_up(cls, stack):
        cls.reader = readers.Reader(cls.desk)
        stack.callback(cls.reader.stop)

    def setUp(self):
        self.reader.forget()
        self.start()
        self.hears_at_last("Brindle Tarvix frame.")
        self.hears(*option("Options panel", "Calculate Beta Ratio"))

    # ---- Ears ----

    def hears(self, *texts):
        """These texts are said next, and nothing before or between them."""
        self.assertEqual(self.reader.next(len(texts)), list(texts))

    def hears_at_last(self, text):
        """A text is said, whatever comes before it."""
        self.reader.reaches(text)

    def hears_no_more(self, there, back):
        """Tab leads to a control and back again, over and over; for long, nothing else is said."""
        end = time.monotonic() + LONG_PAUSE
        while time.monotonic() < end:
            self.desk.press("Tab")
            self.hears(*there)
            self.desk.press("shift+Tab")
            self.hears(*back)

    # ---- Hands ----

    def types(self, begins, text):
        """Types into the field that has the focus, key by key."""
        field = self.program.field(begins)
        self.assertTrue(field.focused)
        for character in text:
            before = field.text
            self.desk.write(character)
            wait_until(f"{character} behind '{before}' in {begins}",
                       lambda text=before + character: field.text == text)

    def fills(self, **texts):
        """Puts texts into fields, each by the first words of its name, whatever is said of it."""
        for begins, text in texts.items():
            name = begins.replace("_", " ")
            self.program.field(name).write(text)
            self.program.wait_for_text(name, text)

    def walks(self, result, *stations):
        """When the result is said, the Tab key leads from the first option to the stations, and back
        to where it began."""
        self.hears_at_last(f"notification {result}.")
        first = option("Options panel", "Calculate Flow Rate")
        self.program.option("Calculate Flow Rate").take_focus()
        self.hears(*first)
        for station in (*stations, first):
            self.desk.press("Tab")
            self.hears(*station)

    def liquid_flow_rate(self):
        """Water through a 2 inch pipe: up to the beta ratio, which has the focus."""
        self.choose("Calculate Flow Rate")
        self.choose("Liquid")
        self.hears_at_last("notification Incomplete fluid data (Flowing Specific Gravity, "
                           "Base Specific Gravity).")
        self.fills(Flowing="1", Base="1", Differential="100")
        self.program.field("Beta Ratio").take_focus()
        self.hears_at_last("Beta Ratio text.")

    # ---- The message line ----

    def test_message_is_said_when_it_changes(self):
        self.desk.press("Tab")
        self.hears(*option("Flow Type panel", "Air - Gas"))
        self.desk.press("Tab")
        self.hears("Temperature panel.", "Operating Temperature, Deg F text.")
        self.types("Operating Temperature", "2")
        self.hears("notification Incomplete fluid data (Op. Pressure, Base Specific Gravity).")
        # The message stays while further digits are typed.
        self.types("Operating Temperature", "00")
        self.desk.press("Tab")
        self.hears(*option("Deg F"))
        self.desk.press("Tab")
        self.hears("Pressure panel.", "Operating Pressure, PSI gauge text.")
        self.types("Operating Pressure", "1")
        self.hears("notification Incomplete fluid data (Base Specific Gravity).")
        self.types("Operating Pressure", "5")
        self.desk.press("BackSpace")
        self.hears("5")
        # The message that has been there before is said again when it comes back.
        self.desk.press("BackSpace")
        self.hears("1", "notification Incomplete fluid data (Op. Pressure, "
                        "Base Specific Gravity).")

    # ---- The solved value ----

    def test_solved_value_of_each_mode(self):
        # With Q in gallons a minute and h in inches of water,
        # Q = 0.6 x 5.66646 x 2.067^2 sqrt(h) S = 14.52593 sqrt(h) S, S = beta^2 / sqrt(1 - beta^4)
        self.liquid_flow_rate()
        self.types("Beta Ratio", "0")
        self.hears("notification The Beta Ratio must be greater than 0.")
        # S = 0.25 / sqrt(0.9375) = 0.258199, Q = 37.506
        self.types("Beta Ratio", ".5")
        self.hears("notification Flow Rate 37.51 Gallons per Minute.")
        # One result is said once, however long it stands, and however it is typed.
        self.types("Beta Ratio", "0")
        self.hears_no_more(BUTTONS[0], ["Beta Ratio panel.", "Beta Ratio text.", "0.50 selected."])

        # 37.51 is the entry now: h = 100 (37.51 / 37.506)^2 = 100.02
        self.choose("Calculate Differential Pressure")
        self.hears(*option("Options panel", "Calculate Differential Pressure"),
                   "notification Differential Pressure 100.0 Inches Water.")
        self.program.field("Flow Rate").take_focus()
        self.hears("Flow Rate panel.", "Flow Rate, Gallons per Minute text.", "37.51 selected.")
        # Typed without a pause: h = 100 (40 / 37.506)^2 = 113.74, not that of 4.
        self.desk.write("40")
        self.hears("Selection deleted.", "notification Differential Pressure 113.7 Inches Water.")
        self.hears_no_more(["Flow Rate unit: Gallons combo box."],
                           ["Flow Rate, Gallons per Minute text.", "40 selected."])

        # S = 40 / (14.52593 sqrt(113.7)) = 0.258248, beta = (S^2 / (1 + S^2))^(1/4) = 0.500044,
        # bore = 2.067 beta = 1.03359
        self.choose("Calculate Beta Ratio")
        self.hears(*option("Options panel", "Calculate Beta Ratio"),
                   "notification Beta Ratio 0.50004, Orifice Bore Diameter 1.034 Inches.")

    def test_result_where_it_stands(self):
        self.liquid_flow_rate()
        self.types("Beta Ratio", "0.5")
        self.hears_at_last("notification Flow Rate 37.51 Gallons per Minute.")
        self.program.field("Flow Rate").take_focus()
        self.hears("Flow Rate panel.", "Flow Rate, Gallons per Minute, result read only text.",
                   "37.51 selected.")

    # ---- Each field ----

    def test_way_through_a_gas(self):
        self.choose("Calculate Flow Rate")
        self.choose("Zf")
        self.fills(Operating_Temperature="60", Operating_Pressure="100", Base="0.6",
                   Compressibility="0.9", Differential="50", Beta="0.5")
        # P = 114.7, Y = 1 - (0.41 + 0.35 / 16) (50 / (27.707 P)) / 1.3 = 0.994773,
        # Q = 24 x 218.468 x 0.619677 Y 0.25 x 2.067^2 (519.67 / 14.7)
        #     x sqrt(50 P / (519.67 x 0.9 x 0.6)) = 551729.3
        self.walks(
            "Flow Rate 551,729 Standard Cubic Feet per Day",
            option("Flow Type panel", "Air - Gas"),
            ["Temperature panel.", "Operating Temperature, Deg F text.", "60 selected."],
            option("Deg F"),
            ["Pressure panel.", "Operating Pressure, PSI gauge text.", "100 selected."],
            ["Operating Pressure unit: PSI combo box."],
            option("Gauge"),
            ["Specific Gravity panel.", "Base Specific Gravity, air = 1 text.", "0.6 selected."],
            option("Compressibility Correction panel", "Zf"),
            ["Compressibility at Flowing Conditions (Zf) text.", "0.9 selected."],
            *pipe_to_buttons("Standard Cubic Feet", "Day", "50"))

    def test_way_through_a_liquid(self):
        self.choose("Calculate Flow Rate")
        self.choose("Liquid")
        self.choose("Calculated (from density)")
        self.fills(Base="1", Operating_Density="31.183", Differential="100", Beta="0.5")
        # 31.183 / 62.366 = 0.5, Q = 37.506 sqrt(0.5)
        self.walks(
            "Flow Rate 26.52 Gallons per Minute",
            option("Flow Type panel", "Liquid"),
            option("Specific Gravity panel", "Calculated (from density)"),
            ["Base Specific Gravity, water = 1 text.", "1 selected."],
            ["Density panel.", "Operating Density, lb/cubic foot text.", "31.183 selected."],
            ["Operating Density unit: lb/cubic foot combo box."],
            *pipe_to_buttons("Gallons", "Minute", "100"))

    def test_way_through_steam(self):
        self.choose("Calculate Flow Rate")
        self.choose("Steam")
        self.fills(Operating_Pressure="100", Operating_Density="0.25", Differential="50",
                   Beta="0.5")
        # Y as for the gas, Q = 358.927 x 0.619677 Y 0.25 x 2.067^2 sqrt(50 x 0.25) = 835.55
        self.walks(
            "Flow Rate 835.5 Pounds per Hour",
            option("Flow Type panel", "Steam"),
            option("Density panel", "Steam panel", "Saturated"),
            option("Source of the density panel", "User Entered"),
            ["Operating Density, lb/cubic foot text.", "0.25 selected."],
            ["Operating Density unit: lb/cubic foot combo box."],
            ["Pressure panel.", "Operating Pressure, PSI gauge text.", "100 selected."],
            ["Operating Pressure unit: PSI combo box."],
            option("Gauge"),
            *pipe_to_buttons("Pounds", "Hour", "50"))

    def test_options_by_the_arrow_keys(self):
        for name in ("Calculate Differential Pressure", "Calculate Flow Rate"):
            self.desk.press("Down")
            self.hears(*option(name))

    def test_lines_of_the_customer(self):
        self.liquid_flow_rate()
        self.types("Beta Ratio", "0.5")
        self.hears_at_last("notification Flow Rate 37.51 Gallons per Minute.")
        self.desk.press("ctrl+p")
        self.hears("Brindle Tarvix dialog.", "Customer text.")
        for line in ("Customer, second line text.", "Tag text."):
            self.desk.press("Tab")
            self.hears(line)


if __name__ == "__main__":
    sys.exit(journeys.run(SpokenJourney, __doc__))
