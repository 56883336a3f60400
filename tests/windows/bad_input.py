#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tolvo-pipe under Wine where something is not as it should be."""
import concurrent.futures
import pathlib
import shutil
import tempfile
import unittest

from wine_desk import BUILD, EXPLORER, main, wine, windows_path

BIN = BUILD / "package" / "Tolvo"  # what installer and zip hold
TEXT = "the lord of teh rings\n"
SHELL_FOLDERS = EXPLORER + r"\User Shell Folders"


class BadInput(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tolvo ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.settings = self.folder / "settings.sqlite"

    def install(self):
        """The program in a folder with blanks and letters outside of any one code page."""
        place = self.folder / "Prógram 日本 żółć"
        shutil.copytree(BIN, place)
        return place

    def pipe(self, place, *arguments, **environment):
        environment.setdefault("TOLVO_SETTINGS", windows_path(self.settings))
        return wine(place / "tolvo-pipe.exe", *arguments, text=TEXT, **environment)

    def test_the_program_lies_under_letters_outside_the_code_page(self):
        done = self.pipe(self.install(), "--spell=en_GB")
        self.assertEqual((done.returncode, done.stdout.split(",")[0]), (1, "1:13: teh: the"), done.stderr)

    def test_the_profile_lies_under_letters_outside_the_code_page(self):
        profile = self.folder / "Łukasz 山田 Roaming"
        profile.mkdir()
        before = wine("reg", "query", SHELL_FOLDERS, "/v", "AppData").stdout.split("REG_EXPAND_SZ")[-1].strip()
        wine("reg", "add", SHELL_FOLDERS, "/v", "AppData", "/t", "REG_EXPAND_SZ", "/d", windows_path(profile), "/f")
        self.addCleanup(wine, "reg", "add", SHELL_FOLDERS, "/v", "AppData", "/t", "REG_EXPAND_SZ", "/d", before, "/f")
        done = self.pipe(BIN, "ccUPP", TOLVO_SETTINGS="")
        self.assertEqual((done.returncode, done.stdout), (0, TEXT.upper()), done.stderr)
        self.assertTrue((profile / "Tolvo" / "settings.sqlite").is_file())

    def test_the_settings_lie_under_a_path_of_300_characters(self):
        self.settings = self.folder.joinpath("Żółć 日本", *["a name of some length"] * 12, "settings.sqlite")
        self.assertGreater(len(windows_path(self.settings)), 300)
        done = self.pipe(BIN, "ccUPP")
        self.assertEqual((done.returncode, done.stdout), (0, TEXT.upper()), done.stderr)
        self.assertTrue(self.settings.is_file())

    def test_the_folder_of_the_program_is_read_only(self):
        place = self.install()
        entries = (place, *place.rglob("*"))
        for entry in entries:
            entry.chmod(0o555)
        before = {entry: entry.stat().st_mtime_ns for entry in entries}
        try:
            done = self.pipe(place, "ccTIT")
            after = {entry: entry.stat().st_mtime_ns for entry in (place, *place.rglob("*"))}
        finally:
            for entry in entries:
                entry.chmod(0o755)
        self.assertEqual((done.returncode, done.stdout), (0, "The Lord of Teh Rings\n"), done.stderr)
        self.assertEqual(after, before, "a superuser could have written")

    def test_the_dictionary_is_missing(self):
        place = self.install()
        shutil.rmtree(place / "Dictionaries")
        done = self.pipe(place, "--spell=en_GB")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertIn('there is no dictionary "en_GB"', done.stderr)

    def test_the_catalogue_is_missing(self):
        place = self.install()
        (place / "Tools.dat").unlink()
        done = self.pipe(place, "ccTIT")
        self.assertEqual((done.returncode, done.stdout), (3, ""))
        self.assertIn(windows_path(place / "Tools.dat") + " is missing", done.stderr)

    def test_many_runs_at_once_count_in_one_file(self):
        with concurrent.futures.ThreadPoolExecutor() as pool:
            answers = list(pool.map(lambda _: self.pipe(BIN, "ccUPP"), range(4)))
        for done in answers:
            self.assertEqual((done.returncode, done.stdout), (0, TEXT.upper()), done.stderr)
            self.assertNotIn("settings", done.stderr)


if __name__ == "__main__":
    main()
