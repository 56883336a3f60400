# SPDX-License-Identifier: MIT
"""The spelling walk with keys alone, a word for one run, the user's own words."""

import os
import unittest

from desk import Story, keys, type_text, wait_for

TEXT = "The ωψξ house.\nI recieve it.\nThe ωψξ ωψξ walks.\nIt is wron."


class SpellingStories(Story):
    def walk(self, run):
        keys("shift+F7")
        run.active("Spelling and Grammar")

    def stands_at(self, run, word, place):
        run.find(word)
        run.find(place)

    def own_words(self, name):
        """The lines of a file of the user's words, wherever it lies."""
        program = os.path.join(os.environ["TOLVO_BIN"], "Dictionaries")
        folder = program if os.access(program, os.W_OK) else os.path.join(self.settings.folder, "tolvo")
        path = os.path.join(folder, name)
        if not os.path.exists(path):
            return []
        with open(path, encoding="utf-8") as file:
            return file.read().split()

    def test_a_walk_by_keys(self):
        run = self.start(TEXT)
        self.walk(run)
        self.stands_at(run, "ωψξ", "1 of 5, line 1")
        keys("Return")  # no suggestions: passed over
        self.stands_at(run, "recieve", "2 of 5, line 2")
        keys("Return")
        self.stands_at(run, "ωψξ", "3 of 5, line 3")
        keys("Return")
        self.stands_at(run, "ωψξ", "4 of 5, line 3")
        keys("Return")  # repeated: deleted
        self.stands_at(run, "wron", "5 of 5, line 4")
        keys("Escape")
        run.box_says("Do you really want to throw away the 2 changes")
        keys("Escape")  # no
        run.active("Spelling and Grammar")
        self.stands_at(run, "wron", "5 of 5, line 4")
        keys("alt+i")
        run.main_is_active()
        run.text_becomes(TEXT.replace("recieve", "receive").replace("ωψξ ωψξ", "ωψξ"))

    def test_words_of_one_run_and_of_the_user(self):
        run = self.start("My ωψξ is wron.")
        self.walk(run)
        self.stands_at(run, "ωψξ", "1 of 2, line 1")
        keys("alt+r")
        self.stands_at(run, "wron", "2 of 2, line 1")
        keys("Escape")
        run.box_says("Spelling and grammar check complete")
        keys("Return")
        self.walk(run)
        self.stands_at(run, "wron", "1 of 1, line 1")
        self.assertNotIn("ωψξ", self.own_words("persdict.dat"))
        keys("Escape")
        run.box_says("Spelling and grammar check complete")
        keys("Return")
        run.main_is_active()

        run.click("Options")
        run.active("Options")
        run.page("Spelling")
        keys("alt+y")
        run.active("Your Own Words")
        type_text("storyzqx")
        keys("Return")
        run.find("storyzqx")
        wait_for(lambda: "storyzqx" in self.own_words("persdict.dat"), "the word in the file")
        type_text("storyzqx")
        keys("alt+r")
        wait_for(lambda: "storyzqx" not in self.own_words("persdict.dat"), "the word out of the file")
        keys("Escape")
        run.active("Options")
        keys("Escape")
        run.main_is_active()


if __name__ == "__main__":
    unittest.main()
