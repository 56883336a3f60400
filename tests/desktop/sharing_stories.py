# SPDX-License-Identifier: MIT
"""PowerButtons pass from one user to another, a whole run of one is taken back, and what was done becomes one; with the mouse,
and with keys alone."""

import os
import shutil
import unittest

from desk import PROGRAMS, Settings, Story, Tolvo, clipboard_becomes, get_clipboard, keys, set_clipboard, type_text, wait_for

TITLE = "Ten Résumé Tips"
ADDRESS = "ten-resume-tips"
MORE = "More for PowerButtons"


class SharingStories(Story):
    def more(self, run, *strokes):
        """An entry of the menu beside the row, by its letters: the bus doesn't show menus of their own."""
        run.click(MORE)
        keys(*strokes)

    def other_user(self, clipboard):
        settings = Settings()
        self.addCleanup(settings.close)
        settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        for hint in "Troubles", "PowerButtons":
            settings.write("Tolvo", "Hints", hint, "0")
        set_clipboard(clipboard)
        self.runs.append(Tolvo(settings))
        return self.runs[-1]

    def test_a_file_goes_to_another_user(self):
        run = self.start(TITLE)
        self.more(run, "r", "Up", "Return")
        run.active("Load a PowerButton")
        run.find("Title for the web")
        run.click("Load")
        run.main_is_active()
        run.click("PowerButton 1: Title for the web")
        run.text_becomes(ADDRESS)

        path = os.path.join(self.settings.folder, "mine.tolvobutton")
        self.more(run, "s")
        run.active("Share a PowerButton")
        run.click("Save to File...")
        run.active("Save PowerButton")
        keys("ctrl+a")
        type_text(path)
        keys("Return")
        wait_for(lambda: os.path.exists(path), "the file")
        run.active("Share a PowerButton")
        run.click("Close")
        run.main_is_active()

        other = self.other_user(TITLE)
        self.more(other, "l")
        other.active("Open PowerButton")
        type_text(path)
        keys("Return")
        other.active("Load a PowerButton")
        other.click("Load")
        other.main_is_active()
        other.click("PowerButton 1: Title for the web")
        other.text_becomes(ADDRESS)

    def open_file(self, path):
        set_clipboard(TITLE)
        self.runs.append(Tolvo(self.settings, arguments=[path]))
        return self.runs[-1]

    def test_a_file_is_opened_from_outside(self):
        path = os.path.join(self.settings.folder, "über mail.tolvobutton")
        shutil.copy(os.path.join(PROGRAMS, "PowerButtons", "web-title.tolvobutton"), path)
        run = self.open_file(path)
        run.active("Load a PowerButton")
        run.find("Title for the web")
        run.click("Load")
        run.main_is_active()
        run.click("PowerButton 1: Title for the web")
        run.text_becomes(ADDRESS)
        run.kill()

        for number in range(1, 9):  # no place is empty
            self.settings.write("Tolvo", f"PowerButtons\\Button {number}", "Name", f"Mine {number}")
        run = self.open_file(path)
        run.active("Load a PowerButton")
        keys("Return")
        run.box_says("Replace PowerButton 1 'Mine 1' with 'Title for the web'?")
        keys("alt+n")
        run.main_is_active()
        run.find("PowerButton 1: Mine 1")
        run.kill()

        with open(path, "a", encoding="utf-8") as file:
            file.write("step: ccXXX\n")
        for wrong in path, os.path.join(self.settings.folder, "none"):
            run = self.open_file(wrong)
            run.box_says(f"{os.path.basename(wrong)} can't be taken as a PowerButton.")
            keys("Return")
            run.main_is_active()
            run.text_becomes(TITLE)
            run.kill()

    def more_by_keys(self, run, *strokes):
        """From the text to the menu with the Tab key alone."""
        keys("ctrl+Tab")

        def there():
            return run.focused() == MORE or keys("Tab")

        wait_for(there, lambda: f"the keys at {MORE!r}, they are at {run.focused()!r}")
        keys("Return", *strokes)

    def test_a_text_goes_to_another_user_with_keys_alone(self):
        self.settings.write("Tolvo", "PowerButtons\\Button 3", "Name", "Shout")
        self.settings.write("Tolvo", "PowerButtons\\Button 3\\1", "Token", "ccUPP")
        run = self.start("Some Text")
        self.more_by_keys(run, "s")
        run.active("Share a PowerButton")
        keys("alt+c", "Escape")
        run.main_is_active()
        wait_for(lambda: get_clipboard().startswith("Tolvo PowerButton 1\n"), "the PowerButton on the clipboard")
        shared = get_clipboard()

        other = self.other_user("Some Text")
        set_clipboard(shared)
        self.more_by_keys(other, "c")
        other.active("Load a PowerButton")
        other.find("Shout")
        keys("Return")
        other.main_is_active()
        keys("ctrl+1")
        other.text_becomes("SOME TEXT")

        set_clipboard(shared.replace("ccUPP", "ccXXX"))
        self.more_by_keys(other, "c")
        other.box_says("The clipboard can't be taken as a PowerButton.")
        keys("Return")
        other.main_is_active()

    def test_a_run_is_taken_back(self):
        for position, token in enumerate(["ccUPP", "foIND"], 1):
            self.settings.write("Tolvo", f"PowerButtons\\Button 1\\{position}", "Token", token)
        self.settings.write("Tolvo", "PowerButtons\\Button 1\\2", "Details", "Spaces=4, Text=> , RadioButton=2")
        self.settings.write("Tolvo", "PowerButtons\\Button 1\\2", "DlgOption", "1")
        self.settings.write("Tolvo", "PowerButtons\\Button 1", "Name", "Quote")
        run = self.start("one")
        keys("ctrl+1")
        run.text_becomes("> ONE")
        keys("ctrl+Home")
        type_text("x")
        run.text_becomes("x> ONE")
        keys("ctrl+alt+z")
        run.text_becomes("one")
        keys("ctrl+y")
        run.text_becomes("x> ONE")
        run.click("Choose how far to undo")
        keys("Down", "Down", "Down", "Return")  # past the whole run and the typing to "PowerButton 1: Quote"
        run.text_becomes("one")
        run.click("Redo", 3)
        keys("Down", "Return")
        run.text_becomes("> ONE")

    def test_what_was_done_becomes_a_powerbutton(self):
        run = self.start("the END")
        run.tool("Capitals", "rEVERSE cASE")
        run.text_becomes("THE end")
        keys("ctrl+a", "ctrl+c")
        clipboard_becomes("THE end")
        run.tool("Capitals", "Title Case")
        run.text_becomes("THE End")
        run.tool("Clean & Replace", "Curly quotes")  # changes nothing
        self.more(run, "m")
        run.active("Edit PowerButton 1")
        type_text("Titles")
        run.click("OK")
        run.main_is_active()
        set_clipboard("another title")
        keys("alt+f")
        run.text_becomes("another title")
        run.click("PowerButton 1: Titles")
        run.text_becomes("Another Title")
        self.assertEqual(self.settings.read("Tolvo", "PowerButtons\\Button 1\\1", "Token"), "ccTIT")
        self.assertEqual(self.settings.read("Tolvo", "PowerButtons\\Button 1\\2", "Token"), "")


if __name__ == "__main__":
    unittest.main()
