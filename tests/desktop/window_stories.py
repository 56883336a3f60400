# SPDX-License-Identifier: MIT
"""The main window with keys alone, and its place from one run to the next."""

import os
import subprocess
import unittest

from desk import Story, Tolvo, clipboard_becomes, keys, type_text, wait_for


def place_of_active_window():
    """x, y, width and height inside the frame."""
    said = subprocess.run(["xdotool", "getactivewindow", "getwindowgeometry", "--shell"], capture_output=True, text=True,
                          check=True).stdout
    values = dict(line.split("=") for line in said.split())
    return [int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")]


class WindowStories(Story):
    def focus_becomes(self, run, name):
        wait_for(lambda: run.focused() == name, lambda: f"the focus at {name!r}, it is at {run.focused()!r}")

    def test_all_programs_belong_to_the_entry_in_the_menu(self):
        entry = os.path.join(os.path.dirname(__file__), "..", "..", "packaging", "tolvo.desktop")
        with open(entry, encoding="utf-8") as lines:
            name = next(line.strip().split("=")[1] for line in lines if line.startswith("StartupWMClass="))
        for program in "tolvo", "Advisor.exe", "Tally.exe":
            self.runs.append(Tolvo(self.settings, wait=False, program=program))
            wait_for(lambda: f" {program}.{name} " in subprocess.run(["wmctrl", "-lx"], capture_output=True, text=True).stdout,
                     f"a window of {program} with the class {name}")
            self.runs[-1].kill()

    def test_a_text_is_cleaned_with_keys_alone(self):
        run = self.start("one  \ntwo  ")
        run.main_is_active()
        keys("F6", "End")
        self.focus_becomes(run, "Trim trailing space and single space")
        keys("Return")
        run.text_becomes("one\ntwo")
        run.status_becomes("4 characters removed")
        keys("ctrl+z", "ctrl+y", "alt+Down")  # the focus stays with the button
        run.text_becomes("two\none")
        self.focus_becomes(run, "Trim trailing space and single space")
        keys("Left", "Escape")
        self.focus_becomes(run, "Text")
        for part in ("Bullet List", "Capitals", "Width of the tools, Left and Right move it", "PowerButton 1, not defined",
                     "Copy and Close"):
            keys("F6")
            self.focus_becomes(run, part)
        keys("shift+F6", "Right", "ctrl+u")
        self.focus_becomes(run, "PowerButton 2, not defined")
        keys("F6", "Return")
        run.ends()
        clipboard_becomes("two\nOne")

    def test_the_sheet_of_keys(self):
        run = self.start("text")
        run.main_is_active()
        keys("F6", "ctrl+question")
        run.active("Keyboard shortcuts")
        run.find("Search and replace")
        type_text("wrap")
        wait_for(lambda: run.shows("Word wrap on or off") and not run.shows("Search and replace"), "the filtered keys")
        keys("Escape")
        run.main_is_active()
        run.text_becomes("text")

    def test_the_window_comes_back_where_it_was(self):
        run = self.start("text")
        run.main_is_active()
        subprocess.run(["wmctrl", "-r", ":ACTIVE:", "-e", "0,150,90,870,600"], check=True)
        wait_for(lambda: place_of_active_window()[2:] == [870, 600], "the new size")
        place = place_of_active_window()
        keys("alt+q")
        run.ends()
        run = self.start("text")
        run.main_is_active()
        wait_for(lambda: place_of_active_window() == place, lambda: f"{place}, it is {place_of_active_window()}")


if __name__ == "__main__":
    unittest.main()
