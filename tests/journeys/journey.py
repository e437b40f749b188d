"""A journey: tests that share a desk, each with a program of its own."""

import contextlib
import os
import sys
import tempfile
import unittest

import desk as desks
from desk import wait_until

SKIPPED = 77


class Journey(unittest.TestCase):
    desk = None
    program_file = ""

    @classmethod
    def set_up(cls, stack):
        """Sets up what the journey needs beside the desk; what ends it goes on the stack."""

    def launch(self, **environment):
        """Starts the program."""
        import program  # pylint: disable=import-outside-toplevel  (needs the desk's environment)
        # No printer of the machine. The desk keeps an environment, so each run names its own locale.
        settings = {"CUPS_SERVER": "127.0.0.1:1", "LC_ALL": "C.UTF-8", **environment}
        self.program = program.Program(self.desk, self.program_file, **settings)
        self.addCleanup(self.end_program)

    def start(self, **environment):
        """Starts the program and waits for its window."""
        self.launch(**environment)
        self.program.wait_for_main_window()

    def end_program(self):
        if self.program.process.poll() is None:
            self.program.process.kill()
            self.program.process.wait()

    def choose(self, option):
        """Selects an option."""
        self.program.option(option).act("Press")
        wait_until(option, lambda: self.program.option(option).checked)

    def go_through(self, begins, entry, direction="Increase"):
        """Goes through a list, entry by entry, until it says the one that is wanted."""
        control = self.program.list(begins)
        for _ in range(30):
            before = control.name
            if before.endswith(": " + entry):
                return
            control.act(direction)
            wait_until(f"the entry after {before}", lambda: control.name != before)
        self.fail(f"{begins} has no {entry}")


def run(journey, description, *further):
    """Runs the tests of a class of journeys by the command line: the program, what else the class
    wants to be told under these names, and the names of tests, if not of all. Returns the exit
    status: SKIPPED where something can't be set up."""
    wanted = ("program_file", *further)
    if len(sys.argv) <= len(wanted):
        print(description, file=sys.stderr)
        return 2
    for name in wanted:
        setattr(journey, name, os.path.abspath(sys.argv.pop(1)))
    with tempfile.TemporaryDirectory(prefix="journey-") as folder, contextlib.ExitStack() as stack:
        try:
            journey.desk = desks.Desk(folder)
            stack.callback(journey.desk.stop)
            journey.set_up(stack)
        except desks.CannotRun as reason:
            print(f"SKIPPED: {journey.__name__}: {reason}")
            return SKIPPED
        os.environ.update(journey.desk.environment)
        result = unittest.main(argv=sys.argv, exit=False, verbosity=2, warnings="ignore").result
    return 0 if result.wasSuccessful() else 1
