# SPDX-License-Identifier: MIT
"""Finding tools: by typing, in the panel with keys alone, and as assistive technology sees both."""

import unittest

from desk import Atspi, FIELD, PANEL_ROW, Story, keys, type_text, wait_for

LINES = "some\nmore\ntea"


class FindStories(Story):
    def start_on(self, text):
        run = self.start(text)
        run.main_is_active()
        run.text_becomes(text)
        return run

    def find(self, run, words, *names):
        """Types in the field and waits for rows, the first of them first."""
        keys("ctrl+p")
        type_text(words)
        wait_for(lambda: [row.get_name() for row in run.rows()][:len(names)] == list(names),
                 lambda: f"the rows {names}, there are {[row.get_name() for row in run.rows()]}")

    def field_says(self, run, words):
        field = run.find("Find a tool", FIELD)
        wait_for(lambda: words in field.get_description(), lambda: f"{words!r}, it says {field.get_description()!r}")

    def focus_is_in_text(self, run):
        wait_for(lambda: run.focused() == "Text", lambda: f"the focus in the text, it is at {run.focused()!r}")

    def test_by_other_words_and_with_last_settings(self):
        run = self.start_on(LINES)
        self.find(run, "merge lines", "Join paragraphs")
        self.field_says(run, "1 of ")
        keys("Return")
        run.text_becomes("some more tea")
        self.focus_is_in_text(run)
        self.assertTrue(run.shows("Spaces & Layout"), "the panel is back")
        self.find(run, "indent", "Indent...")
        keys("shift+Return")
        run.status_becomes("Indent increased")
        run.text_becomes("\tsome more tea")
        self.find(run, "xylophone")
        self.field_says(run, "No tool matches")
        keys("Return", "Escape")
        self.focus_is_in_text(run)
        self.find(run, "", "Indent...", "Join paragraphs")
        keys("Down", "Return")  # the one before the last
        wait_for(lambda: run.settings.read("Tolvo", "Finder", "LastUsed") == "foPAR|foIND", "the order of use")

    def test_with_the_mouse(self):
        run = self.start_on(LINES)
        self.find(run, "line", "Repair line ends", "Trim line ends")
        run.click("Reverse lines", role=Atspi.Role.LIST_ITEM)
        run.text_becomes("tea\nmore\nsome")
        self.focus_is_in_text(run)
        self.find(run, "bullet", "Bullet list...")
        run.click("Bullet list...", button=3, role=Atspi.Role.LIST_ITEM)
        wait_for(lambda: run.text() not in ("", "tea\nmore\nsome"), "bullets without a dialog")
        self.find(run, "options", "Options")
        keys("Return")
        run.active("Options")
        keys("Escape")
        run.main_is_active()
        self.focus_is_in_text(run)

    def test_panel_with_keys_alone(self):
        run = self.start_on(LINES)

        def expanded(name):
            item = run.find(name, PANEL_ROW).get_state_set()
            self.assertNotEqual(item.contains(Atspi.StateType.EXPANDED), item.contains(Atspi.StateType.COLLAPSED))
            return item.contains(Atspi.StateType.EXPANDED)

        def focus_is_on(name):
            wait_for(lambda: run.focused() == name, lambda: f"the focus on {name!r}, it is on {run.focused()!r}")

        keys("ctrl+Tab")
        wait_for(lambda: run.focused() == "Capitals" or keys("Tab"), "the panel by the Tab key")
        self.assertEqual(run.find("Tools").get_role(), Atspi.Role.TREE)
        keys("End")
        focus_is_on("Codes & Signs")
        keys("Home", "Right")
        run.find("Title Case")
        run.panel_rests()
        self.assertTrue(expanded("Capitals"))
        self.assertFalse(expanded("Check"))
        keys("Right", "Down", "Down", "Down")
        focus_is_on("Title Case")
        keys("space")
        run.text_becomes("Some\nMore\nTea")
        keys("Left", "Left")
        wait_for(lambda: not expanded("Capitals"), "the category to close")
        focus_is_on("Capitals")
        run.panel_rests()
        keys("Tab", "shift+Tab")  # one stop
        focus_is_on("Capitals")
        keys("r", "e", "v")
        wait_for(lambda: "Reverse lines" in [row.get_name() for row in run.rows()], "the letters in the field")
        keys("Escape")
        self.focus_is_in_text(run)


if __name__ == "__main__":
    unittest.main()
