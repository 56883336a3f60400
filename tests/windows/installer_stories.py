#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The installer under Wine, silently: installer_stories.py SETUP."""
import os
import pathlib
import subprocess
import sys
import time
import unittest

HERE = pathlib.Path(__file__).resolve().parent
SETUP = pathlib.Path(sys.argv.pop(1)).resolve()
DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
ENTRY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tolvo"
PATIENCE = 20  # seconds


def wine(*command):
    return subprocess.run([HERE / "wine.sh", *command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, encoding="utf-8", errors="replace", timeout=120, check=False)


def becomes_true(condition):
    end = time.monotonic() + PATIENCE
    while not condition() and time.monotonic() < end:
        time.sleep(0.2)
    return condition()


def user_folder(name):
    """A folder as Wine's registry knows it."""
    key = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders"
    path = wine("reg", "query", key, "/v", name).stdout.split("REG_SZ")[-1].strip()
    return pathlib.Path(subprocess.run([HERE / "wine.sh", "winepath", "-u", path], capture_output=True, encoding="utf-8",
                                       timeout=60, check=True).stdout.strip())


class Installer(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        subprocess.run([HERE / "wine.sh", "wineboot"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=300, check=True)
        cls.programs = user_folder("Local AppData") / "Programs" / "Tolvo"
        cls.settings = user_folder("AppData") / "Tolvo"
        cls.menu = user_folder("Programs") / "Tolvo.lnk"
        cls.desktop = user_folder("Desktop") / "Tolvo.lnk"

    def install(self, *switches):
        self.assertEqual(wine(SETUP, "/S", *switches).returncode, 0)
        self.assertTrue((self.programs / "Tolvo.exe").is_file())

    def remove(self):
        wine(self.programs / "Uninstall.exe", "/S")
        self.assertTrue(becomes_true(lambda: not self.programs.exists()))

    def is_listed(self):
        return wine("reg", "query", ENTRY).returncode == 0

    def test_installs_for_one_user_and_removes_all_that_it_has_brought(self):
        self.install()
        self.assertTrue(self.menu.is_file())
        self.assertFalse(self.desktop.exists(), "only on request")
        self.assertTrue(self.is_listed())
        self.remove()
        self.assertFalse(self.menu.exists())
        self.assertFalse(self.is_listed())

    def test_an_upgrade_keeps_settings_choices_and_what_is_not_its_own(self):
        self.install("/DESKTOP")
        self.settings.mkdir(parents=True, exist_ok=True)
        kept = self.settings / "kept.txt"
        kept.write_text("mine", encoding="utf-8")
        (self.programs / "mine.txt").write_text("mine", encoding="utf-8")
        (self.programs / "Tools.dat").write_text("old", encoding="utf-8")
        self.install()
        self.assertNotEqual((self.programs / "Tools.dat").read_bytes(), b"old")
        self.assertTrue(self.desktop.is_file())
        wine(self.programs / "Uninstall.exe", "/S")
        self.assertTrue(becomes_true(lambda: not (self.programs / "Uninstall.exe").exists()))
        self.assertEqual([entry.name for entry in self.programs.iterdir()], ["mine.txt"])
        self.assertEqual(kept.read_text(encoding="utf-8"), "mine")
        self.assertFalse(self.desktop.exists())
        (self.programs / "mine.txt").unlink()
        self.programs.rmdir()


if __name__ == "__main__":
    unittest.main(verbosity=2)
