# SPDX-License-Identifier: MIT
"""Tool dialogs, spelling with the British dictionary, Options, export and import, companions: each used once for real."""

import os
import signal
import socket
import unittest

from desk import FIELD, Settings, Story, keys, type_text, wait_for

# Group, tool, title of its dialog, text before and after OK with the settings of a first run.
TOOLS = [("Spaces & Layout", "Indent...", "Indent", "a\nb", "\ta\n\tb"),
         ("Spaces & Layout", "Remove blank lines...", "Remove Lines", "a\n\n\n\nb", "a\n\nb"),
         ("Lists & Numbers", "Bullet list...", "Bullet List Style", "a", "•\ta"),
         ("Lists & Numbers", "Numbered list...", "Number List Style", "a\nb", "1\ta\n2\tb"),
         ("Lists & Numbers", "Line numbers...", "Line Numbering", "a", "1 a")]

# Group, tool, title of its dialog, keys pressed in it before Enter, text before and after.
BY_KEYS = [("Spaces & Layout", "Indent...", "Indent", "alt+x Tab greater space", "a\nb", "> a\n> b"),
           ("Spaces & Layout", "Remove blank lines...", "Remove Lines", "space", "a\n\nb\n\n\nc", "a\nb\nc"),
           ("Lists & Numbers", "Bullet list...", "Bullet List Style", "minus alt+s", "a\nb", "-  a\n-  b"),
           ("Lists & Numbers", "Numbered list...", "Number List Style", "Down Tab 3 alt+p", "a\nb", "c   a\nd   b"),
           ("Lists & Numbers", "Line numbers...", "Line Numbering", "9 Tab 2", "a\nb", "9  a\n11 b")]

