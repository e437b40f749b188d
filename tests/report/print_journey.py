#!/usr/bin/env python3
"""Prints reports through a real CUPS server and reads back what its printer got.

The journey sets up its own print system in a folder of its own and on the loopback interface: a
CUPS server, and a network printer that keeps the pages sent to it. It touches neither the machine's
own printers nor anybody's settings, and runs as root without any service manager.

    print_journey.py PRINT_PAGE LOGO

PRINT_PAGE is the program that prints one report. Where the CUPS server can't be started the journey
says so and ends with exit status 77: skipped.
"""

import contextlib
import os
import pathlib
import pwd
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "journeys"))
from desk import PATIENCE, CannotRun, wait_until  # noqa: E402  (found by the line above)

SKIPPED = 77
PRINTER = "Journey"
# A printer that takes PDF, with Letter as its paper; from Debian's cups-filters.
DESCRIPTION = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"
TOOLS = ("lpadmin", "lpstat", "cupsdisable", "cupsenable", "cupsaccept", "cupsreject", "cancel",
         "pdftotext", "pdfinfo", "pdffonts", "pdfimages")

print_page = ""
logo = ""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class NetworkPrinter:
    """A printer on the loopback network: every connection is one job, its bytes the page."""

    def __init__(self):
        self.pages = []
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def serve(self):
        while True:
            try:
                connection, _ = self.listener.accept()
            except OSError:
                return
            with connection, connection.makefile("rb") as job:
                self.pages.append(job.read())

    def close(self):
        """Wakes the thread and waits for its end. Left waiting at a descriptor that has been closed, it
        would take a page from the next printer, whose descriptor has the same number."""
        self.listener.shutdown(socket.SHUT_RDWR)
        self.thread.join(PATIENCE)
        self.listener.close()


class PrintSystem:
    """A CUPS server of the journey's own."""

    SETTINGS = """\
LogLevel info
Listen 127.0.0.1:{port}
Browsing No
WebInterface No
DefaultAuthType None
ErrorPolicy retry-job
JobRetryInterval 1
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Policy default>
  JobPrivateAccess default
  JobPrivateValues default
  SubscriptionPrivateAccess default
  SubscriptionPrivateValues default
  <Limit All>
    Order allow,deny
    Allow 127.0.0.1
  </Limit>
</Policy>
"""
    FILES = """\
ServerRoot {folder}/etc
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/run
TempDir {folder}/tmp
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
Printcap
SystemGroup root
"""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.process = None
        missing = [tool for tool in TOOLS if self.tool(tool) is None]
        if self.tool("cupsd") is None or missing:
            raise CannotRun("not installed: " + ", ".join(["cupsd"] * (not self.tool("cupsd"))
                                                          + missing))
        if not os.path.exists(DESCRIPTION):
            raise CannotRun(f"no printer description {DESCRIPTION}")
        self.server = f"127.0.0.1:{free_port()}"
        for name in ("etc", "spool", "cache", "run", "tmp", "home"):
            (self.folder / name).mkdir()
        self.settings = self.folder / "cupsd.conf"
        self.settings.write_text(self.SETTINGS.format(port=self.server.split(":")[1]))
        self.files = self.folder / "cups-files.conf"
        files = self.FILES.format(folder=folder)
        if os.getuid() != 0:
            user = pwd.getpwuid(os.getuid()).pw_name
            files += f"User {user}\n"
        self.files.write_text(files)
        (self.folder / "runtime").mkdir(mode=0o700)
        self.leaks = self.folder / "leaks"
        self.leaks.write_text("leak:libcups.so\n")
        # The printer's filters and its way to the network run as another user.
        self.folder.chmod(0o755)
        (self.folder / "tmp").chmod(0o1777)
        self.start()

    @staticmethod
    def tool(name):
        return shutil.which(name, path=os.environ["PATH"] + ":/usr/sbin:/sbin")

    @property
    def environment(self):
        """What a program needs to print here and nowhere else."""
        return {**os.environ, "CUPS_SERVER": self.server, "CUPS_SERVERROOT": f"{self.folder}/etc",
                "HOME": f"{self.folder}/home", "TMPDIR": f"{self.folder}/tmp",
                "XDG_RUNTIME_DIR": f"{self.folder}/runtime", "LC_ALL": "C.UTF-8",
                "QT_QPA_PLATFORM": "offscreen",
                # In a build with the leak checker: what CUPS's own library leaves behind.
                "LSAN_OPTIONS": f"suppressions={self.leaks}:print_suppressions=0"}

    def start(self):
        with open(self.folder / "cupsd.out", "ab") as output:
            self.process = subprocess.Popen(
                [self.tool("cupsd"), "-f", "-c", str(self.settings), "-s", str(self.files)],
                stdout=output, stderr=output)
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and self.process.poll() is None:
            if "is running" in self.run("lpstat", "-r", check=False):
                return
            time.sleep(0.05)
        reason = (self.folder / "cupsd.out").read_text(errors="replace").strip()
        self.stop()
        raise CannotRun(f"the CUPS server does not start: {reason or 'no reason given'}")

    def stop(self):
        if self.process is not None:
            self.process.terminate()
            self.process.wait(PATIENCE)
            self.process = None

    def run(self, tool, *arguments, check=True):
        result = subprocess.run([self.tool(tool), *arguments], env=self.environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE,
                                check=False)
        if check and result.returncode != 0:
            raise AssertionError(f"{tool} {' '.join(arguments)}: {result.stdout}")
        return result.stdout

    def add_printer(self, port, name=PRINTER, description=DESCRIPTION, **options):
        """A queue for the printer at that port; it becomes the default printer."""
        device = f"socket://127.0.0.1:{port}/?snmp=false&waiteof=false"
        settings = [argument for option, value in options.items()
                    for argument in ("-o", f"{option.replace('_', '-')}={value}")]
        self.run("lpadmin", "-p", name, "-E", "-v", device, "-P", str(description), *settings)
        self.run("lpadmin", "-d", name)

    def jobs(self):
        return [line.split()[0] for line in self.run("lpstat", "-o").splitlines()]

    def log(self):
        with contextlib.suppress(OSError):
            return (self.folder / "error.log").read_text(errors="replace")[-4000:]
        return ""


