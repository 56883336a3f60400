# SPDX-License-Identifier: MIT
"""From the clipboard to the clipboard: what a user does with one run of the program."""

import unittest

from desk import Story, clipboard_becomes, get_clipboard, keys, set_clipboard, type_text


class SessionStories(Story):
    def test_text_goes_in_and_comes_out_after_the_end(self):
        run = self.start("good morning\nworld")
        run.text_becomes("good morning\nworld")
        self.assertEqual(run.window().get_role_name(), "frame")
        run.tool("Capitals", "UPPER CASE")
        run.text_becomes("GOOD MORNING\nWORLD")
        run.status_becomes("19 characters: upper case")
        run.click("Undo")
        run.text_becomes("good morning\nworld")
        run.click("Redo")
        run.click("Copy and Close")
        run.ends()
        clipboard_becomes("GOOD MORNING\nWORLD")

    def test_a_tool_works_on_the_selection_alone(self):
        run = self.start("one two")
        keys("ctrl+Home", "shift+Right", "shift+Right", "shift+Right", "ctrl+u", "alt+d")
        run.ends()
        clipboard_becomes("ONE two")

    def test_an_empty_clipboard_gives_an_empty_text(self):
        run = self.start("")
        run.text_becomes("")
        type_text("typed")
        run.text_becomes("typed")
        keys("alt+d")
        run.ends()
        clipboard_becomes("typed")

    def test_cancel_without_changes_asks_nothing(self):
        run = self.start("untouched")
        keys("alt+q")
        run.ends()
        self.assertEqual(get_clipboard(), "untouched")

    def test_cancel_with_changes_asks(self):
        run = self.start("old")
        keys("ctrl+End")
        type_text(" new")
        run.text_becomes("old new")
        run.click("Cancel")
        run.box_says("Changes have been made to the text")
        keys("Escape")
        run.text_becomes("old new")
        keys("alt+q")
        run.click("Discard changes")
        run.ends()
        self.assertEqual(get_clipboard(), "old")

    def test_the_close_box_can_still_copy(self):
        run = self.start("old")
        keys("ctrl+End")
        type_text("er")
        run.text_becomes("older")
        run.close_box()
        run.click("Copy & Close")
        run.ends()
        clipboard_becomes("older")

    def test_refresh_takes_what_is_on_the_clipboard_now(self):
        run = self.start("first")
        set_clipboard("second")
        run.click("Refresh with current Clipboard")
        run.text_becomes("second")
        run.status_becomes("Text retrieved from clipboard")
        run.click("Undo")
        run.text_becomes("first")

    def test_two_runs_keep_their_texts_apart_and_share_the_store(self):
        first = self.start("first text")
        second = self.start("second text")
        first.text_becomes("first text")
        second.text_becomes("second text")
        keys("ctrl+a", "ctrl+u", "alt+d")
        second.ends()
        clipboard_becomes("SECOND TEXT")
        first.click("Copy and Close")
        first.ends()
        clipboard_becomes("first text")
        self.assertEqual(self.settings.read("Tolvo-Stats", "Usage", "Count"), "2")
        self.assertTrue(self.settings.is_sound())

    def test_too_long_a_text_is_cut_with_a_word(self):
        run = self.start("x" * 65536, wait=False)
        run.box_says("The text on the Clipboard exceeds the number of characters that Tolvo")
        keys("Return")
        run.window()
        keys("alt+d")
        run.ends()
        clipboard_becomes("x" * 65535)

    def test_word_wrap_moves_the_text_and_changes_nothing(self):
        run = self.start("some words to wrap")
        keys("alt+w")
        run.status_becomes("Word wrap now ON")
        run.text_becomes("some words to wrap")
        keys("alt+q")
        run.ends()


if __name__ == "__main__":
    unittest.main()
