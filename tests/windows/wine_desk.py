# SPDX-License-Identifier: MIT
"""A user of Windows, as far as Wine is one: the installer that a build has made, the program that it installs, and another
Windows program with its hands on the clipboard. The windows are those of the X server: their titles are the eyes, and
tests/desktop/hands.py has the hands.

$TOLVO_WINDOWS_BUILD names the build folder; $TOLVO_RESULTS a file that gets a line for each story: file, story, result."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "desktop"))
from hands import Settings, keys, set_clipboard, wait_for  # noqa: E402

BUILD = pathlib.Path(os.environ["TOLVO_WINDOWS_BUILD"]).resolve()
CLIPBOARD_TOOL = BUILD / "tests" / "clipboard_tool.exe"
MAIN = re.compile(r"Tolvo \d")
EXPLORER = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer"


def environment(**more):
    """What a program of the user sees: none of the folders that the libraries were built in."""
    return {**os.environ, "TOLVO_WINDOWS_PREFIX": "", **more}


def wine(*command, text="", **more):
    """Runs a Windows program to its end. What it says has the line ends that it has written. The streams are files: what
    Wine starts beside the program and keeps running would keep pipes open."""
    with tempfile.TemporaryFile() as given, tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as errors:
        given.write(text.encode())
        given.seek(0)
        done = subprocess.run([HERE / "wine.sh", *command], stdin=given, stdout=out, stderr=errors, timeout=120,
                              env=environment(**more), check=False)
        for stream in out, errors:
            stream.seek(0)
        done.stdout, done.stderr = out.read().decode(errors="replace"), errors.read().decode(errors="replace")
    return done


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def user_folder(name):
    """A folder of the user as Wine's registry knows it, for this system."""
    path = wine("reg", "query", EXPLORER + r"\Shell Folders", "/v", name).stdout.split("REG_SZ")[-1].strip()
    return pathlib.Path(wine("winepath", "-u", path).stdout.strip())


def paste():
    """What another Windows program pastes; None without a text."""
    done = wine(CLIPBOARD_TOOL, "read")
    return done.stdout if done.returncode == 0 else None


def copy(text):
    """Another Windows program copies a text."""
    if wine(CLIPBOARD_TOOL, "write", text=text).returncode:
        raise AssertionError("the clipboard took no text")


def keep_wine_running():
    """As long as somebody is logged on, Windows runs and keeps its clipboard; Wine goes with its last program."""
    return subprocess.Popen([HERE / "wine.sh", "cmd"], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, env=environment())


