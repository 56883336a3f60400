# SPDX-License-Identifier: MIT
"""The search window in the main window, below the text: where a program can't place its windows, and by choice."""

import unittest

from desk import Atspi, Story, keys, type_text, wait_for

TEXT = "cat one, cat two\ncat three"


class DockStories(Story):
    def setUp(self):
        super().setUp()
        self.settings.write("Tolvo", "View", "SearchBelow", "1")
        self.settings.write("Tolvo", "Search", "Direction", "Start")
        self.settings.write("Tolvo", "Search", "SmartReplace", "0")

    def focus_is(self, run, *names):
        """A list that has been used goes by its first entry."""
        wait_for(lambda: run.focused() in names, lambda: f"the focus at {names}, it is at {run.focused()!r}")

    def test_letters_belong_to_the_part_with_the_focus(self):
        run = self.start(TEXT)
        keys("ctrl+h")
        self.focus_is(run, "Search for")
        self.assertEqual(len(run.windows()), 1)
        type_text("cat")
        keys("alt+i")
        self.focus_is(run, "Replace with")
        type_text("dog")
        keys("alt+f", "alt+n")  # From Start, Find Next: no Refresh
        run.picture_becomes("«cat» one, cat two\ncat three")
        self.focus_is(run, "Replace with", "dog")
        keys("alt+r")  # Replace: no Redo
        run.text_becomes("dog one, cat two\ncat three")
        keys("Escape")
        self.focus_is(run, "Text")
        self.assertFalse(run.shows("Search for"))
        keys("alt+u")
        run.text_becomes(TEXT)
        keys("F3")  # goes on without the window
        run.picture_becomes("«cat» one, cat two\ncat three")
        self.focus_is(run, "Text")

    def test_the_parts_are_left_and_entered_by_f6(self):
        run = self.start(TEXT)
        keys("ctrl+f")
        self.focus_is(run, "Search for")
        for _ in range(30):  # round the part, never out of it
            keys("Tab")
            self.assertNotIn(run.focused(), ("Text", "Copy and Close", "Find a tool"))
        keys("shift+F6")
        self.focus_is(run, "Text")
        keys("alt+d")
        run.ends()

    def test_the_list_of_results_takes_its_place_and_gives_it_back(self):
        run = self.start(TEXT)
        keys("ctrl+f")
        self.focus_is(run, "Search for")
        type_text("cat")
        keys("alt+a")
        self.focus_is(run, "Search results")
        self.assertEqual(len(run.windows()), 1)
        run.click("Copy and Close")  # the list is to be answered first
        run.click(lambda: [row for row in run.rows() if row.get_name().startswith("Line ")][1])
        run.picture_becomes("cat one, «cat» two\ncat three")
        keys("Escape")
        self.focus_is(run, "Search for", "cat")
        keys("alt+a")
        self.focus_is(run, "Search results")
        keys("Down", "Return")
        self.focus_is(run, "Text")
        run.picture_becomes("«cat» one, cat two\ncat three")

    def test_the_caret_stays_in_sight(self):
        run = self.start("line\n" * 60)
        keys("ctrl+Home", *["Down"] * 24)
        caret = 24 * len("line\n")
        keys("ctrl+f")
        self.focus_is(run, "Search for")
        text = run.text_node()

        def in_sight():
            box = text.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            letter = text.get_text_iface().get_character_extents(caret, Atspi.CoordType.SCREEN)
            return box.y <= letter.y and letter.y + letter.height <= box.y + box.height

        wait_for(in_sight, "the caret's line in sight")

    def test_the_choice_is_in_the_context_menu(self):
        run = self.start(TEXT)
        keys("ctrl+f")
        run.click("Tolvo Search", 3)
        keys("Down", "Return")  # the only choice
        run.active("Tolvo Search")
        self.assertEqual(self.settings.read("Tolvo", "View", "SearchBelow"), "0")
        keys("Escape")
        run.main_is_active()


if __name__ == "__main__":
    unittest.main()
