"""Random sessions of user actions for comparing the program with the reference model.

A session is a list of actions, an action a list of script lines. A model of the window is played
along, so that most actions are ones that a user could carry out just then.
"""

import copy

from tarvix_controls import BUTTONS, FIELDS, LISTS, OPTIONS
from tarvix_model import Model

ALL_OPTIONS = [name for group in OPTIONS.values() for name in group]
MODE_OPTIONS = list(OPTIONS["fraCalcOptions"])
FLUID_OPTIONS = list(OPTIONS["fraFlowType"])
PROPERTY_OPTIONS = [name for name in ALL_OPTIONS if name not in MODE_OPTIONS + FLUID_OPTIONS]

# The decades and typical range that a plausible entry of a field is drawn from.
PLAUSIBLE = {
    "txtFlow": (0.01, 1e6), "txtDeltaP": (0.5, 1000.0), "txtBeta": (0.1, 0.9),
    "txtOriBoreDia": (0.05, 30.0), "txtPf": (1.0, 3000.0), "txtTf": (1.0, 900.0),
    "txtDensity": (0.02, 90.0), "txtSGb": (0.3, 2.0), "txtSGf": (0.3, 2.0),
    "txtGasSGb": (0.1, 3.0), "txtZf": (0.05, 5.0),
}

# Texts that are on or about a limit of some rule, written with a point.
EDGE_NUMBERS = (
    "0", "0.0", "-1", "-14.7", "-14.6", "-14.71", "14.7", "14.6", "0.15", "0.67", "0.1499",
    "0.6701", "0.95", "0.9499", "0.94999", "0.950001", "0.955", "1", "1.0", "150", "149.9", "200",
    "400", "400.01", "414.7", "414.8", "3000", "3000.1", "3001", "67.5", "68", "382.5", "385",
    "62.366", "1000000", "999999999", "0.00001", "0.01", "0.1", "0.09999999", "100000", "12345678",
    "1000.5", "1234566.5", "1234567.5", "1000.0625", "1000.1875", "2.0005", "2.00049", "0.12345",
    "0.000005", "9999999", "10000000", "16777217", "-459.67", "-460", "-500", "1e-5", "1e5",
    "1E+3", "5e-40", "3.4028235e38", "1e38", "-1e38", "1e-45", "1e-60", "+5", "5.", ".5", "-.5",
    "00012", "0.000001",
)

# Where a rule of that very field turns.
FIELD_EDGES = {
    "txtPf": ("-14.7", "-14.69", "-14.71", "-15", "0", "14.7", "14.6", "200", "200.01", "400",
              "400.01", "414.7", "414.8", "214.7", "3000", "3001", "3014.7", "3015", "67.5", "68",
              "102", "385", "382.5", "2750", "1.01325", "101.325"),
    "txtBeta": ("0", "0.15", "0.14999", "0.67", "0.67001", "0.95", "0.9499", "0.949999", "1", "-1"),
    "txtDeltaP": ("0", "150", "149.9", "149.99", "0.0373", "1000000", "-1"),
    "txtTf": ("0", "-20", "-459.67", "-460", "-273.15", "60"),
    "txtOriBoreDia": ("0", "1.000", "-1", "2.067", "50", "0.001"),
}

ODD_TEXTS = (
    "", " ", "  ", "abc", "1a", "--5", "+-5", "5-", "- 5", "1e", "e5", "1e+", "1e5e5", "1e400",
    "1e-400", "3.5e38", "-3.5e38", "&H10", "0x10", "inf", "NaN", "(5)", "$5", "5%", "1/2", "1 000",
    " 5", "5 ", "  5.5  ", "1.2.3", "1,2,3", "1,234", "1.234", "12,34", "1,234.5", "1.234,5",
    "1234,567", "1,23,456", "0,123", "0.123", ",5", ",123", "5,", "1,,000", "1,000,000",
    "1.000.000", "1,234e2", "1.234e2", "1e1.5", "1e1,5", "12,345.678,9", "1'000", "1_000", "+",
    "-", ".", ",", "1.", "+.", "\u0663", "\u22125", "1\u00a0000", "9" * 400,
    "0." + "0" * 400 + "1", "1" + "0" * 38, "4" + "0" * 38, "0" * 50 + "7", "-" + "9" * 400,
    "1." + "3" * 400, "1," + "000," * 12 + "000",
)

ANSWERS = ("3", "4.5", "2.0675", "0", "-3", "abc", "", " 5 ", "1e1", "0.0001", "1e-60", "52.505",
           "25.4", "1,000", "1.000", "6.065", "2.067", "12.345,6", "1e6", "1234567.891",
           "0.4", "100")


