# SPDX-License-Identifier: MIT
"""Tools for writing as their user meets them: found by other words, set in a dialog by keys, seen in its sample."""

import unittest

from desk import Story, keys, set_clipboard, type_text


class WritingStories(Story):
    def find(self, run, words):
        run.main_is_active()
        keys("ctrl+p")
        type_text(words)
        keys("Return")

    def test_typography_speaks_the_language_that_is_chosen(self):
        run = self.start('"Ja" - 5 km')
        self.find(run, "typog")
        run.active("Typography")
        keys("alt+l", "g", "Return")
        run.text_becomes("\u201eJa\u201c\u00a0\u2013 5\u00a0km")
        run.status_becomes("Typography set")
        keys("ctrl+z")
        run.text_becomes('"Ja" - 5 km')
        self.find(run, "typog")  # the language is kept
        run.active("Typography")
        keys("alt+n", "Return")
        run.text_becomes("\u201eJa\u201c \u2013 5 km")

    def test_a_page_becomes_text_and_is_compared(self):
        run = self.start("<p>Tea</p><ul><li>milk</ul>")
        self.find(run, "html2text")
        run.text_becomes("Tea\n\n- milk")
        set_clipboard("Tea\n\n- sugar")
        self.find(run, "diff")
        run.text_becomes("  Tea\n  \n- - sugar\n+ - milk")


if __name__ == "__main__":
    unittest.main()
