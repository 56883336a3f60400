# SPDX-License-Identifier: MIT
"""What sway_story.sh tells, once its compositor stands."""

import os
import subprocess

from command_stories import Notifications
from desk import PROGRAMS, Settings, wait_for


def pasted():
    return subprocess.run(["wl-paste", "--no-newline"], capture_output=True, timeout=5).stdout.decode()


def pasted_becomes(text):
    wait_for(lambda: pasted() == text, lambda: f"{text!r} on the clipboard, there is {pasted()!r}")


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
    settings.close()


main()
