# SPDX-License-Identifier: MIT
"""What the window offers by itself: what looks wrong with a fresh text, the first PowerButtons, the tips."""

import re
import subprocess
import unittest

from desk import Atspi, Story, clipboard_becomes, keys, type_text, wait_for

MAIL = """> The annual report was copied from a file in which every line
> ends with a hard break, and so it goes on and on until somebody
> joins the lines of the whole paragraph
> again."""
JOINED = ("The annual report was copied from a file in which every line ends with a hard break, and so it goes on and on "
          "until somebody joins the lines of the whole paragraph again.")


class TroubleStories(Story):
    def setUp(self):
        super().setUp()
        for hint in "Troubles", "PowerButtons":
            self.settings.write("Tolvo", "Hints", hint, "1")

    def test_a_mail_is_mended_with_two_clicks(self):
        run = self.start(MAIL)
        run.main_is_active()
        run.click("Looks like: mail quotes")
        run.text_becomes(MAIL.replace("> ", ""))
        run.click("Looks like: hard-wrapped lines")  # which the quoting marks hid
        run.text_becomes(JOINED)
        wait_for(lambda: not run.shows("Looks like:"), "the line to go")
        keys("alt+d")
        run.ends()
        clipboard_becomes(JOINED)

    def test_with_keys_alone_and_gone_by_typing(self):
        run = self.start(MAIL)
        run.main_is_active()
        run.find("Looks like: mail quotes")
        keys("F6")
        wait_for(lambda: run.focused() == "Looks like: mail quotes", lambda: f"the focus there, it is at {run.focused()!r}")
        keys("Escape")
        wait_for(lambda: run.focused() == "Text", "the focus in the text")
        type_text("x")
        wait_for(lambda: not run.shows("Looks like:"), "the line to go")
        keys("alt+f")
        run.find("Looks like: mail quotes")
        keys("ctrl+o")
        run.active("Options")
        run.page("General")
        run.click("Point out what looks wrong with a fresh text")
        keys("Return")
        run.main_is_active()
        keys("alt+f")
        wait_for(lambda: not run.shows("Looks like:"), "the line to stay away")

    def test_the_first_power_buttons(self):
        run = self.start(MAIL)
        run.main_is_active()
        run.click("PowerButtons run several tools with one click Load examples")
        wait_for(lambda: not run.shows("PowerButtons run several tools with one click"), "the line to go")
        keys("alt+F1")
        run.text_becomes(JOINED)
        keys("alt+q")
        run.active("Confirm close")
        keys("Return")
        run.ends()
        run = self.start(MAIL)
        run.find("Looks like: mail quotes")
        self.assertFalse(run.shows("PowerButtons run several tools with one click"))

    def test_the_tips_stand_beside_the_text(self):
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "1")
        run = self.start(MAIL)
        run.window()

        def area(title):
            window = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], capture_output=True, text=True)
            reply = subprocess.run(["xwininfo", "-id", window.stdout.split()[0]], capture_output=True, text=True)
            x, y, width, height = (int(re.search(what + r": +(-?\d+)", reply.stdout)[1]) for what in
                                   ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
            return x, y, x + width, y + height

        tips = wait_for(lambda: area("Tips for Tolvo"), "the tips")
        text = run.text_node().get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        apart = tips[2] <= text.x or tips[0] >= text.x + text.width or tips[3] <= text.y or tips[1] >= text.y + text.height
        self.assertTrue(apart, f"{tips} over the text at {text.x}, {text.y}")
        self.assertTrue(tips[0] >= 0 and tips[1] >= 0 and tips[2] <= 1280 and tips[3] <= 1024, tips)
        run.main_is_active()
        keys("alt+q")
        run.ends()
        wait_for(lambda: not self.settings.programs("Advisor.exe"), "the tips to leave")

    def test_a_tool_is_run_from_its_tip(self):
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "1")
        self.settings.write("Tolvo", "Advisor", "LastTip", "12")
        other = self.start(MAIL)
        other.window()
        wait_for(lambda: self.settings.programs("Advisor.exe"), "the tips of the first run")
        run = self.start("one\ntwo", wait=False)
        run.text_becomes("one\ntwo")

        def tip():
            desktop = Atspi.get_desktop(0)
            programs = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
            return other._named(lambda n: n.get_name().startswith("Join paragraphs turns"), programs)

        area = wait_for(tip, "the tip").get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        subprocess.run(["wmctrl", "-a", "Tips for Tolvo"], check=True)
        subprocess.run(["xdotool", "mousemove", "--sync", str(area.x + 20), str(area.y + 8), "click", "1"], check=True)
        other.text_becomes(MAIL.replace("\n> ", " > "))
        run.text_becomes("one\ntwo")
        wait_for(lambda: self.settings.read("Tolvo", "Hints", "ToolOfTip") == "", "the wish to be taken")


if __name__ == "__main__":
    unittest.main()
