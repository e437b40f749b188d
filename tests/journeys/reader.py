"""The screen reader Orca on a desk of the journeys, with a speech server that makes no sound, and
what it says.

Orca writes each text that it hands to the speech server into its debug log. That is what a user
hears; the names in the tree of accessible objects are only what it is made of.
"""

import contextlib
import os
import pathlib
import re
import subprocess

from desk import CannotRun, need, wait_until

TOOLS = ("orca", "speech-dispatcher", "pgrep", "xkbcomp")

# The speech server starts its silent module only with an output that opens no sound at its start.
SPEECH_SERVER = """\
AudioOutputMethod "libao"
AddModule "dummy" "sd_dummy" ""
DefaultModule dummy
"""

# As a user has it, but for the keys: what Orca says of them comes from the keyboard, not from the
# program. No braille, no sounds, and it does not give up where a busy machine makes it wait. The log
# leaves out what takes Orca long to ask for, and each line of it is written when it is there.
SETTINGS = """\
import orca.debug
import orca.settings
orca.debug.debugFile.reconfigure(line_buffering=True)
orca.debug.debugLevel = orca.debug.LEVEL_INFO
orca.debug.eventDebugLevel = orca.debug.LEVEL_ALL
orca.settings.enableKeyEcho = False
orca.settings.enableBraille = False
orca.settings.enableSound = False
orca.settings.timeoutTime = 0
"""

# The text stands between the quotes, the voice behind them.
SPOKEN = re.compile(r"SPEECH OUTPUT: '(.*?)'(?: voice=\w+)? ?(?:\{|None$)")


def runs_already():
    """Whether this user runs an Orca, beside which another does not start."""
    return subprocess.run(["pgrep", "-u", str(os.getuid()), "-x", "orca"], check=False,
                          stdout=subprocess.DEVNULL).returncode == 0


class Reader:
    """A running Orca. What it says is heard in order, each text once."""

    def __init__(self, desk):
        need(*TOOLS)
        if runs_already():
            raise CannotRun("another Orca is running")
        self.desk = desk
        self.folder = pathlib.Path(desk.folder) / "reader"
        self.folder.mkdir()
        self.line = ""  # of the log, as far as it is there
        self.texts = []  # that have been said
        self.heard = 0  # how many of them have been asked for
        self.start_speech_server()
        self.start_orca()

    def start_speech_server(self):
        (self.folder / "speechd.conf").write_text(SPEECH_SERVER, encoding="utf-8")
        socket = self.folder / "speech.socket"
        server = self.desk.spawn(
            "speech-dispatcher", "--run-single", "--config-dir", str(self.folder),
            "--socket-path", str(socket), "--log-dir", str(self.folder),
            "--pid-file", str(self.folder / "speech.pid"), "--timeout", "0")
        wait_until("the speech server", lambda: socket.exists() or server.poll() is not None)
        if server.poll() is not None:
            raise CannotRun(f"the speech server does not start: {self.desk.log()}")
        self.desk.environment["SPEECHD_ADDRESS"] = f"unix_socket:{socket}"

    def start_orca(self):
        (self.folder / "orca-customizations.py").write_text(SETTINGS, encoding="utf-8")
        log = self.folder / "log"
        log.touch()
        self.log = log.open(encoding="utf-8", errors="replace")
        self.process = self.desk.spawn("orca", "--user-prefs", str(self.folder),
                                       "--debug-file", str(log))
        try:
            self.reaches("Screen reader on.")
        except ChildProcessError as end:
            self.stop()
            if runs_already():  # it has come first
                raise CannotRun("another Orca is running") from end
            raise

    def stop(self):
        """Ends Orca, which does not end with the buses, and listens to nothing but events."""
        self.process.kill()
        self.process.wait()
        self.desk.processes.remove(self.process)
        self.log.close()

    def spoken(self):
        """All that has been said."""
        if self.process.poll() is not None:
            raise ChildProcessError(f"Orca ended: {self.desk.log()}")
        while piece := self.log.readline():
            self.line += piece
            if self.line.endswith("\n"):
                self.texts += SPOKEN.findall(self.line)
                self.line = ""
        return self.texts

    def forget(self):
        """What has been said so far is not asked for any more."""
        self.heard = len(self.spoken())

    def reaches(self, text):
        """Waits for a text."""
        self.wait_for_texts(lambda texts: text in texts)
        texts = self.spoken()[self.heard:]
        assert text in texts, f"'{text}' is not said; there was {texts}"
        self.heard += texts.index(text) + 1

    def next(self, count):
        """Waits for that many further texts and returns them; those that there are, if fewer."""
        self.wait_for_texts(lambda texts: len(texts) >= count)
        texts = self.spoken()[self.heard:][:count]
        self.heard += len(texts)
        return texts

    def wait_for_texts(self, are_there):
        """Waits for what is said next, but not for ever."""
        with contextlib.suppress(AssertionError):
            wait_until("what is said", lambda: are_there(self.spoken()[self.heard:]))
