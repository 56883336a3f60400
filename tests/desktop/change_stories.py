# SPDX-License-Identifier: MIT
"""What tools change, as the user sees it."""

import subprocess
import time
import unittest

from desk import Atspi, FIELD, Story, by_code, keys, wait_for


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
        subprocess.run(["xdotool", "keydown", by_code("F8")], check=True)
        try:
            self.overlay_becomes(run, "Text before Title Case", "the cat\nsat")
            time.sleep(1)  # meanwhile the key repeats itself
            self.overlay_becomes(run, "Text before Title Case", "the cat\nsat")
            run.text_becomes("The Cat\nSat")
        finally:
            subprocess.run(["xdotool", "keyup", by_code("F8")], check=True)
        wait_for(lambda: not run.shows("Text before Title Case"), "the text itself")
        keys("ctrl+z")
        run.text_becomes("the cat\nsat")

    def test_preview_in_the_text(self):
        run = self.start_on("one two three")
        run.tool("Spaces & Layout", "Word wrap...")
        run.active("Word Wrap")
        keys("ctrl+a", "5")
        run.click("Preview in the text")
        self.overlay_becomes(run, "Preview", "one\ntwo\nthree")
        keys("alt+h")  # a change of the settings
        keys("Escape")
        run.main_is_active()
        self.assertFalse(run.shows("Preview"))
        run.text_becomes("one two three")
        keys("alt+q")
        run.ends()  # without a question: nothing has changed
        wait_for(lambda: run.settings.read("Tolvo", "Preview", "InText") == "1", "the choice to be kept")

    def test_a_tool_is_dragged_onto_a_power_button(self):
        run = self.start_on("text")
        run.click("Capitals")
        run.find("UPPER CASE")
        run.panel_rests()
        places = [run.middle(run.find(name)) for name in ("UPPER CASE", "PowerButton 2, not defined")]
        steps = [tuple(a + (b - a) * i // 8 for a, b in zip(*places)) for i in range(9)]
        subprocess.run(["xdotool", "mousemove", "--sync", *map(str, steps[0]), "mousedown", "1"], check=True)
        for x, y in steps[1:] + [(steps[-1][0] + 1, steps[-1][1])]:
            subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y)], check=True)
            time.sleep(0.1)
        subprocess.run(["xdotool", "mouseup", "1"], check=True)
        run.status_becomes("UPPER CASE added to PowerButton 2")
        run.text_becomes("text")
        keys("ctrl+2")
        run.text_becomes("TEXT")


if __name__ == "__main__":
    unittest.main()
