"""The program as a helper for the disabled sees and uses it: controls by name and role, read and
worked from outside its process over the accessibility bus.

The bus is found through the environment, so this is imported when the desk stands.
"""

import contextlib

import pyatspi
from gi.repository import Atspi, GLib

from desk import PATIENCE, comes_soon, wait_until

GONE = (GLib.GError, LookupError, NotImplementedError, AttributeError)


def showing(accessible):
    return accessible.getState().contains(pyatspi.STATE_SHOWING)


def children(accessible):
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None:
            yield child


class Control:
    """A control that is shown."""

    def __init__(self, accessible):
        self.accessible = accessible

    @property
    def name(self):
        return self.accessible.name

    @property
    def role(self):
        return self.accessible.getRoleName()

    @property
    def text(self):
        return self.accessible.queryText().getText(0, -1)

    def has(self, state):
        return self.accessible.getState().contains(state)

    @property
    def enabled(self):
        return self.has(pyatspi.STATE_ENABLED)

    @property
    def focused(self):
        return self.has(pyatspi.STATE_FOCUSED)

    @property
    def checked(self):
        return self.has(pyatspi.STATE_CHECKED)

    @property
    def place(self):
        """Left, top, width and height on the screen."""
        return self.accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)

    @property
    def middle(self):
        place = self.place
        return place.x + place.width // 2, place.y + place.height // 2

    def act(self, name, answers_late=False):
        """Carries out an action. The toolkit's menus answer when the window that they open is
        closed: too late to wait for."""
        action = self.accessible.queryAction()
        names = [action.getName(index) for index in range(action.nActions)]
        assert name in names, f"{self.name} knows {names}, not {name}"
        if not answers_late:
            action.doAction(names.index(name))
            return
        Atspi.set_timeout(500, 0)
        with contextlib.suppress(GLib.GError):
            action.doAction(names.index(name))
        Atspi.set_timeout(-1, -1)

    def take_focus(self):
        self.accessible.queryComponent().grabFocus()
        wait_until(f"the focus in {self.name}", lambda: self.has(pyatspi.STATE_FOCUSED))

    def write(self, text):
        self.take_focus()
        self.accessible.queryEditableText().setTextContents(text)


class Program:
    """The running program."""

    def __init__(self, desk, file, **environment):
        desk.environment.update(environment)
        self.desk = desk
        self.process = desk.spawn(file)
        self.application = None

    def wait_for_splash(self):
        """The first window. It answers nothing, so all that can be seen is that it is there."""
        wait_until("a first window", lambda: self.is_running() and self.desk.search(
            "^Brindle Tarvix$"))

    def wait_for_main_window(self):
        self.application = wait_until("the program on the accessibility bus", self.look_for_it)
        self.wait_for("frame", "Brindle Tarvix", containing=("menu bar", ""))
        self.wait_for_main_keyboard()

    def is_running(self):
        assert self.process.poll() is None, f"the program ended: {self.desk.log()}"
        return True

    def look_for_it(self):
        self.is_running()
        for application in children(pyatspi.Registry.getDesktop(0)):
            with contextlib.suppress(*GONE):
                if application.get_process_id() == self.process.pid:
                    # Nothing is remembered: what is read is what the program says now.
                    application.setCacheMask(pyatspi.cache.NONE)
                    return application
        return None

    def find_all(self, role, name=None, begins=None, top=None):
        """The controls that are shown, have the role, and have the name, or begin with it."""
        found = []
        waiting = [top or self.application]
        while waiting:
            accessible = waiting.pop(0)
            try:
                if accessible is not self.application and not showing(accessible):
                    continue
                says = accessible.name
                fits = (name is None or says == name) and (begins is None
                                                           or says.startswith(begins))
                if fits and accessible.getRoleName() == role:
                    found.append(Control(accessible))
                waiting.extend(children(accessible))
            except GONE:
                continue  # it has gone while it was looked at
        return found

    def wait_for(self, role, name=None, begins=None, containing=None):
        """The control; there has to be exactly one, in a window that contains another, if given."""
        def look():
            found = self.find_all(role, name, begins)
            if containing:
                found = [control for control in found
                         if self.find_all(containing[0], containing[1] or None,
                                          top=control.accessible)]
            return found[0] if len(found) == 1 else None
        return wait_until(f"one {role} named {name or begins}", look)

    def option(self, name):
        return self.wait_for("radio button", name)

    def field(self, begins):
        return self.wait_for("text", begins=begins)

    def list(self, begins):
        return self.wait_for("combo box", begins=begins)

    def button(self, name):
        return self.wait_for("push button", name)

    def focused(self):
        """The control that has the focus; a tab that is in front says so, too."""
        for role in ("radio button", "text", "combo box", "push button"):
            for control in self.find_all(role):
                if control.has(pyatspi.STATE_FOCUSED):
                    return control
        return None

    def wait_for_keyboard(self, role, name=None, begins=None):
        """A control, once the keys go to it. A dialog can be seen before the window manager gives it
        the keyboard, and keys pressed between are lost."""
        control = self.wait_for(role, name, begins)
        wait_until(f"the focus in {name or begins}", lambda: control.focused)
        return control

    def wait_for_main_keyboard(self):
        """The main window has the keyboard, again after another has gone."""
        wait_until("the main window has the keyboard", self.focused)

    def message(self):
        """What the message line says; the warnings above it are alerts, too."""
        alerts = self.find_all("alert")
        return max(alerts, key=lambda alert: alert.place.y).name

    def wait_for_text(self, begins, text):
        control = self.field(begins)
        wait_until(f"'{text}' in {begins}; it says '{control.text}'", lambda: control.text == text)

    def click(self, control):
        self.desk.click(*control.middle)

    def type_into(self, begins, text):
        """Clicks on a field, which selects its text, and types."""
        field = self.field(begins)

        def is_clicked():
            # While the window manager is busy with one click, another may be lost.
            self.click(field)
            return comes_soon(lambda: field.focused)
        wait_until(f"the focus in {begins}", is_clicked)
        self.desk.write(text)
        self.wait_for_text(begins, text)

    def pick(self, begins, entry):
        """Opens a list and clicks on an entry."""
        entries = self.list(begins)
        self.click(entries)
        self.click(self.wait_for("list item", entry))
        wait_until(f"{entry} in {begins}", lambda: entries.name.endswith(": " + entry))

    def write_customer(self, text):
        """Types into the first line of the customer window, which has the focus."""
        line = self.wait_for_keyboard("text", "Customer")
        self.desk.write(text)
        wait_until(f"'{text}' in the customer's line", lambda: line.text == text)
        return line

    def wait_for_end(self):
        return self.process.wait(PATIENCE)


class Listener:
    """Hears what a program tells helpers: ("renamed", name) for a control whose name has changed,
    ("shown", name) for one that has come to be seen. Events are heard while `listen` runs."""

    KINDS = {"object:property-change:accessible-name": "renamed",
             "object:state-changed:showing": "shown"}

    def __init__(self, events):
        self.events = events
        pyatspi.Registry.registerEventListener(self.hear, *self.KINDS)

    def hear(self, event):
        kind = self.KINDS[":".join(str(event.type).split(":")[:3])]
        if kind == "shown" and not event.detail1:
            return
        try:
            self.events.append((kind, event.source.name))
        except GONE:
            pass

    def listen(self):
        context = GLib.MainContext.default()
        while context.pending():
            context.iteration(False)

    def close(self):
        pyatspi.Registry.deregisterEventListener(self.hear, *self.KINDS)
