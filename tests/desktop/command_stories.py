# SPDX-License-Identifier: MIT
"""Commands on the clipboard without a window: a key of the desktop runs a PowerButton or a tool, and a notification says what
happened. The notification service is one of our own on the bus of the display."""

import os
import subprocess
import threading
import time
import unittest

from gi.repository import Gio, GLib

from desk import PROGRAMS, Settings, clipboard_becomes, get_clipboard, set_clipboard, wait_for

NAME = "org.freedesktop.Notifications"
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""
<node><interface name="{NAME}">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="as" direction="in"/><arg type="a{{sv}}" direction="in"/>
    <arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
  <signal name="NotificationClosed"><arg type="u"/><arg type="u"/></signal>
</interface></node>""").interfaces[0]


class Notifications:
    """The desktop's notification service: keeps what it is to show, and lets the user choose."""

    def __init__(self):
        self.shown = []  # (title, text, actions)
        self.closed = []
        self.loop = GLib.MainLoop()
        self.bus = None
        self.owned = threading.Event()
        Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, self._register,
                         lambda *_: self.owned.set(), None)
        threading.Thread(target=self.loop.run, daemon=True).start()
        assert self.owned.wait(10), "another notification service has the name"

    def _register(self, bus, _):
        self.bus = bus
        bus.register_object("/org/freedesktop/Notifications", INTERFACE, self._called, None, None)

    def _called(self, _bus, _sender, _path, _interface, method, arguments, reply):
        given = arguments.unpack()
        if method == "GetCapabilities":
            reply.return_value(GLib.Variant("(as)", (["actions", "body", "body-markup"],)))
        elif method == "Notify":
            self.shown.append((given[3], given[4], given[5]))
            reply.return_value(GLib.Variant("(u)", (given[1] or len(self.shown),)))
        else:
            self.closed.append(given[0])
            reply.return_value(None)

    def choose(self, action):
        """The user chooses an action of the latest notification."""
        self.bus.emit_signal(None, "/org/freedesktop/Notifications", NAME, "ActionInvoked",
                             GLib.Variant("(us)", (len(self.shown), action)))


class CommandStories(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Notifications()

    def setUp(self):
        self.settings = Settings()
        self.desktop.shown.clear()
        self.desktop.closed.clear()

    def tearDown(self):
        set_clipboard("over")
        wait_for(lambda: not self.settings.programs("tolvo"), "the keeper to end")
        self.settings.close()

    def run_tolvo(self, *arguments, code=0, **environment):
        """Runs a command and returns what it has written to standard error."""
        reply = subprocess.run([os.path.join(PROGRAMS, "tolvo"), *arguments], timeout=20, capture_output=True, text=True,
                               env={**self.settings.environment(), **environment})
        self.assertEqual(reply.returncode, code, reply.stderr)
        self.assertEqual(reply.stdout, "")
        return reply.stderr

    def notified(self):
        wait_for(lambda: self.desktop.shown, "a notification")
        return self.desktop.shown[-1]

    def define_button(self, number, name, token):
        section = f"PowerButtons\\Button {number}"
        self.settings.write("Tolvo", section, "Name", name)
        self.settings.write("Tolvo", section + "\\1", "Token", token)
        self.settings.write("Tolvo", section + "\\1", "DlgOption", "2")

    def test_a_powerbutton_and_its_undo(self):
        self.define_button(3, "Shout <now>", "ccUPP")
        set_clipboard("one\n<two>")
        self.assertEqual(self.run_tolvo("--button", "3"), "tolvo: Shout <now>: 10 characters: upper case\n")
        clipboard_becomes("ONE\n<TWO>")
        self.assertEqual(self.notified(), ("Shout <now>", "10 characters: upper case", ["undo", "Undo"]))
        self.desktop.choose("undo")
        clipboard_becomes("one\n<two>")
        set_clipboard("another program's")
        wait_for(lambda: self.desktop.shown[1:] == [("Shout <now>", "10 characters: upper case", [])],
                 "the notification to lose its button when there is nothing left to undo")
        self.assertEqual(self.desktop.closed, [])
        self.assertEqual(get_clipboard(), "another program's")

    def test_a_notification_goes_when_it_has_been_read(self):
        set_clipboard("one")
        self.run_tolvo("--tool", "ccUPP")
        clipboard_becomes("ONE")
        time.sleep(3.2)
        set_clipboard("another program's")
        wait_for(lambda: self.desktop.closed == [1], "the notification to go")
        self.assertEqual(len(self.desktop.shown), 1)

    def test_by_name_and_a_single_tool(self):
        self.define_button(5, "Shout", "ccUPP")
        set_clipboard("a  ")
        self.run_tolvo("--button=shout")
        clipboard_becomes("A  ")
        self.run_tolvo("--tool", "foTRA")  # takes the clipboard over from the keeper of the first
        clipboard_becomes("A")
        wait_for(lambda: len(self.settings.programs("tolvo")) == 1, "one keeper")

    def test_what_cannot_be_done_leaves_the_clipboard_alone(self):
        set_clipboard("a (")
        self.assertIn("there is no PowerButton \"9\"", self.run_tolvo("--button", "9", code=2))
        self.assertIn("there is no tool \"foXXX\"", self.run_tolvo("--tool", "foXXX", code=2))
        self.assertIn("unknown option", self.run_tolvo("--buton", "1", code=2))
        self.assertEqual(self.desktop.shown, [])
        self.run_tolvo("--tool", "foIND:RadioButton=x", code=1)
        title, text, actions = self.notified()
        self.assertEqual((title, actions), ("Indent", []))
        self.assertTrue(text)
        self.assertEqual(get_clipboard(), "a (")

    def test_an_empty_clipboard(self):
        set_clipboard("")
        self.assertEqual(self.run_tolvo("--tool", "ccUPP", code=1), "tolvo: UPPER CASE: There is no text on the clipboard\n")
        self.assertEqual(self.notified()[:2], ("UPPER CASE", "There is no text on the clipboard"))

    def test_without_a_notification_service(self):
        for address in ("unix:path=/nonexistent", ""):
            set_clipboard("a")
            said = self.run_tolvo("--tool", "ccUPP", DBUS_SESSION_BUS_ADDRESS=address)
            self.assertEqual(said, "tolvo: UPPER CASE: 1 characters: upper case\n")
            clipboard_becomes("A")
        self.assertEqual(self.desktop.shown, [])

    def test_without_a_display(self):
        environment = {name: value for name, value in self.settings.environment().items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        for arguments, code, words in ((["--version"], 0, "tolvo "), (["--help"], 0, "Usage: tolvo"),
                                       (["--tool", "ccUPP"], 1, "there is no display")):
            reply = subprocess.run([os.path.join(PROGRAMS, "tolvo"), *arguments], capture_output=True, text=True, timeout=20,
                                   env=environment)
            self.assertEqual(reply.returncode, code)
            self.assertIn(words, reply.stdout + reply.stderr)


if __name__ == "__main__":
    unittest.main()
