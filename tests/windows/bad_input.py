#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tolvo-pipe under Wine where something is not as it should be: bad_input.py BUILD."""
import concurrent.futures
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
BIN = pathlib.Path(sys.argv.pop(1)).resolve() / "bin"
PROGRAM_FILES = ("*.exe", "*.txt", "*.dat", "Dictionaries/*")
TEXT = "the lord of teh rings\n"
SHELL_FOLDERS = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders"


def wine(*command, text="", **environment):
    return subprocess.run([HERE / "wine.sh", *command], input=text, capture_output=True, encoding="utf-8", timeout=120,
                          env=dict(os.environ, **environment), check=False)


def setUpModule():
    # What Wine starts once and keeps running would keep the streams of the first program open.
    subprocess.run([HERE / "wine.sh", "wineboot"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=300, check=True)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


class BadInput(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tolvo ")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.settings = self.folder / "settings.sqlite"

    def install(self):
        """The program in a folder with blanks and letters outside of any one code page."""
        place = self.folder / "Prógram 日本 żółć"
        for pattern in PROGRAM_FILES:
            for file in BIN.glob(pattern):
                target = place / file.relative_to(BIN)
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(file, target)
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
    unittest.main(verbosity=2)
