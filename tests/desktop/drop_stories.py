# SPDX-License-Identifier: MIT
"""Text and files that are dragged from another program onto the text."""

import os
import subprocess
import time
import unittest

from desk import PROGRAMS, Story, keys


def mouse(*steps):
    subprocess.run(["xdotool", *map(str, steps)], check=True)
    time.sleep(0.1)


class DropStories(Story):
    def drag(self, run, kind, content):
        """Onto the middle of the text; a drag begins after some pixels, and its target is told of each move."""
        source = subprocess.Popen([os.path.join(PROGRAMS, "..", "tests", "drag_source"), kind, content])
        try:
            subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid", str(source.pid)], check=True,
                           stdout=subprocess.DEVNULL, timeout=10)
            time.sleep(0.3)
            x, y = run.middle(run.text_node())
            mouse("mousemove", "--sync", 20, 20, "mousedown", 1)
            for place in (25, 25), (40, 35), (x - 20, y - 10), (x - 5, y), (x, y):
                mouse("mousemove", *place)
            time.sleep(0.5)
            mouse("mouseup", 1)
            time.sleep(0.5)
        finally:
            source.terminate()
            source.wait()

    def test_a_text_lands_where_it_is_dropped(self):
        run = self.start("one")
        self.drag(run, "text", " two")
        run.text_becomes("one two")
        keys("ctrl+z")
        run.text_becomes("one")

    def test_a_file_takes_the_place_of_the_text(self):
        path = os.path.join(self.settings.folder, "letter.txt")
        with open(path, "wb") as file:
            file.write("Grüße\r\nfrom afar".encode())
        run = self.start("one")
        self.drag(run, "file", path)
        run.text_becomes("Grüße\nfrom afar")
        keys("alt+u")
        run.text_becomes("one")


if __name__ == "__main__":
    unittest.main()