# What the user sees as long as the options are those of a first run, and when all of them are changed.
SPACED = "see notes.qqq now. see sun.it here"
FIRST = ("Arial", False, "see notes. qqq now. see sun. it here", "Provider: Hunspell")
CHANGED = ("Courier New", True, SPACED, "Provider: After the Deadline")
PREFERENCES = {"FontUseProp": "0", "Wordwrap": "1", "TLD_Full": "True", "Sounds": "0", "CheckUpdates": "0",
               "AllowStats": "0", "Show Tips at Startup": "1"}


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

    def test_tool_dialogs_by_keys_alone(self):
        run = self.start("")
        for group, tool, title, strokes, before, after in BY_KEYS:
            with self.subTest(tool):
                run.place(before + "¦")
                run.tool_by_keys(group, tool)
                run.active(title)
                keys(*strokes.split(), "Return")
                run.main_is_active()
                run.text_becomes(after)

    def test_word_wrap_by_keys(self):
        run = self.start("some words that are wrapped")
        run.tool_by_keys("Spaces & Layout", "Word wrap...")
        run.active("Word Wrap")
        type_text("11")
        keys("Return")
        run.box_says("Page width must lie between 12 and 255 inclusive")
        keys("Return")
        run.active("Word Wrap")
        type_text("12")
        keys("Return")
        run.main_is_active()
        run.text_becomes("some words\nthat are\nwrapped")

    def check(self, run, *steps):
        """Opens the walk and answers each wrong word by a key; then the word after the last answer shows."""
        run.tool("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Return")
        run.active("Spelling and Grammar")
        for word, key in zip(steps[::2], steps[1::2]):
            run.find(word)
            keys(key)
        run.find(steps[-1])

    def test_spelling(self):
        run = self.start("Thiss colour is wron, and thiss is right.\nIt was wron.")
        # Changed, taken back, left as it is; the next word changed.
        self.check(run, "Thiss", "alt+c", "wron", "alt+u", "Thiss", "alt+i", "wron", "alt+c", "thiss")
        run.click("Stop")
        run.main_is_active()
        self.assertRegex(run.text(), "^Thiss colour is (?!wron,)")

    def test_the_provider_is_changed_on_the_way(self):
        run = self.start("teh text")
        run.tool("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Tab", "Return")  # "Change"
        run.active("Options")
        keys("Down", "Return")  # from Hunspell on the page "Spelling" to the next provider, OK
        run.active("Select dictionary")
        run.find("Provider: After the Deadline")
        keys("Escape")
        run.main_is_active()

    def test_escape_ends_a_request(self):
        self.settings.write("Tolvo", "Spelling", "Provider", "2")
        with socket.create_server(("127.0.0.1", 0)) as silent:
            run = self.start("teh text", TOLVO_ATD_URL=f"http://127.0.0.1:{silent.getsockname()[1]}")
            run.tool("Check", "Spelling...")
            run.active("Select dictionary")
            keys("Return")
            run.status_becomes("Checking. Please wait...")
            with silent.accept()[0]:
                keys("Escape")
                run.status_becomes("Status")  # its name while it is empty
                self.assertEqual(len(run.windows()), 1)  # and no box
                run.text_becomes("teh text")

    def test_cancelled_spelling_leaves_the_text(self):
        run = self.start("Thiss is wron.")
        self.check(run, "Thiss", "alt+c", "wron")
        keys("Escape")
        run.box_says("Do you really want to throw away the change")
        keys("alt+y")
        run.box_says("Spelling check complete")
        keys("Return")
        run.text_becomes("Thiss is wron.")

    def test_a_long_text_is_walked_through(self):
        line = "The house stands by the river and the children walk to school. "
        text = line * 40 + "I beleive it. " + line * 40 + "We recieve a blargh. " + line * 60 + \
            "A blargh is wron. " + line * 60 + "They recieve it. " + line * 40 + "The sentense ends. " + line * 9
        run = self.start(text)
        # Change, Change All, Ignore All; two changes taken back, the first of them by the rule of Change All.
        self.check(run, "beleive", "alt+c", "recieve", "alt+l", "blargh", "alt+g", "wron", "alt+c", "sentense", "alt+u",
                   "recieve", "alt+u", "wron", "alt+i", "sentense")
        run.click("Stop")
        run.main_is_active()
        run.text_becomes(text.replace("beleive", "believe").replace("recieve", "receive"))

    def user_sees(self, run):
        keys("alt+f")
        run.text_becomes(SPACED)
        run.tool("Check", "Punctuation")
        run.click("Spelling...")
        run.active("Select dictionary")
        provider = run._named(lambda n: n.get_name().startswith("Provider: ")).get_name()
        keys("Escape")
        run.main_is_active()
        return run.font(), run.is_checked("Toggle word wrap"), run.text(), provider

    def change_all_options(self, run):
        run.click("Options")
        run.active("Options")
        run.page("Display")
        run.click("Use Fixed font")
        run.click("Word wrap (display only)")
        run.page("Extensions")
        run.click("File extension", role=FIELD)
        type_text(".qqq")
        run.click("Add")
        run.click("Use full list of Internet Top Level Domains")
        run.page("General")
        for name in ("Show Tips at startup", "Enable sounds", "Check weekly for product updates", "Upload usage statistics"):
            run.click(name)
        run.page("Spelling")
        run.click("After the Deadline")

    def test_options_take_effect_when_applied_and_none_when_cancelled(self):
        def stored():
            return {key: self.settings.read("Tolvo", "Preferences", key) for key in PREFERENCES}

        run = self.start(SPACED)
        self.assertEqual(self.user_sees(run), FIRST)
        before = stored()
        self.change_all_options(run)
        run.click("Cancel")
        run.main_is_active()
        self.assertEqual(self.user_sees(run), FIRST)
        self.assertEqual(stored(), before)
        self.change_all_options(run)
        run.click("Apply")
        wait_for(lambda: run.font() == "Courier New", "the fixed font behind the dialog")
        keys("Escape")
        run.main_is_active()
        self.assertEqual(self.user_sees(run), CHANGED)
        self.assertEqual(stored(), PREFERENCES)
        run.click("Cancel")
        run.ends()

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
        run.page("General")
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
            run.page("General")
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
        wait_for(lambda: self.settings.programs("Advisor.exe"), "the tips")
        run.click("Cancel")
        run.ends()
        wait_for(lambda: not self.settings.programs("Advisor.exe"), "the tips to leave with the run")


if __name__ == "__main__":
    unittest.main()
