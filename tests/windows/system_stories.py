#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The installed program and its user's system: Wine's registry editor, profiles and folders out of the ordinary."""
import pathlib
import re
import shutil
import tempfile

from wine_desk import (BUILD, EXPLORER, MAIN, Story, click_into, keys, lightness, main, wait_for, window_becomes_active,
                       windows_path, wine)
from hands import type_text

KEY = r"HKCU\Software\Tolvo Settings\Tolvo\Preferences"
SHELL_FOLDERS = EXPLORER + r"\User Shell Folders"
TEXT = "teh lord"


class SystemStories(Story):
    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory(prefix="tolvo ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def choose_file(self, steps, title, file):
        """From the text to a button on the third page of the options, so many steps after "Upload usage statistics"."""
        keys("ctrl+o")
        window_becomes_active("Options")
        keys("ctrl+Tab", "ctrl+Tab", "alt+u", *["Tab"] * steps, "space")
        window_becomes_active(title)
        type_text(windows_path(file))
        keys("Return")

    def test_the_registry_editor_reads_what_is_exported_and_writes_what_is_imported(self):
        self.settings.write("Tolvo", "Preferences", "FontUseProp", "0")
        self.addCleanup(wine, "reg", "delete", r"HKCU\Software\Tolvo Settings", "/f")
        exported = self.folder / "mine.reg"
        run = self.start(TEXT)
        self.choose_file(2, "Export Preferences and PowerButtons", exported)
        wait_for(lambda: exported.stat().st_size > 100, "the exported file")
        click_into("Options")
        keys("Escape")
        window_becomes_active(MAIN)
        keys("alt+q")
        run.ends()
        self.assertEqual(wine("regedit", "/S", windows_path(exported)).returncode, 0)
        self.assertIn("REG_SZ    0", wine("reg", "query", KEY, "/v", "FontUseProp").stdout)

        wine("reg", "add", KEY, "/v", "Wordwrap", "/t", "REG_SZ", "/d", "1", "/f")
        wine("reg", "add", KEY, "/v", "FontUseProp", "/t", "REG_SZ", "/d", "1", "/f")
        written = self.folder / "theirs.reg"
        wine("regedit", "/E", windows_path(written), r"HKEY_CURRENT_USER\Software\Tolvo Settings")
        self.assertTrue(written.is_file())
        run = self.start(TEXT)
        self.choose_file(4, "Import Preferences", written)
        wait_for(lambda: self.settings.read("Tolvo", "Preferences", "FontUseProp") == "1", "the imported settings")
        self.assertEqual(self.settings.read("Tolvo", "Preferences", "Wordwrap"), "1")

    def test_the_theme_of_the_system_is_followed(self):
        theme = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize"
        self.addCleanup(wine, "reg", "delete", theme, "/v", "AppsUseLightTheme", "/f")
        for light, least, most in (0, 0, 0.4), (1, 0.6, 1):
            wine("reg", "add", theme, "/v", "AppsUseLightTheme", "/t", "REG_DWORD", "/d", str(light), "/f")
            run = self.start(TEXT)
            wait_for(lambda: least <= lightness() <= most, lambda: f"a lightness of {least} to {most}, it is {lightness()}")
            keys("alt+q")
            run.ends()

    def upper_case(self, **more):
        run = self.start(TEXT, **more)
        keys("ctrl+a", "ctrl+u")
        self.leaves(run, TEXT.upper())

    def test_the_program_lies_under_letters_outside_the_code_page(self):
        place = self.folder / "Prógram 日本 żółć"
        shutil.copytree(BUILD / "package" / "Tolvo", place)
        self.program = place / "Tolvo.exe"
        self.upper_case()

    def test_the_profile_lies_under_letters_outside_the_code_page(self):
        profile = self.folder / "Łukasz 山田 Roaming"
        profile.mkdir()
        wine("reg", "add", SHELL_FOLDERS, "/v", "AppData", "/t", "REG_EXPAND_SZ", "/d", windows_path(profile), "/f")
        self.addCleanup(wine, "reg", "add", SHELL_FOLDERS, "/v", "AppData", "/t", "REG_EXPAND_SZ", "/d",
                        r"%USERPROFILE%\AppData\Roaming", "/f")
        (profile / "Tolvo").mkdir()
        shutil.copy(self.settings.file, profile / "Tolvo" / "settings.sqlite")
        before = (profile / "Tolvo" / "settings.sqlite").stat().st_mtime_ns
        self.upper_case(TOLVO_SETTINGS="")
        self.assertNotEqual((profile / "Tolvo" / "settings.sqlite").stat().st_mtime_ns, before)

    def test_the_settings_lie_under_a_path_of_300_characters(self):
        place = self.folder.joinpath("Żółć 日本", *["a name of some length"] * 12)
        place.mkdir(parents=True)
        shutil.copy(self.settings.file, place)
        file = place / "settings.sqlite"
        self.assertGreater(len(windows_path(file)), 300)
        before = file.stat().st_mtime_ns
        self.upper_case(TOLVO_SETTINGS=windows_path(file))
        self.assertNotEqual(file.stat().st_mtime_ns, before)

    def test_the_dictionaries_are_missing(self):
        place = self.folder / "Tolvo"
        shutil.copytree(BUILD / "package" / "Tolvo", place)
        shutil.rmtree(place / "Dictionaries")
        self.program = place / "Tolvo.exe"
        run = self.start(TEXT)
        keys("shift+F7")
        window_becomes_active(re.compile("Error from Tolvo"))
        keys("Return")
        window_becomes_active("Tolvo")  # the check is over
        keys("Return")
        window_becomes_active(MAIN)
        keys("alt+q")
        run.ends()


if __name__ == "__main__":
    main()
