#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The installer under Wine, silently, and the entry that it makes in the start menu."""
import os
import unittest

from wine_desk import MAIN, Installation, keep_wine_running, keys, main, wait_for, window_becomes_active, windows_path, wine
from hands import Settings, file_of

OPEN = r"HKCU\Software\Classes\Tolvo.PowerButton\shell\open\command"


class InstallerStories(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.here = Installation()
        cls.here.settings.mkdir(parents=True, exist_ok=True)
        user = Settings()
        cls.addClassCleanup(user.close)
        user.file = str(cls.here.settings / "settings.sqlite")
        user.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        cls.addClassCleanup(keep_wine_running().communicate)

    @staticmethod
    def is_running():
        return any("Tolvo.exe" in file_of(process, "cmdline") for process in filter(str.isdigit, os.listdir("/proc")))

    def start_from_menu(self):
        wine("start", "/unix", self.here.menu)
        window_becomes_active(MAIN)

    def test_installs_for_one_user_starts_from_the_menu_and_removes_all_that_it_has_brought(self):
        self.here.install()
        self.assertFalse(self.here.desktop.exists(), "only on request")
        self.assertTrue(self.here.is_listed())
        self.start_from_menu()
        # While it runs it is neither removed nor replaced.
        wine(self.here.programs / "Uninstall.exe", "/S")
        self.assertNotEqual(wine(self.here.setup, "/S").returncode, 0)
        self.assertTrue(self.here.is_there())
        window_becomes_active(MAIN)
        keys("alt+q")
        wait_for(lambda: not self.is_running(), "the run to end")
        # Wine looks for types of files in the machine's part of the registry alone: the command, without its opening.
        self.assertIn(r'\Tolvo.exe" "%1"', wine("reg", "query", OPEN, "/ve").stdout)
        wine("start", "/unix", self.here.programs / "Tolvo.exe",
             windows_path(self.here.programs / "PowerButtons" / "mail.tolvobutton"))
        window_becomes_active("Load a PowerButton")
        keys("Escape")
        window_becomes_active(MAIN)
        keys("alt+q")
        wait_for(lambda: not self.is_running(), "the run to end")
        self.here.remove()
        wait_for(lambda: not self.here.programs.exists(), "the folder to go")
        self.assertFalse(self.here.menu.exists())
        self.assertFalse(self.here.is_listed())
        self.assertNotEqual(wine("reg", "query", OPEN).returncode, 0)

    def test_an_upgrade_keeps_settings_choices_and_what_is_not_its_own(self):
        self.here.install("/DESKTOP")
        kept = self.here.settings / "kept.txt"
        kept.write_text("mine", encoding="utf-8")
        (self.here.programs / "mine.txt").write_text("mine", encoding="utf-8")
        (self.here.programs / "Tools.dat").write_text("old", encoding="utf-8")
        self.here.install()
        self.assertNotEqual((self.here.programs / "Tools.dat").read_bytes(), b"old")
        self.assertTrue(self.here.desktop.is_file())
        self.here.remove()
        self.assertEqual([entry.name for entry in self.here.programs.iterdir()], ["mine.txt"])
        self.assertEqual(kept.read_text(encoding="utf-8"), "mine")
        self.assertFalse(self.here.desktop.exists())
        (self.here.programs / "mine.txt").unlink()
        self.here.programs.rmdir()


if __name__ == "__main__":
    main()
