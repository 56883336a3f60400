# SPDX-License-Identifier: MIT
"""Three small screens, of which one goes away."""

import subprocess
import unittest

from desk import Story, keys, wait_for
from screens import Screens
from window_stories import place_of_active_window

FRAME = 24  # xdotool counts the edges of the frame twice
FIRST, RIGHT, BELOW = (0, 0, 640, 512), (640, 0, 640, 512), (0, 512, 1280, 512)


def lies_on(place, screen):
    x, y, width, height = place
    left, top, right, bottom = screen[0], screen[1], screen[0] + screen[2], screen[1] + screen[3]
    return left <= x and top <= y and x + width <= right + FRAME and y + height <= bottom + FRAME


class ScreenStories(Story):
    def setUp(self):
        super().setUp()
        self.screens = Screens()
        self.addCleanup(self.screens.close)
        for name, area in ("first", FIRST), ("right", RIGHT), ("below", BELOW):
            self.screens.add(name, *area)

    def started(self):
        run = self.start("text")
        run.main_is_active()
        return run

    def is_on(self, *screens):
        wait_for(lambda: any(lies_on(place_of_active_window(), screen) for screen in screens),
                 lambda: f"a window on {screens}, it is at {place_of_active_window()}")

    def test_windows_stay_on_the_screens_there_are(self):
        run = self.started()
        self.is_on(FIRST, RIGHT, BELOW)
        subprocess.run(["wmctrl", "-r", ":ACTIVE:", "-e", "0,645,30,620,440"], check=True)
        self.is_on(RIGHT)
        place = place_of_active_window()
        for stroke, title in ("ctrl+o", "Options"), ("ctrl+shift+1", "Edit PowerButton 1"):
            keys(stroke)
            run.active(title)
            self.is_on(RIGHT)
            keys("Escape")
            run.main_is_active()
        keys("alt+q")
        run.ends()
        run = self.started()
        wait_for(lambda: place_of_active_window() == place, lambda: f"{place}, it is {place_of_active_window()}")
        keys("alt+q")
        run.ends()
        self.screens.remove("right")
        self.started()
        self.is_on(FIRST, BELOW)


if __name__ == "__main__":
    unittest.main()
