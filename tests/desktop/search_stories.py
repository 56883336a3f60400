# SPDX-License-Identifier: MIT
"""Search and replace in the real window: by keys alone in each of the three modes, results by the mouse."""

import unittest

from desk import Story, keys, type_text

# Tab (how often Ctrl-PageDown), find text, replacement; all three find every word that begins with c.
MODES = [("Simple Search", 0, "cat", "dog"),
         ("Wildcard Search", 1, "c?t", "dog"),
         ("Regular Expression", 2, "c[aou]t", "dog")]
TEXT = "cat one, cat two\ncat three"


class SearchStories(Story):
    def setUp(self):
        super().setUp()
        self.settings.write("Tolvo", "Search", "Direction", "Start")
        self.settings.write("Tolvo", "Search", "SmartReplace", "0")

    def open(self, run, key, tab, find, replace=None):
        """Opens the search window and fills it with keys alone."""
        keys(key)
        run.active("Tolvo Search")
        keys(*["ctrl+Next"] * tab, "alt+e", "ctrl+a")
        type_text(find)
        if replace is not None:
            keys("alt+i", "ctrl+a")
            type_text(replace)

    def test_the_selection_is_looked_for(self):
        self.settings.write("Tolvo", "Search", "Direction", "Down")
        run = self.start("cat cot cat")
        keys("ctrl+Home shift+Right shift+Right shift+Right", "ctrl+f")
        run.active("Tolvo Search")
        keys("Return")
        run.picture_becomes("cat cot «cat»")
        run.find("Find Next")  # the search is over: while it runs, Escape breaks it off
        keys("Escape")
        run.main_is_active()
        keys("ctrl+Home", "F3")
        run.picture_becomes("«cat» cot cat")
        keys("ctrl+h")
        run.active("Tolvo Search & Replace")
        keys("F3")
        run.picture_becomes("cat cot «cat»")

    def test_find_replace_and_replace_all_by_keys(self):
        for name, tab, find, replace in MODES:
            with self.subTest(mode=name):
                self.settings.write("Tolvo", "Search", "Tab", "1")
                run = self.start(TEXT)
                self.open(run, "ctrl+h", tab, find, replace)
                keys("alt+f", "alt+n")
                run.picture_becomes("«cat» one, cat two\ncat three")
                keys("alt+d", "alt+n")
                run.picture_becomes("cat one, «cat» two\ncat three")
                keys("alt+r")
                run.text_becomes("cat one, dog two\ncat three")
                keys("alt+a")
                run.box_says("2 strings replaced")
                keys("Return")
                run.active("Tolvo Search")
                run.text_becomes("dog one, dog two\ndog three")
                keys("Escape")
                run.main_is_active()
                keys("ctrl+z")  # each replacement is a step of its own
                run.text_becomes("cat one, dog two\ncat three")
                keys("ctrl+z")
                run.text_becomes(TEXT)
                keys("ctrl+y", "ctrl+y")
                run.text_becomes("dog one, dog two\ndog three")
                keys("alt+q")
                run.click("Discard changes")
                run.ends()
                self.assertEqual(self.settings.read("Tolvo", "Search", "Tab"), str(tab + 1))
                self.assertEqual(self.settings.read("Tolvo", "Search\\SearchMRU", "a"), find)

    def test_find_all_lists_results_and_a_click_selects_one(self):
        for name, tab, find, _ in MODES:
            with self.subTest(mode=name):
                self.settings.write("Tolvo", "Search", "Tab", "1")
                run = self.start(TEXT)
                self.open(run, "ctrl+f", tab, find)
                before = run.picture()
                keys("alt+a")
                run.active("3 results found for")
                self.assertEqual(run.picture(), before)  # nobody has chosen a line
                run.click(lambda: run.rows()[1])
                run.picture_becomes("cat one, «cat» two\ncat three")
                keys("Escape")
                run.active("Tolvo Search")
                keys("Escape", "alt+q")
                run.ends()

    def test_a_wrong_pattern_says_what_is_wrong(self):
        run = self.start(TEXT)
        self.open(run, "ctrl+f", 2, "c(at")
        keys("alt+n")
        for said in "Error in regular expression", "Text not found anywhere in the document":
            run.box_says(said)
            keys("Return")
        run.active("Tolvo Search")
        self.assertEqual(run.text(), TEXT)


if __name__ == "__main__":
    unittest.main()