class Generator:
    """Makes one session from a random source."""

    def __init__(self, random, locale, page_file):
        self.random = random
        self.locale = locale
        self.model = Model(locale)
        self.actions = [["locale " + locale, "printer " + page_file]]
        # A session leans towards the plausible or towards noise as a whole.
        self.noise = random.choice((0.02, 0.1, 0.3))

    def session(self, count):
        self.fill_in()
        while len(self.actions) < count and not self.model.ended:
            self.step()
        return self.actions

    def do(self, *lines):
        if self.model.ended:
            return
        self.actions.append(list(lines))
        for line in lines:
            self.model.play(line)
        self.model.window.boxes.clear()

    # --- what a user could do just now -----------------------------------------------------------

    def usable(self, names):
        window = self.model.window
        return [name for name in names if window.visible(name) and window.enabled(name)]

    def open_fields(self):
        window = self.model.window
        return [name for name in self.usable(FIELDS) if not window[name].locked]

    def localized(self, text):
        if self.model.window.locale.decimal == ",":
            return text.replace(".", ",")
        return text

    # --- texts -----------------------------------------------------------------------------------

    def plausible(self, field):
        random = self.random
        if field == "txtOriBoreDia":
            pipe = self.model.window.pipe_diameter()
            return self.localized("%.3f" % (pipe * random.uniform(0.1, 0.99)))
        low, high = PLAUSIBLE[field]
        value = low * (high / low) ** random.random()
        if field == "txtTf" and random.random() < 0.2:
            value = -value
        return self.localized(random.choice(("%.0f", "%.1f", "%.3g", "%.4f", "%.2e")) % value)

    def number(self, field):
        chance = self.random.random()
        if chance < self.noise:
            return self.localized(self.random.choice(EDGE_NUMBERS))
        if chance < self.noise + 0.15:
            return self.localized(self.random.choice(FIELD_EDGES.get(field, ("0", "1", "-1"))))
        return self.plausible(field)

    # --- actions ---------------------------------------------------------------------------------

    def fill_in(self):
        """A whole sheet, as a user would fill it in."""
        random = self.random
        self.click_one_of(FLUID_OPTIONS)
        self.click_one_of(MODE_OPTIONS)
        properties = self.usable(PROPERTY_OPTIONS)
        for option in random.sample(properties, min(2, len(properties))):
            self.do("click " + option)
        self.pick_pipe()
        fields = self.open_fields()
        random.shuffle(fields)
        for field in fields:
            self.refill(field)

    def refill(self, field):
        if field in self.open_fields() and field != "txtOriBoreDia":
            self.do(f"paste {field} {self.plausible(field)}")

    def complete(self):
        """Enters anew what keeps the equations from running."""
        window = self.model.window
        for field in self.open_fields():
            missing = (not window.numeric(field) if field == "txtTf"
                       else window.value(field) <= 0.0)
            if missing:
                self.refill(field)

    def round_trip(self):
        """Solves for one quantity, then for the two others from what came out."""
        for option in self.random.sample(MODE_OPTIONS, 3):
            self.do("click " + option)

    def enter(self, verb, text_for):
        fields = self.open_fields()
        if fields:
            field = self.random.choice(fields)
            self.do(f"{verb} {field} {text_for(field)}")

    def keys(self):
        window = self.model.window
        if window.focus not in self.usable(FIELDS):
            fields = self.open_fields()
            if not fields:
                return
            self.do("focus " + self.random.choice(fields))
        pieces = list("0123456789") + ["+", "-", ".", ",", "e", " ", "a", "{Backspace}",
                                       "{Delete}", "{Left}", "{Right}", "{Home}", "{End}",
                                       "{Enter}", "{Esc}", "{SelectAll}"]
        self.do("keys " + "".join(self.random.choices(pieces, k=self.random.randint(1, 6))))

    def tab(self):
        if self.model.window.focus in self.open_fields():
            self.do("keys {Tab}")

    def choose_unit(self):
        units = [name for name in self.usable(LISTS) if name not in ("cboNomSize", "cboPipeID")]
        name = self.random.choice(units)
        items = self.model.window[name].items
        index = self.random.randrange(len(items))
        self.do(f"choose {name} {items[index]}" if self.random.random() < 0.5
                else f"choose {name} #{index}")

    def pick_pipe(self):
        window = self.model.window
        first = 0 if window.locale.decimal == "." or self.random.random() < 0.02 else 6
        sizes = list(range(first, len(window["cboNomSize"].items)))
        if first:
            sizes += [2, 4]
        self.answered(f"choose cboNomSize #{self.random.choice(sizes)}")
        if self.random.random() < 0.5 and not self.model.ended:
            self.pick_schedule()

    def pick_schedule(self):
        count = len(self.model.window["cboPipeID"].items)
        index = self.random.randrange(count - 1) if self.random.random() < 0.8 else count - 1
        self.answered(f"choose cboPipeID #{index}")

    def answered(self, line):
        """A pick that may ask for a diameter, and may then refuse it."""
        text = self.random.choice(ANSWERS)
        if self.random.random() < 0.7:
            text = self.localized("%.3f" % self.random.uniform(0.3, 45.0))
        queued = self.random.choice((f"answer text {text}",) * 6 + ("answer ok", "answer cancel"))
        probe = self.probe()
        probe.play(queued)
        probe.play(line)
        self.do(queued, line) if not probe.window.answers and probe.window.boxes else self.do(line)

    def probe(self):
        """A model in the same state, to look ahead with."""
        probe = Model(self.locale)
        state = {key: value for key, value in vars(self.model.window).items() if key != "locale"}
        vars(probe.window).update(copy.deepcopy(state))
        return probe

    def solve_for_limit(self):
        """A flow whose solved beta lies right at a limit."""
        window = self.model.window
        if not window.on("optCalcBeta") or "txtFlow" not in self.open_fields():
            return
        target = self.random.choice((0.95, 0.95, 0.67, 0.15, 0.99, 0.5))
        low, high = -6.0, 12.0
        probe = self.probe()
        for _ in range(40):
            middle = (low + high) / 2
            probe.play("paste txtFlow " + self.localized("%.9g" % 10.0 ** middle))
            probe.window.boxes.clear()
            solved = probe.window.value("txtBeta")
            # No result is taken as too much: most often the flow is out of range.
            if 0.0 < solved < target:
                low = middle
            else:
                high = middle
        for exponent in (low, high, (low + high) / 2 + self.random.gauss(0.0, 1e-5)):
            self.do("paste txtFlow " + self.localized("%.9g" % 10.0 ** exponent))

    def user_pipe(self):
        self.answered(f"choose cboPipeID #{len(self.model.window['cboPipeID'].items) - 1}")

    def click_property(self):
        options = self.usable(PROPERTY_OPTIONS)
        if options:
            self.click_one_of(options)

    def click_one_of(self, options):
        self.do("click " + self.random.choice(options))

    def print_page(self):
        if self.model.window.enabled("cmdPrint"):
            self.do(self.random.choice(("answer ok", "answer cancel")), "customer A|B|C",
                    self.random.choice(("click cmdPrint", "click mnuPrint")))

    def leave(self):
        self.do("answer cancel", self.random.choice(("click cmdExit", "click mnuExit")))

    def focus_anything(self):
        names = self.usable(list(FIELDS) + list(LISTS) + ALL_OPTIONS)
        self.do("focus " + self.random.choice(names))

    def impossible(self):
        """Something that is most often refused."""
        random = self.random
        window = self.model.window
        hidden = [name for name in list(FIELDS) + list(LISTS) + ALL_OPTIONS + list(BUTTONS)
                  if name not in self.usable([name])]
        locked = [name for name in FIELDS if window[name].locked]
        name = random.choice(hidden + locked)
        if name in FIELDS:
            self.do(random.choice([f"type {name} 5", f"paste {name} 5"]
                                  + ([] if name in locked else [f"focus {name}"])))
        elif name in LISTS:
            self.do(f"choose {name} #0")
        else:
            self.do("click " + name)

    def no_such_entry(self):
        name = self.random.choice(self.usable(LISTS))
        self.do(f"choose {name} " + self.random.choice(("#99", "furlongs", "psi", "")))

    STEPS = (
        (lambda self: self.enter("type", self.number), 14),
        (lambda self: self.enter("paste", self.number), 22),
        (choose_unit, 16), (click_property, 10),
        (lambda self: self.click_one_of(MODE_OPTIONS), 6),
        (round_trip, 3), (solve_for_limit, 1), (complete, 16),
        (pick_pipe, 6), (pick_schedule, 4), (user_pipe, 3), (keys, 6),
        (lambda self: self.click_one_of(FLUID_OPTIONS), 2),
        (fill_in, 3), (print_page, 3), (leave, 1),
        (lambda self: self.do("click mnuAbout"), 1),
        (focus_anything, 3), (tab, 2), (impossible, 2), (no_such_entry, 1),
    )

    def step(self):
        if self.random.random() < self.noise / 2:
            verb, length = self.random.choice((("paste", None), ("type", 20)))
            self.enter(verb, lambda field: self.random.choice(ODD_TEXTS)[:length])
            return
        steps, weights = zip(*self.STEPS)
        self.random.choices(steps, weights)[0](self)
