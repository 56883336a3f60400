# SPDX-License-Identifier: MIT
"""A user at a desk: starts the real program on a virtual X server, with the hands of hands.py and the accessibility bus as
the eyes."""

import os
import re
import signal
import subprocess
import threading
import time
import unittest
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# Stories import these from here.
from hands import (PATIENCE, PROGRAMS, Settings, by_code, clipboard_becomes, file_of, get_clipboard,  # noqa: E402, F401
                   keys, set_clipboard, type_text, wait_for)

FIELD = Atspi.Role.TEXT
PANEL_ROW = Atspi.Role.TABLE_CELL  # what the toolkit makes of an item of a tree
warnings.simplefilter("ignore", DeprecationWarning)


class Tolvo:
    """One run of the program."""

    def __init__(self, settings, wait=True, program="tolvo", arguments=(), **environment):
        self.settings = settings
        self.scale = int(environment.get("QT_SCALE_FACTOR", "1"))
        self._text = None
        self._said = b""
        self.process = subprocess.Popen([os.path.join(PROGRAMS, program), *arguments],
                                        env={**settings.environment(), **environment},
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self._listener = threading.Thread(target=self._listen, daemon=True)
        self._listener.start()
        if wait:
            self.window()
            wait_for(lambda: self.windows()[0].get_state_set().contains(Atspi.StateType.ACTIVE),
                     lambda: f"a window to take the keys, there are {self.titles()}")

    def _listen(self):
        with self.process.stdout as stdout:
            self._said = stdout.read()

    def said(self):
        """What the run has written, warnings of the toolkit included. Waits until nobody can write more."""
        self._listener.join(PATIENCE)
        assert not self._listener.is_alive(), "another program holds the run's output open"
        # Newer toolkits write down what the accessibility bus asks for and they do not have.
        asked = r"^qt\.accessibility\.atspi: (Subscription string not handled|\S+ does not implement).*\n"
        return re.sub(asked, "", self._said.decode(), flags=re.M)

    def accessible(self):
        """The run's own application on the accessibility bus: the session is a child of the process that was started."""
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and self.process.pid in (application.get_process_id(), parent_of(application.get_process_id())):
                return application
        return None

    def window(self):
        return wait_for(lambda: next(w for w in self.windows() if w.get_name().startswith("Tolvo ")), "the main window")

    def find(self, name, role=None):
        """The showing control of an accessible name, in the active window before all others."""
        return wait_for(lambda: self._named(lambda n: n.get_name() == name and (role is None or n.get_role() == role) and
                                            n.get_state_set().contains(Atspi.StateType.SHOWING)),
                        lambda: f"a control named {name!r}, there are the windows {self.titles()}")

    def windows(self):
        """The showing windows, the active one first."""
        application = self.accessible()
        children = [application.get_child_at_index(i) for i in range(application.get_child_count())] if application else []
        showing = [c for c in children if c and c.get_state_set().contains(Atspi.StateType.SHOWING)]
        return sorted(showing, key=lambda w: not w.get_state_set().contains(Atspi.StateType.ACTIVE))

    def active(self, title):
        """Waits until the window whose title begins so has the keyboard."""
        window = wait_for(lambda: next(w for w in self.windows() if w.get_name().startswith(title) and
                                       w.get_state_set().contains(Atspi.StateType.ACTIVE)),
                          lambda: f"the window {title!r}, there are {self.titles()}")
        time.sleep(0.3)  # the keys follow a moment after the window says so
        return window

    def main_is_active(self):
        wait_for(lambda: len(self.windows()) == 1 and self.windows()[0].get_state_set().contains(Atspi.StateType.ACTIVE),
                 lambda: f"the main window alone, there are {self.titles()}")

    def close_box(self):
        """Asks the active window to close, as the window manager does for its close box."""
        subprocess.run(["wmctrl", "-F", "-c", self.windows()[0].get_name()], check=True)

    def titles(self):
        """The titles of the showing windows, the active one with a star."""
        if self.process.poll() is not None:
            return f"none, the run ended with {self.process.returncode}"
        return [w.get_name() + "*" * w.get_state_set().contains(Atspi.StateType.ACTIVE) for w in self.windows()]

    def shows(self, name):
        return self._named(lambda n: n.get_name() == name and
                           n.get_state_set().contains(Atspi.StateType.SHOWING)) is not None

    def _named(self, matches, windows=None):
        for window in windows or self.windows():
            queue = [window]
            while queue:
                node = queue.pop(0)
                if matches(node):
                    return node
                queue += [c for c in (node.get_child_at_index(i) for i in range(node.get_child_count())) if c]
        return None

    def click(self, name, button=1, role=None, times=1):
        """Clicks a control, given by its name or by a function that finds it."""
        def control():
            return self.find(name, role) if isinstance(name, str) else name()

        def still():
            # Controls may take another name while the panel moves, so they are found afresh.
            before = self.middle(control())
            time.sleep(0.15)
            return self.middle(control()) == before

        control()
        wait_for(still, f"{name!r} to stand still")
        self.click_on(control(), button, times)

    def middle(self, control):
        area = control.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return (area.x + area.width // 2) * self.scale, (area.y + area.height // 2) * self.scale

    def click_on(self, control, button=1, times=1):
        """Clicks the middle of a control; the bus gives places without the scale of the screen."""
        x, y = self.middle(control)
        subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y), "click", "--repeat", str(times), "--delay", "40",
                        str(button)], check=True)
        time.sleep(0.15)

    def page(self, name):
        """Clicks a tab: the bus doesn't tell of a tab that it is showing."""
        self.click(lambda: self._named(lambda n: n.get_name() == name and n.get_role() == Atspi.Role.PAGE_TAB))

    def rows(self, role=Atspi.Role.LIST_ITEM):
        """The rows of the list in the active window."""
        found = []
        self._named(lambda n: n.get_role() == role and found.append(n))
        return found

    def tool(self, group, name, button=1):
        """Clicks a tool of the panel, its group first if that is closed."""
        if not self.shows(name):
            self.click(group)
            self.find(name)
            self.panel_rests()
        self.click(name, button)

    def panel_rests(self):
        """Waits until the last row of the panel has slid to its place: before that the rows take no click."""
        def still():
            before = [row.get_name() for row in self.rows(PANEL_ROW)]
            time.sleep(0.3)
            return before == [row.get_name() for row in self.rows(PANEL_ROW)]

        wait_for(still, "the panel to rest")

    def focused(self):
        """The name of the control that has the keys."""
        return self.focused_node().get_name()

    def focused_node(self):
        # A tab says so of itself as long as it is the current one.
        return self._named(lambda n: n.get_state_set().contains(Atspi.StateType.FOCUSED) and
                           n.get_role() != Atspi.Role.PAGE_TAB)

    def tool_by_keys(self, group, name):
        """From the text to a tool of the panel and into it, with keys alone."""
        def walk(stroke, to):
            def there():
                return self.focused() == to or keys(stroke)

            wait_for(there, lambda: f"the keys at {to!r}, they are at {self.focused()!r}")

        def in_panel():
            return self.focused_node().get_role() == PANEL_ROW or keys("Tab")

        keys("ctrl+Tab")
        wait_for(in_panel, lambda: f"the keys in the panel, they are at {self.focused()!r}")
        keys("Home")
        walk("Down", group)
        if not self.shows(name):
            keys("Return")
            self.find(name)
            self.panel_rests()
        walk("Down", name)
        keys("Return")

    def font(self):
        """The family of the text's font."""
        attributes, _, _ = Atspi.Text.get_attribute_run(self.text_node().get_text_iface(), 0, True)
        return attributes["family-name"].strip('"')

    def is_checked(self, name):
        return self.find(name).get_state_set().contains(Atspi.StateType.CHECKED)

    def text_node(self, name="Text"):
        if not (self._text and self._text.get_state_set().contains(Atspi.StateType.SHOWING)):
            self._text = wait_for(lambda: next(n for n in [self._named(
                lambda n: n.get_name() == name and n.get_role() == Atspi.Role.TEXT and
                n.get_state_set().contains(Atspi.StateType.SHOWING))] if n), "the text area")
        return self._text

    def text(self):
        """What the text area shows, lines by LF."""
        text = self.text_node().get_text_iface()
        return Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text))

    def picture(self):
        """The text with its selection between « and », a bare caret as ¦."""
        node = self.text_node().get_text_iface()
        text = self.text()
        if Atspi.Text.get_n_selections(node):
            chosen = Atspi.Text.get_selection(node, 0)
            return text[:chosen.start_offset] + "«" + text[chosen.start_offset:chosen.end_offset] + "»" + \
                text[chosen.end_offset:]
        caret = Atspi.Text.get_caret_offset(node)
        return text[:caret] + "¦" + text[caret:]

    def picture_becomes(self, picture):
        try:
            wait_for(lambda: self.picture() == picture, "")
        except AssertionError:
            raise AssertionError(f"waited in vain for {picture!r}, it is {self.picture()!r}") from None

    def place(self, picture):
        """Brings text and selection about: by the clipboard and with the arrow keys."""
        start, end = (picture.index("¦"),) * 2 if "¦" in picture else (picture.index("«"), picture.index("»") - 1)
        text = picture.translate({ord(c): None for c in "«»¦"})
        set_clipboard(text)
        keys("alt+f")
        self.text_becomes(text)
        self.status_becomes("Text retrieved from clipboard")
        keys(" ".join(["ctrl+Home"] + ["Right"] * start + ["shift+Right"] * (end - start)))
        self.picture_becomes(picture)

    def text_becomes(self, text):
        wait_for(lambda: self.text() == text, f"the text {text[:60]!r}, it is {self.text()[:60]!r}")

    def status_becomes(self, text):
        wait_for(lambda: self.shows(text), f"the status {text!r}")

    def box_says(self, text):
        """Waits for a message box or a dialog that has the keyboard, with a text that begins so."""
        def said():
            window = self.windows()[0]
            return window.get_state_set().contains(Atspi.StateType.ACTIVE) and self._named(
                lambda n: n.get_name().startswith(text) or (n.get_description() or "").startswith(text), [window])

        wait_for(said, f"a box: {text!r}")

    def ends(self, code=0, patience=PATIENCE):
        try:
            found = self.process.wait(patience)
        except subprocess.TimeoutExpired as late:
            raise AssertionError("the run did not end") from late
        assert found == code, f"the run ended with {found}: {self.said()}"

    def kill(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
            try:
                self.process.wait(5)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()


def parent_of(process):
    stat = file_of(process, "stat")
    return int(stat.rsplit(")", 1)[1].split()[1]) if stat else 0


class Story(unittest.TestCase):
    """Stories of one user: a store without tips and hints, and runs that end with the story."""

    def setUp(self):
        self.settings = Settings()
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        for hint in "Troubles", "PowerButtons":
            self.settings.write("Tolvo", "Hints", hint, "0")
        self.runs = []

    def tearDown(self):
        for run in self.runs:
            run.kill()
        self.settings.close()
        for run in self.runs:
            self.assertEqual(run.said(), "", "the run wrote something")

    def start(self, clipboard, wait=True, **environment):
        """A run that takes this text, or with None what is on the clipboard."""
        if clipboard is not None:
            set_clipboard(clipboard)
        self.runs.append(Tolvo(self.settings, wait, **environment))
        return self.runs[-1]
