# SPDX-License-Identifier: MIT
"""What tools change, as the user sees it."""

import subprocess
import time
import unittest

from desk import Atspi, FIELD, Story, keys, wait_for


class ChangeStories(Story):
    def start_on(self, text):
        run = self.start(text)
        run.main_is_active()
        run.text_becomes(text)
        return run

    def overlay_becomes(self, run, name, text):
        def shown():
            node = run.find(name, FIELD).get_text_iface()
            return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))

        wait_for(lambda: shown() == text, lambda: f"{text!r} over the text, it is {shown()!r}")

    def test_changed_places_and_the_text_before(self):
        run = self.start_on("the cat\nsat")
        run.tool("Capitals", "Title Case")
        run.text_becomes("The Cat\nSat")
        wait_for(lambda: run.shows("3 places changed"), "the number of places")
        subprocess.run(["xdotool", "keydown", "F8"], check=True)
        try:
            self.overlay_becomes(run, "Text before Title Case", "the cat\nsat")
            time.sleep(1)  # meanwhile the key repeats itself
            self.overlay_becomes(run, "Text before Title Case", "the cat\nsat")
            run.text_becomes("The Cat\nSat")
        finally:
            subprocess.run(["xdotool", "keyup", "F8"], check=True)
        wait_for(lambda: not run.shows("Text before Title Case"), "the text itself")
        keys("ctrl+z")
        run.text_becomes("the cat\nsat")


if __name__ == "__main__":
    unittest.main()
