# SPDX-License-Identifier: MIT
"""Tool dialogs, spelling with the British dictionary, Options, export and import, companions: each used once for real."""

import os
import signal
import time
import unittest

from desk import Settings, Story, keys, type_text, wait_for

# Group, tool, title of its dialog, text before and after OK with the settings of a first run.
TOOLS = [("Spaces & Layout", "Indent...", "Indent", "a\nb", "\ta\n\tb"),
         ("Spaces & Layout", "Remove blank lines...", "Remove Lines", "a\n\n\n\nb", "a\n\nb"),
         ("Lists & Numbers", "Bullet list...", "Bullet List Style", "a", "•\ta"),
         ("Lists & Numbers", "Numbered list...", "Number List Style", "a\nb", "1\ta\n2\tb"),
         ("Lists & Numbers", "Line numbers...", "Line Numbering", "a", "1 a")]


class DialogStories(Story):
    def test_tool_dialogs_by_mouse_by_keys_and_by_right_click(self):
        for group, tool, title, before, after in TOOLS:
            with self.subTest(tool):
                run = self.start(before)
                run.tool(group, tool)
                run.active(title)
                run.click("OK")
                run.main_is_active()
                run.text_becomes(after)
                run.click("Undo")
                run.tool(group, tool, 3)  # at once, with the same settings
                run.text_becomes(after)
                keys("ctrl+z")
                run.text_becomes(before)
                keys("ctrl+r")
                run.text_becomes(after)
                keys("alt+d")
                run.ends()

    def test_word_wrap_by_keys(self):
        run = self.start("some words that are wrapped")
        run.tool("Spaces & Layout", "Word wrap...")
        run.active("Word Wrap")
        keys("ctrl+a")
        type_text("11")
        keys("Return")
        run.box_says("Page width must lie between 12 and 255 inclusive")
        keys("Return")
        run.active("Word Wrap")
        keys("ctrl+a")
        type_text("12")
        keys("Return")
        run.main_is_active()
        run.text_becomes("some words\nthat are\nwrapped")

    def test_spelling(self):
        text = "Thiss colour is wron, and thiss is right.\nIt was wron."
        run = self.start(text)
        run.tool("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Return")
        run.active("Spelling and Grammar")
        for key in ("alt+c", "alt+u", "alt+i", "alt+c"):  # changed, taken back, left as it is; the next word changed
            keys(key)
            time.sleep(0.5)
        run.click("Stop")
        run.main_is_active()
        self.assertRegex(run.text(), "^Thiss colour is (?!wron,)")

    def test_cancelled_spelling_leaves_the_text(self):
        run = self.start("Thiss is wron.")
        run.tool("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Return")
        run.active("Spelling and Grammar")
        keys("alt+c", "Escape")
        run.box_says("Spelling check complete")
        keys("Return")
        run.text_becomes("Thiss is wron.")

    def test_options_and_their_export(self):
        run = self.start("text")
        keys("ctrl+o")
        run.active("Options")
        run.click("Word wrap (display only)")
        run.click("Use Fixed font")
        run.click("OK")
        run.main_is_active()
        run.status_becomes("Word wrap now ON")
        self.assertEqual(self.settings.read("Tolvo", "Preferences", "FontUseProp"), "0")
        keys("ctrl+o")
        run.active("Options")
        run.click("General")
        run.click("Export Preferences and PowerButtons...")
        run.active("Export")
        file = os.path.join(self.settings.folder, "mine.reg")
        type_text(file)
        keys("Return")
        wait_for(lambda: os.path.exists(file) and os.path.getsize(file) > 100, "the exported file")
        keys("Escape")
        run.main_is_active()
        keys("alt+q")
        run.ends()

        other = Settings()
        try:
            self.settings, first = other, self.settings
            run = self.start("text")
            keys("ctrl+o")
            run.active("Options")
            run.click("General")
            run.click("Import Preferences...")
            run.active("Import")
            type_text(file)
            keys("Return")
            wait_for(lambda: other.read("Tolvo", "Preferences", "FontUseProp") == "0", "the imported settings")
            self.assertEqual(other.read("Tolvo", "Preferences", "Wordwrap"), "1")
        finally:
            self.settings = first
            for started in self.runs:
                started.kill()
            other.close()

    def test_companions_start(self):
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "1")
        run = self.start("text")
        tips = wait_for(lambda: self.settings.programs("Advisor.exe"), "the tips")
        run.click("Cancel")
        run.ends()
        for program in tips:
            os.kill(program, signal.SIGTERM)


if __name__ == "__main__":
    unittest.main()
