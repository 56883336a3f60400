# SPDX-License-Identifier: MIT
"""How the text is looked at: the status bar, the way to a line, hints, size and marks."""

import subprocess
import unittest

from desk import Atspi, Story, clipboard_becomes, get_clipboard, keys, set_clipboard, type_text, wait_for
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

    def test_size_and_marks_are_remembered_and_leave_the_text_alone(self):
        text = "some\u200b words\tand a tab\nnext"
        run = self.start(text)
        run.main_is_active()
        before = run.text()
        for stroke, size in ("ctrl+plus", "110 %"), ("ctrl+KP_Add", "125 %"), ("ctrl+equal", "150 %"), ("ctrl+minus", "125 %"):
            keys(stroke)
            wait_for(lambda: run.shows(size), size)
        keys("ctrl+b")
        wait_for(lambda: self.settings.read("Tolvo", "View", "Marks") == "1", "the marks in the store")
        self.assertEqual(run.text(), before)
        self.assertEqual(self.settings.read("Tolvo", "Preferences", "Prop_FontSize"), "")
        keys("alt+d")
        run.ends()
        clipboard_becomes(text)
        run = self.start(None)
        wait_for(lambda: run.shows("125 %"), "the size of the run before")
        run.click_on(run.text_node(), 3)
        keys("s")  # the letter of its entry in the menu
        wait_for(lambda: self.settings.read("Tolvo", "View", "Marks") == "0", "no marks in the store")
        run.click("125 %")
        wait_for(lambda: self.settings.read("Tolvo", "View", "Zoom") == "100", "the text's own size in the store")
        self.assertFalse(run.shows("125 %"))

    def test_a_power_button_has_its_key_where_the_minus_lies_on_it(self):
        self.addCleanup(subprocess.run, ["setxkbmap", "us"], check=True)
        subprocess.run(["setxkbmap", "fr"], check=True)
        run = self.start("text")
        run.main_is_active()
        keys("37+15")  # Ctrl with the key of - and 6
        run.box_says("There are no actions defined for this PowerButton")

    def test_every_line_has_its_place_on_the_screen(self):
        run = self.start("first\nsecond line\nthird")
        run.main_is_active()
        run.text_becomes("first\nsecond line\nthird")
        text = run.text_node().get_text_iface()

        def place(offset):
            return Atspi.Text.get_character_extents(text, offset, Atspi.CoordType.SCREEN)

        first, second, third = place(0), place(6), place(18)
        self.assertEqual([second.x, third.x], [first.x, first.x])
        self.assertGreater(first.height, 5)
        self.assertAlmostEqual(second.y - first.y, third.y - second.y, delta=1)
        self.assertGreaterEqual(second.y, first.y + first.height - 1)
        self.assertGreater(place(7).x, second.x)
        for offset in 0, 9, 19:
            there = place(offset)
            at = Atspi.Text.get_offset_at_point(text, there.x + 1, there.y + there.height // 2, Atspi.CoordType.SCREEN)
            self.assertEqual(at, offset)
        self.assertEqual(Atspi.Text.get_text_at_offset(text, 8, Atspi.TextBoundaryType.LINE_START).content, "second line\n")
        Atspi.Text.set_caret_offset(text, 12)
        run.picture_becomes("first\nsecond¦ line\nthird")

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
