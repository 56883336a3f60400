# SPDX-License-Identifier: MIT
"""How the text is looked at: the status bar, the way to a line, hints, size and marks."""

import unittest

from desk import Atspi, Story, get_clipboard, keys, set_clipboard, type_text, wait_for
from gi.repository import GLib


class ViewStories(Story):
    def test_the_status_bar_follows_the_text(self):
        run = self.start("one\r\ntwo\r\nthree")
        wait_for(lambda: run.shows("CR LF"), "the line ends of the text")
        keys("ctrl+Home", "Right")
        for part in "Ln 1, Col 2", "15 / 65,535":
            self.assertTrue(wait_for(lambda: run.shows(part), part))
        keys("shift+Right", "shift+Right")
        wait_for(lambda: run.shows("2 selected"), "the length of the selection")
        keys("x")
        for part in "Ln 1, Col 3", "14 / 65,535":
            wait_for(lambda: run.shows(part), part)
        self.assertFalse(run.shows("2 selected"))
        set_clipboard("A\nB\nC")
        keys("alt+f")
        wait_for(lambda: run.shows("LF"), "the line ends of another text")
        run.tool("Capitals", "UPPER CASE")
        wait_for(lambda: run.shows("Nothing changed"), "a hint beside the status")
        run.status_becomes("7 characters: upper case")

    def test_an_empty_text_says_what_to_do(self):
        picture = b"\x89PNG\r\n\x1a\n"
        held = [("", "UTF8_STRING", "The clipboard was empty."), (picture, "image/png", "The clipboard held a picture."),
                (b"bits", "application/x-thing", "The clipboard held no text.")]
        for content, target, words in held:
            with self.subTest(words):
                set_clipboard(content, target)
                run = self.start(None)

                def hint():
                    return run.text_node().get_description()

                wait_for(lambda: hint().startswith(words) and "Tools on the left" in hint(), lambda: f"a hint, it is {hint()!r}")
                self.assertEqual(run.text(), "")
                type_text("x")
                run.text_becomes("x")
                wait_for(lambda: hint() == "", "the hint to go")
                keys("BackSpace", "alt+d")
                run.ends()
                self.assertFalse(get_clipboard())

    def test_going_to_a_line(self):
        run = self.start("one\ntwo\nthree")
        for line, where in ("2", "one\n¦two\nthree"), ("3", "one\ntwo\n¦three"):
            keys("ctrl+g")
            run.active("Go to line")
            keys(line, "Return")
            run.picture_becomes(where)
        run.click("Ln 3, Col 1")
        run.active("Go to line")
        keys("4", "Return")
        run.box_says("The text has 3 lines.")
        keys("1", "Return")
        run.picture_becomes("¦one\ntwo\nthree")
        run.main_is_active()
        keys("x")
        run.text_becomes("xone\ntwo\nthree")

    def test_screen_readers_hear_of_the_status(self):
        run = self.start("some words")
        heard = []
        listener = Atspi.EventListener.new(lambda event: heard.append(event.source.get_name()))
        listener.register("object:property-change:accessible-name")
        self.addCleanup(listener.deregister, "object:property-change:accessible-name")
        keys("alt+w")

        def told():
            GLib.MainContext.default().iteration(False)
            return "Word wrap now ON" in heard

        wait_for(told, lambda: f"the status, heard were {heard}")
        run.status_becomes("Word wrap now ON")


if __name__ == "__main__":
    unittest.main()
