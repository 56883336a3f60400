# SPDX-License-Identifier: MIT
"""The life of a PowerButton: defined, run, kept over a restart, changed, destroyed; with the mouse, and with keys alone."""

import unittest

from desk import FIELD, Story, clipboard_becomes, keys, type_text

NAME = "Enter a name for your PowerButton:"
NONE = "There are no actions defined for this PowerButton"


class PowerButtonStories(Story):
    def test_with_the_mouse(self):
        run = self.start("one\ntwo")
        run.click("PowerButton 1, not defined", 3)
        run.active("Edit PowerButton 1")
        run.click("UPPER CASE")
        run.click(NAME, role=FIELD)
        type_text("Shout")  # a name takes letters; everything else is done with the mouse
        run.click("Save Changes")
        run.click("OK")
        run.main_is_active()
        run.click("PowerButton 1: Shout")
        run.text_becomes("ONE\nTWO")
        run.click("Copy and Close")
        run.ends()
        clipboard_becomes("ONE\nTWO")

        run = self.start("three\nfour")
        keys("ctrl+1")
        run.text_becomes("THREE\nFOUR")
        run.click("PowerButton 1: Shout", 3)
        run.active("Edit PowerButton 1")
        run.click("Add Action")
        keys("Up", "Return")  # "Add at end", the last entry: the bus does not show menus of their own
        run.find(" Action 2 of 2")
        run.click("Lists & Numbers", times=2)
        run.click("Bullet list...")
        run.click("Custom settings:")
        run.click("Settings...")
        run.active("Bullet List Style")
        run.click("OK")
        run.active("Edit PowerButton 1")
        run.click("OK")
        run.main_is_active()
        run.click("Undo")
        run.click("PowerButton 1: Shout")
        run.text_becomes("•\tTHREE\n•\tFOUR")
        self.assertEqual(self.settings.read("Tolvo-Stats", "PBUsage", "ccUPP"), "3")
        run.click("PowerButton 1: Shout", 3)
        run.active("Edit PowerButton 1")
        run.click("Destroy this PowerButton and Exit (Alt-X)")
        run.box_says("You are about to delete the entire definition of this PowerButton.")
        keys("alt+y")
        run.main_is_active()
        run.click("PowerButton 1, not defined")
        run.box_says(NONE)
        run.click("OK")
        run.main_is_active()
        run.text_becomes("•\tTHREE\n•\tFOUR")

    def test_in_two_runs(self):
        first = self.start("one")
        second = self.start("two")
        second.click("PowerButton 1, not defined", 3)
        second.active("Edit PowerButton 1")
        second.click("UPPER CASE")
        second.click(NAME, role=FIELD)
        type_text("Shout")
        second.click("OK")
        second.main_is_active()
        first.find("PowerButton 1: Shout")  # though nobody has touched its window
        keys("alt+d")
        second.ends()
        first.main_is_active()
        first.click("PowerButton 1: Shout", 3)
        first.active("Edit PowerButton 1")
        first.click("OK")
        first.main_is_active()
        keys("alt+d")
        first.ends()
        third = self.start("three")
        keys("ctrl+1")
        third.text_becomes("THREE")

    def choose_by_keys(self, run, beginning):
        """From the name to the tree, to the tool whose name begins so, and back to the name."""
        keys("shift+Tab")
        type_text(beginning)
        keys("Return")

    def test_with_keys_alone(self):
        run = self.start("Some Text")
        keys("ctrl+shift+2")
        run.active("Edit PowerButton 2")
        type_text("Loud")
        self.choose_by_keys(run, "UPPER")
        keys("Tab", "Return")
        run.main_is_active()
        keys("ctrl+2")
        run.text_becomes("SOME TEXT")
        keys("ctrl+r")
        run.status_becomes("Repeated: Loud")
        keys("alt+d")
        run.ends()

        run = self.start("Other Text")
        keys("ctrl+2")
        run.text_becomes("OTHER TEXT")
        keys("ctrl+shift+2")
        run.active("Edit PowerButton 2")
        self.choose_by_keys(run, "lower")
        run.box_says("Replace 'UPPER CASE' with 'lower case' in Action 1?")
        keys("alt+y")
        run.active("Edit PowerButton 2")
        keys("Tab", "Return")
        run.main_is_active()
        keys("ctrl+2")
        run.text_becomes("other text")
        keys("ctrl+shift+2")
        run.active("Edit PowerButton 2")
        keys("alt+x")
        run.box_says("You are about to delete the entire definition of this PowerButton.")
        keys("alt+y")
        run.main_is_active()
        keys("ctrl+2")
        run.box_says(NONE)
        keys("Return")
        run.main_is_active()
        run.text_becomes("other text")


if __name__ == "__main__":
    unittest.main()
