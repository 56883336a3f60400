#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What a user of Windows does with one run of the installed program, by keys: from the clipboard, to which an X program or
another Windows program has copied, to what another Windows program pastes after the end."""
import re
import subprocess

from wine_desk import (CLIPBOARD_TOOL, HERE, MAIN, Run, Story, click_first_icon, copy, environment, keys, main, paste,
                       window_becomes_active, wine)
from hands import get_clipboard, type_text, wait_for

# Tab of the search window (how often Ctrl-PageDown), what is looked for: all three find the words of three letters.
SEARCHES = [("Simple Search", 0, "cat"), ("Wildcard Search", 1, "c?t"), ("Regular Expression", 2, "c[aou]t")]


class SessionStories(Story):
    def tool(self, name):
        """From the text to a tool by its name."""
        keys("ctrl+p")
        type_text(name)
        keys("Return")

    def test_a_text_of_an_x_program_comes_out_after_the_end(self):
        run = self.start("good morning\nŁódź 日本 \U0001F600")
        keys("ctrl+a", "ctrl+u")
        self.leaves(run, "GOOD MORNING\nŁÓDŹ 日本 \U0001F600")
        self.assertEqual(get_clipboard(), "GOOD MORNING\nŁÓDŹ 日本 \U0001F600")

    def test_a_text_of_a_windows_program_and_a_tool(self):
        copy("one\r\ntwo\r\nthree")
        run = self.start(None)
        self.tool("join paragraphs")
        keys("alt+d")
        run.ends()
        self.assertEqual(paste(), "one two three")

    def test_an_empty_clipboard_and_a_typed_text(self):
        copy("")
        run = self.start(None)
        type_text("typed")
        self.leaves(run, "typed")

    def test_cancel_without_changes_asks_nothing(self):
        run = self.start("untouched")
        keys("alt+q")
        run.ends()
        self.assertEqual(paste(), "untouched")

    def test_cancel_with_changes_asks(self):
        run = self.start("old")
        keys("ctrl+End")
        type_text(" new")
        keys("alt+q")
        window_becomes_active("Confirm close")
        keys("Escape")
        window_becomes_active(MAIN)
        keys("alt+q")
        window_becomes_active("Confirm close")
        keys("shift+Tab", "space")  # from "Copy & Close" to "Discard changes"
        run.ends()
        self.assertEqual(paste(), "old")

    def test_a_dialog_by_keys(self):
        run = self.start("a\nb")
        self.tool("indent")
        window_becomes_active("Indent")
        keys("alt+x", "Tab", "greater", "space", "Return")
        window_becomes_active(MAIN)
        self.leaves(run, "> a\n> b")

    def test_a_powerbutton_is_defined_and_kept(self):
        run = self.start("one")
        keys("ctrl+shift+2")
        window_becomes_active("Edit PowerButton 2")
        type_text("Loud")
        keys("shift+Tab")
        type_text("UPPER")
        keys("Return", "Tab", "Return")
        window_becomes_active(MAIN)
        keys("ctrl+2")
        self.leaves(run, "ONE")
        run = self.start("two")
        keys("ctrl+2")
        keys("ctrl+alt+z", "ctrl+2")  # taken back as a whole, and run again
        self.leaves(run, "TWO")
        copy("three")
        done = wine(self.program, "--button", "loud", **self.settings.environment())
        self.assertEqual((done.returncode, paste()), (0, "THREE"), done.stderr)

    def test_search_and_replace_in_each_mode(self):
        self.settings.write("Tolvo", "Search", "Direction", "Start")
        self.settings.write("Tolvo", "Search", "SmartReplace", "0")
        for name, tab, find in SEARCHES:
            with self.subTest(name):
                self.settings.write("Tolvo", "Search", "Tab", "1")
                run = self.start("cat one, cat two\ncat three")
                keys("ctrl+h")
                window_becomes_active("Tolvo Search & Replace")
                keys(*["ctrl+Next"] * tab, "alt+e", "ctrl+a")
                type_text(find)
                keys("alt+i", "ctrl+a")
                type_text("dog")
                keys("alt+f", "alt+n", "alt+r")
                keys("alt+a")
                window_becomes_active("Tolvo")
                keys("Return")
                window_becomes_active("Tolvo Search & Replace")
                keys("Escape")
                window_becomes_active(MAIN)
                self.leaves(run, "dog one, dog two\ndog three")

    def test_a_spelling_walk(self):
        run = self.start("The zqxvv house.\nI recieve it.\nThe zqxvv zqxvv walks.")
        keys("shift+F7")
        window_becomes_active(re.compile("Spelling and Grammar"))
        # Without suggestions: passed over; changed; passed over; repeated: deleted.
        for _ in range(4):
            keys("Return")
        window_becomes_active(MAIN)
        self.leaves(run, "The zqxvv house.\nI receive it.\nThe zqxvv walks.")

    def test_options_are_kept(self):
        run = self.start("text")
        keys("ctrl+o")
        window_becomes_active("Options")
        keys("alt+f", "Return")  # the fixed font, OK
        window_becomes_active(MAIN)
        keys("alt+w", "alt+q")
        run.ends()
        self.assertEqual([self.settings.read("Tolvo", "Preferences", key) for key in ("FontUseProp", "Wordwrap")], ["0", "1"])

    def test_two_runs_keep_their_texts_apart_and_share_the_store(self):
        first = self.start("first text")
        second = self.start("second text")
        keys("ctrl+a", "ctrl+u")
        self.leaves(second, "SECOND TEXT")
        window_becomes_active(MAIN)
        keys("ctrl+a", "ctrl+u")
        self.leaves(first, "FIRST TEXT")
        self.assertEqual(self.settings.read("Tolvo-Stats", "Usage", "Count"), "2")
        self.assertTrue(self.settings.is_sound())

    def test_another_program_holds_the_clipboard_open(self):
        run = self.start("text")
        keys("ctrl+End")
        type_text("s")
        holder = subprocess.Popen([HERE / "wine.sh", CLIPBOARD_TOOL, "hold", "6"], stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL, env=environment())
        self.assertEqual(holder.stdout.readline().strip(), b"held")
        keys("alt+d")
        window_becomes_active(re.compile("Error from Tolvo"))
        keys("Return")
        window_becomes_active(MAIN)
        holder.communicate(timeout=30)
        self.assertEqual(paste(), "text")
        self.leaves(run, "texts")

    def test_a_command_without_a_window(self):
        copy("some  text ")
        done = wine(self.program, "--tool", "ccUPP", **self.settings.environment())
        self.assertEqual((done.returncode, paste()), (0, "SOME  TEXT "), done.stderr)

    def test_a_click_on_the_icon_takes_a_command_back(self):
        copy("some  text ")
        run = Run(self.program, self.settings, "--tool", "ccUPP")
        self.addCleanup(run.kill)
        wait_for(lambda: paste() == "SOME  TEXT ", "the result")
        wait_for(lambda: click_first_icon("Wine System Tray") or paste() == "some  text ", "a click that undoes")
        run.ends()


if __name__ == "__main__":
    main()
