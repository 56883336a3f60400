# SPDX-License-Identifier: MIT
"""Search as its user sees it: the window out of the way, copies of matches by keys and as a step, the list of results."""

import unittest

from desk import FIELD, Atspi, Story, clipboard_becomes, keys, type_text, wait_for

LINES = "".join(f"line {i} of the text, word{i}\n" for i in range(60))


class SeekStories(Story):
    def setUp(self):
        super().setUp()
        self.settings.write("Tolvo", "Search", "Direction", "Down")

    def look_for(self, run, pattern):
        keys("ctrl+f")
        run.active("Tolvo Search")
        run.page("Regular Expression")
        keys("alt+e", "ctrl+a")
        type_text(pattern)

    def area(self, run, title):
        window = next(w for w in run.windows() if w.get_name().startswith(title))
        return window.get_component_iface().get_extents(Atspi.CoordType.SCREEN)

    def selection_is_free(self, run, title):
        """The selected text lies beside the window of that title."""
        node = run.text_node().get_text_iface()
        chosen = Atspi.Text.get_selection(node, 0)
        text = Atspi.Text.get_character_extents(node, chosen.start_offset, Atspi.CoordType.SCREEN)
        window = self.area(run, title)
        return not (window.x - text.width < text.x < window.x + window.width and
                    window.y - text.height < text.y < window.y + window.height)

    def test_the_window_stays_off_the_hits(self):
        run = self.start(LINES)
        self.look_for(run, "word1[0-9]")
        before = self.area(run, "Tolvo Search")
        places = set()
        for number in range(10, 20):
            keys("alt+n")
            wait_for(lambda n=number: f"«word{n}»" in run.picture(), f"the hit {number}")
            wait_for(lambda: self.selection_is_free(run, "Tolvo Search"), f"a free view on the hit {number}")
            places.add((self.area(run, "Tolvo Search").x, self.area(run, "Tolvo Search").y))
        self.assertIn((before.x, before.y), places)  # as long as no hit lies beneath it
        self.assertGreater(len(places), 1)
        keys("Escape")
        run.main_is_active()

    def test_the_list_leads_into_the_text(self):
        run = self.start(LINES)
        self.look_for(run, "word2[0-9]")
        keys("alt+a")
        run.active("10 results found for")
        for _ in range(10):
            keys("Down")
        wait_for(lambda: "«word29»" in run.picture(), "the last hit")
        wait_for(lambda: self.selection_is_free(run, "10 results"), "a free view on the last hit")
        keys("ctrl+c")
        clipboard_becomes("\n".join(f"Line {i + 1}: line {i} of the text, word{i}" for i in range(20, 30)))
        keys("Return")
        run.active("Tolvo 1")
        wait_for(lambda: run.focused() == "Text", "the focus in the text")

    def test_matches_are_copied_by_keys(self):
        run = self.start("a=1, b=2")
        self.look_for(run, "(\\w)=(\\d)")
        keys("alt+y", "alt+r")
        type_text("$2 $1")
        keys("Return")
        run.status_becomes("2 matches copied")
        clipboard_becomes("1 a\n2 b")
        keys("alt+g", "alt+y")
        run.status_becomes("2 matches in place of the text")
        run.text_becomes("1 a\n2 b")
        keys("Escape")
        run.main_is_active()
        keys("ctrl+z")
        run.text_becomes("a=1, b=2")

    def test_a_powerbutton_copies_matches(self):
        run = self.start("a=1, b=2")
        keys("ctrl+shift+1")
        run.active("Edit PowerButton 1")
        run.click("Clean & Replace", times=2)
        run.click("Copy matches...")
        run.click("Custom settings:")
        run.click("Settings...")
        run.active("Tolvo Search")
        run.page("Wildcard Search")
        keys("alt+e", "ctrl+a")
        type_text("!=%")
        keys("alt+r")
        type_text("$2")
        run.click("Replacing the text")
        keys("Return")
        run.active("Edit PowerButton 1")
        run.click("Enter a name for your PowerButton:", role=FIELD)
        type_text("Pick")
        run.click("OK")
        run.main_is_active()
        self.assertTrue(self.settings.read("Tolvo", "PowerButtons\\Button 1\\1", "Details").endswith(
            ", Form=$2, InPlace=1"))
        run.click("PowerButton 1: Pick")
        run.text_becomes("1\n2")


if __name__ == "__main__":
    unittest.main()
