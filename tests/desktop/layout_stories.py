# SPDX-License-Identifier: MIT
"""Every key that is found by a letter or a sign, on keyboards of many countries. Keys go down by their codes, so that
the layout decides what they mean."""

import subprocess
import unittest

from desk import Story, clipboard_becomes, keys, wait_for

CTRL, SHIFT, ALT, ALTGR = "37", "50", "64", "108"
AMERICAN = {character: str(first + i) for first, row in ((10, "1234567890"), (24, "qwertyuiop[]"), (38, "asdfghjkl"),
                                                         (52, "zxcvbnm,./")) for i, character in enumerate(row)}
FRENCH = {"q": AMERICAN["a"], "a": AMERICAN["q"], "w": AMERICAN["z"], "z": AMERICAN["w"]}
# Where a user of the layout finds a character, if not where an American does.
LAYOUTS = {
    "us": {}, "gb": {}, "pl": {}, "gr,us": {},
    "de": {"y": AMERICAN["z"], "z": AMERICAN["y"], "/": f"{SHIFT}+16", "[": f"{ALTGR}+17", "]": f"{ALTGR}+18"},
    "fr": {**FRENCH, "/": f"{SHIFT}+60", "[": f"{ALTGR}+14", "]": f"{ALTGR}+20"},
    "es": {"/": f"{SHIFT}+16", "[": f"{ALTGR}+34", "]": f"{ALTGR}+35"},
    "tr": {"/": f"{SHIFT}+16", "[": f"{ALTGR}+17", "]": f"{ALTGR}+18"},
    "ru": {"/": f"{SHIFT}+51"},
    "ru,us": {"/": f"{SHIFT}+51"},
    "il,us": {"/": AMERICAN["q"], "[": AMERICAN["]"], "]": AMERICAN["["]},
}

# On "(ab)" with the caret at its start: the keys with Ctrl, one after the other, and what is seen after each.
EDITS = [("]", "(ab«)»"), ("[", "«(»ab)"), ("a", "«(ab)»"), ("u", "(AB)¦"), ("a", "«(AB)»"), ("l", "(ab)¦"),
         ("a", "«(ab)»"), ("s", "(AB)¦"), ("a", "«(AB)»"), ("k", "(Ab)¦"), ("z", "«(AB)»"), ("y", "(Ab)¦"),
         ("a", "«(Ab)»"), ("c", "«(Ab)»"), ("x", "¦"), ("v", "(Ab)¦"), ("v", "(Ab)(Ab)¦")]
# What a key with Ctrl, or with Ctrl and Shift, opens.
OPENS = [(CTRL, "f", "Tolvo Search"), (CTRL, "h", "Tolvo Search & Replace"), (CTRL, "o", "Options"),
         (CTRL, "/", "Position: Row 1, column 1"), (CTRL, "3", "There are no actions defined for this PowerButton"),
         (f"{CTRL}+{SHIFT}", "3", "Edit PowerButton 3")]


class LayoutStories(Story):
    def tearDown(self):
        subprocess.run(["setxkbmap", "us"], check=True)
        super().tearDown()

    def on_every_layout(self, text, story):
        for layout, own in LAYOUTS.items():
            with self.subTest(layout=layout):
                subprocess.run(["setxkbmap", layout], check=True)
                places = {**AMERICAN, **own}
                run = self.start(text)
                run.main_is_active()
                run.text_becomes(text)
                keys("ctrl+Home")
                story(run, lambda held, character: keys(f"{held}+{places[character]}"))

    def test_keys_with_ctrl(self):
        def story(run, press):
            for character, picture in EDITS:
                press(CTRL, character)
                run.picture_becomes(picture)
            keys("Left")
            press(CTRL, "t")
            run.picture_becomes("(Ab)(A)b¦")
            for held, character, opened in OPENS:
                keys("ctrl+Home")
                press(held, character)
                run.box_says(opened)
                keys("Escape")
                run.main_is_active()
            press(CTRL, "p")
            wait_for(lambda: run.focused() == "Find a tool", lambda: f"the field, the focus is at {run.focused()!r}")
            keys("Escape")
            wait_for(lambda: run.focused() == "Text", lambda: f"the text, the focus is at {run.focused()!r}")
            keys("alt+Down")
            press(CTRL, "r")
            run.status_becomes("Repeated: Move down")
            press(f"{CTRL}+{SHIFT}", "c")
            run.ends()
            clipboard_becomes("(Ab)(A)b")

        self.on_every_layout("(ab)", story)

    def test_keys_with_alt(self):
        """Those that mean nothing type nothing, also in the search box; there the letters of the captions work too."""
        self.settings.write("Tolvo", "Search", "Direction", "Down")

        def story(run, press):
            keys("shift+Right")
            for held, characters in (ALT, "rz15["), (f"{ALT}+{SHIFT}", "rd4"), (f"{CTRL}+{ALT}", "ac1"):
                for character in characters:
                    press(held, character)
            for status in "Word wrap now ON", "Word wrap now OFF":
                press(ALT, "w")
                run.status_becomes(status)
            run.picture_becomes("«(»ab(")
            press(CTRL, "f")
            run.active("Tolvo Search")
            for character in "z9":
                press(ALT, character)
            for letter, control in ("u", "Up"), ("f", "From Start"), ("d", "Down"):
                press(ALT, letter)  # a caption's
                wait_for(lambda: run.is_checked(control), f"{control!r}, it is not checked")
            press(ALT, "n")
            run.picture_becomes("(ab«(»")
            keys("Escape")
            run.main_is_active()
            press(ALT, "f")
            run.status_becomes("Text retrieved from clipboard")
            press(CTRL, "a")
            press(CTRL, "u")
            press(ALT, "q")
            run.box_says("Changes have been made to the text")
            keys("Escape")
            run.main_is_active()
            press(ALT, "d")
            run.ends()
            clipboard_becomes("(AB(")

        self.on_every_layout("(ab(", story)

    def test_altgr_and_dead_keys_type(self):
        for layout, strokes, typed in ("de", f"{ALTGR}+24 {ALTGR}+16", "@{"), ("fr", "34 26", "ê"):
            with self.subTest(layout=layout):
                subprocess.run(["setxkbmap", layout], check=True)
                run = self.start("x")
                run.main_is_active()
                keys("ctrl+End", *strokes.split())
                run.text_becomes("x" + typed)


if __name__ == "__main__":
    unittest.main()