class Installation:
    """The program as the installer leaves it."""

    def __init__(self):
        self.setup = max(BUILD.glob("Tolvo-*-setup.exe"), key=os.path.getmtime)
        self.programs = user_folder("Local AppData") / "Programs" / "Tolvo"
        self.settings = user_folder("AppData") / "Tolvo"
        self.menu = user_folder("Programs") / "Tolvo.lnk"
        self.desktop = user_folder("Desktop") / "Tolvo.lnk"

    def install(self, *switches):
        done = wine(self.setup, "/S", *switches)
        assert done.returncode == 0 and self.is_there(), f"the installer ended with {done.returncode}"

    def remove(self):
        """Silently. The remover goes on in a process of its own."""
        wine(self.programs / "Uninstall.exe", "/S")
        wait_for(lambda: not self.is_listed(), "the program to be removed")

    def is_listed(self):
        """Whether it stands in the list of installed programs, from which the remover takes it at its end."""
        return wine("reg", "query", r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tolvo").returncode == 0

    def is_there(self):
        return (self.programs / "Tolvo.exe").is_file()


def active_window(*what):
    """The window that has the keyboard, or what xdotool knows of it; empty if there is none."""
    return subprocess.run(["xdotool", "getactivewindow", *what], capture_output=True, encoding="utf-8",
                          check=False).stdout.strip()


def windows():
    """The numbers of all windows."""
    listed = subprocess.run(["wmctrl", "-l"], capture_output=True, encoding="utf-8", check=False).stdout
    return {int(line.split()[0], 16) for line in listed.splitlines()}


def active_title():
    return active_window("getwindowname")


def lightness():
    """Of the active window as a whole, 0 to 1."""
    done = subprocess.run(["import", "-silent", "-window", active_window(), "-colorspace", "Gray", "-format", "%[fx:mean]",
                           "info:"], capture_output=True, encoding="utf-8", check=True)
    return float(done.stdout)


def window_becomes_active(title):
    """Waits for the window of this title, or with one that a pattern matches, to have the keyboard."""
    def is_active():
        return title.match(active_title()) if isinstance(title, re.Pattern) else active_title() == title

    wait_for(is_active, lambda: f"the window {title!r}, {active_title()!r} has the keyboard")
    # The keys follow a moment after the window says so.
    time.sleep(0.4)


def click_into(title):
    """Brings a window to the front: after a file dialog of Wine none has the keyboard."""
    subprocess.run(["wmctrl", "-a", title], check=True)
    window_becomes_active(title)


def click_first_icon(tray):
    """Clicks the first icon of a window that shows some, once it is there. Gives nothing."""
    found = subprocess.run(["xdotool", "search", "--name", tray, "mousemove", "--window", "%1", "10", "10", "click", "1"],
                           stderr=subprocess.DEVNULL, check=False)
    time.sleep(0.5 if found.returncode == 0 else 0)


class Run:
    """One run of the installed program."""

    def __init__(self, program, settings, *arguments, **more):
        self.others = windows()
        self.process = subprocess.Popen([HERE / "wine.sh", program, *arguments], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                        env=environment(**{**settings.environment(), **more}))

    def shows_its_window(self):
        wait_for(lambda: int(active_window()) not in self.others, "a window of the run")
        window_becomes_active(MAIN)

    def ends(self, code=0):
        try:
            found = self.process.wait(20)
        except subprocess.TimeoutExpired as late:
            raise AssertionError(f"the run did not end, {active_title()!r} has the keyboard") from late
        assert found == code, f"the run ended with {found}"

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()


class Story(unittest.TestCase):
    """Stories of one user of the installed program: a store without tips and hints, and runs that end with the story."""

    @classmethod
    def setUpClass(cls):
        cls.installation = Installation()
        cls.addClassCleanup(keep_wine_running().communicate)
        cls.installation.install()
        cls.addClassCleanup(cls.installation.remove)

    def setUp(self):
        self.settings = Settings()
        self.addCleanup(self.settings.close)
        self.settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        for hint in "Troubles", "PowerButtons":
            self.settings.write("Tolvo", "Hints", hint, "0")
        self.program = self.installation.programs / "Tolvo.exe"

    def start(self, clipboard, *arguments, **more):
        """A run that takes this text, copied in an X program, or with None what is on the clipboard."""
        if clipboard is not None:
            set_clipboard(clipboard)
            wait_for(lambda: (paste() or "") == clipboard.replace("\n", "\r\n"), lambda: f"Wine's clipboard, it is {paste()!r}")
        run = Run(self.program, self.settings, *arguments, **more)
        self.addCleanup(run.kill)
        run.shows_its_window()
        return run

    def leaves(self, run, text):
        """Copy and Close: the run ends, and another Windows program pastes this text."""
        keys("alt+d")
        run.ends()
        self.assertEqual(paste(), text.replace("\n", "\r\n"))


class NotedResult(unittest.TextTestResult):
    """Also writes a line for each story."""

    def stopTest(self, test):
        super().stopTest(test)
        bad = any(test is getattr(failed, "test_case", failed) for failed, _ in self.failures + self.errors)
        with open(os.environ.get("TOLVO_RESULTS", os.devnull), "a", encoding="utf-8") as file:
            story = test.id().rpartition(".")[2].removeprefix("test_").replace("_", " ")
            print(pathlib.Path(sys.argv[0]).stem, story, "FAILED" if bad else "passed", sep="\t", file=file)


def main():
    unittest.main(verbosity=2, testRunner=unittest.TextTestRunner(verbosity=2, resultclass=NotedResult))
