# SPDX-License-Identifier: MIT
"""What the window offers by itself: what looks wrong with a fresh text, the first PowerButtons, the tips."""

import unittest

from desk import Story, clipboard_becomes, keys, type_text, wait_for

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


if __name__ == "__main__":
    unittest.main()
