# SPDX-License-Identifier: MIT
"""A search is seen before it is done: what the search window says while a search is being written."""

import unittest

from desk import Story, keys, type_text

TEXT = "cat one, Cat two\ncat three"


class LiveSearchStories(Story):
    def setUp(self):
        super().setUp()
        self.settings.write("Tolvo", "Search", "Direction", "Down")
        self.settings.write("Tolvo", "Search", "More", "True")

    def open(self, run, key):
        keys(key)
        run.active("Tolvo Search")

    def write(self, run, field, text):
        keys(field, "ctrl+a")
        type_text(text)

    def test_find_see_replace_undo(self):
        run = self.start(TEXT)
        self.open(run, "ctrl+h")
        self.write(run, "alt+e", "cat")
        run.find("3 matches")
        run.find("3 will be replaced")
        self.write(run, "alt+i", "dog")
        run.find("Dog")  # among the replacements
        keys("alt+n")
        run.find("1 of 3")
        run.picture_becomes("«cat» one, Cat two\ncat three")
        keys("alt+r")
        run.text_becomes("dog one, Cat two\ncat three")
        run.find("2 matches")
        keys("alt+m")  # match case
        run.find("1 match")
        run.find("1 will be replaced")
        keys("alt+a")
        run.box_says("1 string replaced")
        keys("Return")
        run.active("Tolvo Search")
        run.text_becomes("dog one, Cat two\ndog three")
        run.find("no match")
        keys("Escape")
        run.main_is_active()
        keys("ctrl+z", "ctrl+z")
        run.text_becomes(TEXT)

    def test_a_bad_pattern_is_mended(self):
        run = self.start(TEXT)
        self.open(run, "ctrl+f")
        run.page("Regular Expression")
        self.write(run, "alt+e", "(cat|two")
        run.find("a group is not closed, at character 1")
        type_text(")")
        run.find("4 matches")
        run.picture_becomes("¦" + TEXT)
        keys("alt+k")  # no marks in the text
        run.find("4 matches")
        keys("Escape")
        run.main_is_active()
        keys("alt+q")
        run.ends()
        self.assertEqual(self.settings.read("Tolvo", "View", "Matches"), "0")


if __name__ == "__main__":
    unittest.main()
