# SPDX-License-Identifier: MIT
"""A PowerButton is put together in its editor: the list of its steps, and what each of them does to the text."""

import subprocess
import unittest

from desk import FIELD, Atspi, Story, keys, type_text, wait_for

NAME = "Enter a name for your PowerButton:"
EDITOR = "Edit PowerButton 1"


class EditorStories(Story):
    def lines(self, run):
        """The steps, with a minus if they are switched off."""
        return [("" if row.get_state_set().contains(Atspi.StateType.CHECKED) else "-") + row.get_name() for row in run.rows()]

    def steps_become(self, run, *lines):
        wait_for(lambda: self.lines(run) == list(lines), lambda: f"the steps {lines}, they are {self.lines(run)}")

    def after_becomes(self, run, text):
        def after():
            node = run.find("Text after the step").get_text_iface()
            return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))

        wait_for(lambda: after() == text, lambda: f"{text!r} after the step, it is {after()!r}")

    def drag(self, run, line, onto, part):
        """Drags a step to a part of the height of another one."""
        x, y = run.middle(run.find(line))
        target = run.find(onto).get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        way = target.y + int(target.height * part) - y
        strokes = ["mousemove", x, y, "mousedown", 1]
        for step in range(1, 9):
            strokes += ["mousemove", x, y + way * step // 8, "sleep", "0.1"]
        subprocess.run(["xdotool", *map(str, strokes), "sleep", "0.2", "mouseup", "1"], check=True)

    def test_with_keys_alone(self):
        run = self.start("one two")
        keys("ctrl+shift+1")
        run.active(EDITOR)
        type_text("Odd")
        for number, tool in enumerate(("UPPER", "lower", "Title", "rEVERSE", "Sentence")):
            if number > 0:
                keys("alt+a", "Up", "Return")  # "Add at end"
                run.active(EDITOR)
                keys("alt+t", "shift+Tab", "shift+Tab", "shift+Tab")  # from the steps to the name
            keys("shift+Tab")
            type_text(tool)
            keys("Return")
        self.steps_become(run, "1. UPPER CASE", "2. lower case", "3. Title Case", "4. rEVERSE cASE", "5. Sentence case")
        self.after_becomes(run, "One two")
        keys("alt+t", "ctrl+Up", "ctrl+Up", "ctrl+Up")
        self.steps_become(run, "1. UPPER CASE", "2. Sentence case", "3. lower case", "4. Title Case", "5. rEVERSE cASE")
        keys("Down")
        self.after_becomes(run, "one two")
        keys("space")
        self.after_becomes(run, "One two")
        run.find("Switched off: nothing happens")
        keys("Down", "Delete")
        self.steps_become(run, "1. UPPER CASE", "2. Sentence case", "-3. lower case", "4. rEVERSE cASE")
        keys("ctrl+z", "ctrl+d", "ctrl+x", "End")
        self.steps_become(run, "1. UPPER CASE", "2. Sentence case", "-3. lower case", "4. Title Case", "5. rEVERSE cASE")
        self.after_becomes(run, "oNE tWO")
        keys("Return")
        run.main_is_active()
        run.text_becomes("one two")
        keys("ctrl+1")
        run.text_becomes("oNE tWO")

    def test_with_the_mouse(self):
        run = self.start("some text")
        run.click("PowerButton 1, not defined", 3)
        run.active(EDITOR)
        run.click("UPPER CASE")
        run.click(NAME, role=FIELD)
        type_text("Shout")
        for tool in "lower case", "Title Case":
            run.click("Add Action")
            keys("Up", "Return")  # "Add at end", the last entry: the bus does not show menus of their own
            run.active(EDITOR)
            run.click(tool)
        self.steps_become(run, "1. UPPER CASE", "2. lower case", "3. Title Case")
        self.after_becomes(run, "Some Text")
        self.drag(run, "1. UPPER CASE", "3. Title Case", 0.9)
        self.steps_become(run, "1. lower case", "2. Title Case", "3. UPPER CASE")
        self.after_becomes(run, "SOME TEXT")
        row = run.find("3. UPPER CASE").get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        subprocess.run(["xdotool", "mousemove", str(row.x + 8), str(row.y + row.height // 2), "click", "1"], check=True)
        self.steps_become(run, "1. lower case", "2. Title Case", "-3. UPPER CASE")
        run.click("OK")
        run.main_is_active()
        run.click("PowerButton 1: Shout")
        run.text_becomes("Some Text")


if __name__ == "__main__":
    unittest.main()
