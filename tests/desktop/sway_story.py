# SPDX-License-Identifier: MIT
"""The story of sway_story.sh, once its compositor runs."""

import os
import subprocess

from command_stories import Notifications
from desk import PROGRAMS, Settings, Tolvo, wait_for


def pasted():
    return subprocess.run(["wl-paste", "--no-newline"], capture_output=True, timeout=5).stdout.decode()


def pasted_becomes(text):
    wait_for(lambda: pasted() == text, lambda: f"{text!r} on the clipboard, there is {pasted()!r}")


def press(*strokes):
    """Keys in one go, as "two" and "alt+n": the keyboard, and with it the focus, is there only meanwhile."""
    arguments = ["-s", "500"]
    for stroke in strokes:
        held, _, key = stroke.rpartition("+")
        arguments += ["-M", held, key, "-m", held, "-s", "400"] if held else ["-s", "400", stroke, "-s", "400"]
    subprocess.run(["wtype", *arguments], timeout=20, check=True)


def search_below_the_text(settings):
    """Nobody can place windows here: the search and its results live in the main window."""
    settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
    subprocess.run(["wl-copy", "one two three two"], timeout=5, check=True)
    run = Tolvo(settings, wait=False)
    run.text_becomes("one two three two")
    press("ctrl+f", "two", "alt+f", "alt+n")
    run.picture_becomes("one «two» three two")
    assert len(run.windows()) == 1 and run.shows("Find Next"), run.titles()
    press("alt+a")
    run.find("Search results")
    assert len(run.windows()) == 1 and not run.shows("Find Next"), run.titles()
    subprocess.run(["wtype", "-s", "400", "-k", "Down", "-k", "Down", "-k", "Return"], timeout=5, check=True)
    run.picture_becomes("one two three «two»")
    press("alt+q")
    run.ends()


def main():
    desktop = Notifications()
    settings = Settings()
    wait_for(lambda: subprocess.run(["wl-copy", "Sway words"], timeout=5).returncode == 0, "the compositor")
    pasted_becomes("Sway words")
    run = subprocess.Popen([os.path.join(PROGRAMS, "tolvo"), "--tool", "ccUPP"], env=settings.environment())
    # The keyboard exists only as long as somebody types on it.
    wait_for(lambda: run.poll() is not None or subprocess.run(["wtype", "-s", "500", "-k", "Shift_L"], timeout=5) is None,
             "the end of the command")
    assert run.returncode == 0, run.returncode
    pasted_becomes("SWAY WORDS")
    wait_for(lambda: desktop.shown, "a notification")
    desktop.choose("undo")
    pasted_becomes("Sway words")
    subprocess.run(["wl-copy", "over"], timeout=5, check=True)
    wait_for(lambda: not settings.programs("tolvo"), "the keeper to end")
    search_below_the_text(settings)
    settings.close()


main()