class PrintJourney(unittest.TestCase):
    system = None
    printer = None

    @classmethod
    def setUpClass(cls):
        cls.printer = NetworkPrinter()
        cls.addClassCleanup(cls.printer.close)

    def setUp(self):
        self.printer.pages.clear()
        if self.system.process is None:
            self.system.start()
        self.system.add_printer(self.printer.port)
        self.addCleanup(self.leave_no_printer)

    def leave_no_printer(self):
        if self.system.process is None:
            return
        self.system.run("cancel", "-a", check=False)
        self.system.run("lpadmin", "-x", PRINTER, check=False)

    def print_report(self, wrapper=()):
        """Runs the program; returns the message boxes that it showed."""
        result = subprocess.run([*wrapper, print_page, logo], env=self.system.environment,
                                text=True, capture_output=True, timeout=PATIENCE, check=False)
        return self.boxes_of(result.returncode, result.stdout, result.stderr)

    def boxes_of(self, status, output, errors):
        self.assertEqual(status, 0, errors)
        lines = output.splitlines()
        self.assertEqual(lines[-1], "going on", output)
        return [line.removeprefix("box: ") for line in lines if line.startswith("box: ")]

    def assert_told(self, boxes, *texts):
        """There was one box, and it says these texts."""
        self.assertEqual(len(boxes), 1, boxes)
        for text in texts:
            self.assertIn(text, boxes[0])

    @contextlib.contextmanager
    def report_on_hold(self):
        """The program between finding its printer and printing; yields the list for its boxes."""
        program = subprocess.Popen([print_page, logo, "--hold"], env=self.system.environment,
                                   text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        self.assertEqual(program.stdout.readline().strip(), "holding")
        boxes = []
        yield boxes
        output, errors = program.communicate("\n", timeout=PATIENCE)
        boxes += self.boxes_of(program.returncode, output, errors)

    def next_page(self, number=1):
        """The PDF file of the n-th page that the printer got."""
        wait_until(f"page {number} at the printer; the server's log ends:\n{self.system.log()}",
                   lambda: len(self.printer.pages) >= number)
        file = self.system.folder / "page.pdf"
        data = self.printer.pages[number - 1]
        # A printer is also told about the job, before and behind the page.
        file.write_bytes(data[data.index(b"%PDF"):])
        return str(file)

    def text_of(self, file):
        return self.system.run("pdftotext", "-layout", file, "-")

    def test_page_lies_in_the_default_printer(self):
        self.assertEqual(self.print_report(), [])
        file = self.next_page()
        info = self.system.run("pdfinfo", file)
        self.assertRegex(info, r"Pages:\s+1\n")
        self.assertRegex(info, r"Page size:\s+612 x 792 pts")
        text = self.text_of(file)
        for line in (
                r"^ *Orifice calculation for Bore size - Flange Taps - Gas$",
                r"^ *Customer: Northfield Refinery$",
                r"^ *Flow Rate +25,000\.00 Standard Cubic Feet/Day$",
                r"correction will result in erroneous computations\.",
                r"^ *Note: Values for the beta ratio are approximate, typically within$",
                r"^ *Brindle Headquarters +Port Alder, TX +Kestrel Bay, CA +Fenwick Mills, NJ$",
                r"^ *05 Mar 2024 +Web site: www\.brindle\.example$"):
            self.assertRegex(text, re.compile(line, re.MULTILINE))
        fonts = self.system.run("pdffonts", file).splitlines()[2:]
        self.assertEqual(len(fonts), 3, fonts)
        for font in fonts:
            self.assertRegex(font, r"^(\w+\+)?(CourierNew|LiberationMono|Cousine)")
        pictures = self.system.run("pdfimages", "-list", file).splitlines()[2:]
        self.assertEqual(len(pictures), 1, pictures)

    def test_page_has_the_printers_own_paper(self):
        self.system.run("lpadmin", "-p", PRINTER, "-o", "PageSize=A4")
        self.assertEqual(self.print_report(), [])
        info = self.system.run("pdfinfo", self.next_page())
        self.assertRegex(info, r"Pages:\s+1\n")
        self.assertRegex(info, r"Page size:\s+59[56](\.\d+)? x 84[12](\.\d+)? pts")

    def test_stopped_printer_is_told_and_the_page_is_not_lost(self):
        self.system.run("cupsdisable", PRINTER)
        self.assert_told(self.print_report(), f'The printer "{PRINTER}" is not ready.',
                         "waits in its queue")
        self.assertEqual(len(self.system.jobs()), 1)
        self.assertEqual(self.printer.pages, [])
        self.system.run("cupsenable", PRINTER)
        self.assertIn("Tag: FE-4102", self.text_of(self.next_page()))

    def test_rejecting_printer_is_told_and_the_next_report_prints(self):
        self.system.run("cupsreject", PRINTER)
        self.assert_told(self.print_report(), "The report could not be printed.",
                         f"Printer: {PRINTER}", "not accepting jobs")
        self.assertEqual(self.system.jobs(), [])
        self.system.run("cupsaccept", PRINTER)
        self.assertEqual(self.print_report(), [])
        self.assertIn("Tag: FE-4102", self.text_of(self.next_page()))

    def test_printer_that_vanishes_is_told(self):
        with self.report_on_hold() as boxes:
            self.system.run("lpadmin", "-x", PRINTER)
        self.assert_told(boxes, "The report could not be printed.",
                         "does not know this printer any more")

    def test_print_server_that_vanishes_is_told(self):
        with self.report_on_hold() as boxes:
            self.system.stop()
        self.assert_told(boxes, "The report could not be printed.", "does not answer")

    def test_full_disk_is_told(self):
        # A file system of a few kilobytes in place of the folder for temporary files, seen by this
        # one program only.
        on_full_disk = ("unshare", "--map-root-user", "--mount", "sh", "-c",
                        'mount -t tmpfs -o size=64k none "$TMPDIR" && exec "$@"', "sh")
        if shutil.which("unshare") is None or subprocess.run(
                [*on_full_disk, "true"], env=self.system.environment, capture_output=True,
                check=False).returncode != 0:
            self.skipTest("a program can't be given a file system of its own here")
        self.assert_told(self.print_report(on_full_disk), "The report could not be printed.",
                         "There is no room left on the disk")
        self.assertEqual(self.system.jobs(), [])

    def test_page_leaves_nothing_behind(self):
        self.assertEqual(self.print_report(), [])
        self.next_page()
        wait_until("no jobs left", lambda: not self.system.jobs())
        self.assertEqual(os.listdir(self.system.folder / "tmp"), [])
        self.assertEqual(os.listdir(self.system.folder / "home"), [])


def main():
    global print_page, logo
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    print_page, logo = (os.path.abspath(argument) for argument in sys.argv[1:])
    for file in (print_page, logo):
        if not os.path.exists(file):
            print(f"print_journey.py: there is no {file}", file=sys.stderr)
            return 2
    with tempfile.TemporaryDirectory(prefix="print-journey-") as folder:
        try:
            PrintJourney.system = PrintSystem(folder)
        except CannotRun as reason:
            print(f"SKIPPED: the print journey: {reason}")
            return SKIPPED
        try:
            result = unittest.main(argv=sys.argv[:1], exit=False, verbosity=2).result
        finally:
            PrintJourney.system.stop()
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
