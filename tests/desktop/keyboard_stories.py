# SPDX-License-Identifier: MIT
"""Every key of the program, pressed for real, in the text box without and in the one with word wrap."""

import unittest

from desk import Story, clipboard_becomes, get_clipboard, keys, set_clipboard, type_text, wait_for

# Before, keys, after, status (None: not looked at); « » is the selection, ¦ a bare caret.
EDITS = [
    ("a«lpha» b", "ctrl+a", "«alpha b»", None),
    ("a «lord of» b", "ctrl+k", "a Lord Of¦ b", "7 characters: Initial caps"),
    ("¦lord", "ctrl+k", "L¦ord", None),
    ("«ABC»D", "ctrl+l", "abc¦D", None),
    ("«aBcD»e", "ctrl+s", "AbCd¦e", None),
    ("¦abcd", "ctrl+u ctrl+u ctrl+u ctrl+u", "ABCD¦", None),
    ("ab¦", "ctrl+u", "ab¦", None),
    ("a¦b", "ctrl+t", "ba¦", None),
    ("¦ab", "ctrl+t", "¦ab", None),
    ("x «abcd»", "ctrl+u ctrl+z", "x «abcd»", None),
    ("«abcd»", "ctrl+u ctrl+z ctrl+y", "ABCD¦", None),
    ("ab¦", "c ctrl+z", "ab¦", None),
    ("one two¦", "ctrl+BackSpace", "one ¦", None),
    ("[«ab»]c", "alt+r alt+1 ctrl+alt+a ctrl+alt+1 super+j", "[«ab»]c", None),  # nothing to redo
    ("ab¦", "c space d ctrl+z ctrl+z ctrl+y", "abc ¦", None),
    ("ab¦", "c ctrl+t Left ctrl+t ctrl+z ctrl+z ctrl+shift+z", "abc¦", None),
    ("¦(a(b)c)", "ctrl+bracketright", "(a(b)c«)»", None),
    ("(a)¦", "ctrl+bracketleft", "«(»a)", None),
    ("{<b>¦}", "Escape", "«{»<b>}", None),
    ("no¦ne", "Escape", "no¦ne", None),
    ("one\ntw¦o", "alt+Up", "tw¦o\none", None),
    ("one\ntw¦o", "alt+Up alt+Up", "tw¦o\none", "Already at the top"),
    ("o¦ne\ntwo", "alt+Down", "two\no¦ne", None),
    ("o¦ne\ntwo", "alt+Down alt+Down", "two\no¦ne", "Already at the bottom"),
    ("1\n2\n3¦", "alt+Up ctrl+r", "3¦\n1\n2", "Repeated: Move up"),
    ("ab¦", "ctrl+slash", "ab¦", "Not a valid character position"),
    ("ab¦", "F7", "ab¦", "Text retrieved from clipboard"),
]

# Keys that open a box or a window: before, key, the beginning of its text or title; Escape closes it again.
BOXES = [
    ("ab\nc¦d", "ctrl+slash", "Position: Row 2, column 2\n\nCharacter: d\n Decimal: 100\n Hex: 64\n "
     "Unicode: U+0064 LATIN SMALL LETTER D"),
    ("¦(", "ctrl+bracketright", "No matching )"),
    ("¦text", "F1", "Help is not implemented yet"),
    ("¦text", "F3", "Tolvo Search"),
    ("¦text", "ctrl+f", "Tolvo Search"),
    ("¦text", "ctrl+h", "Tolvo Search & Replace"),
    ("¦text", "ctrl+o", "Options"),
    ("¦mistke", "shift+F7", "Spelling and Grammar - "),
    # The second set of keys for PowerButtons, as window managers keep some of the first for themselves.
    ("¦text", "alt+F1", "There are no actions defined for this PowerButton"),
    ("¦text", "shift+alt+F1", "Edit PowerButton 1"),
    ("¦text", "ctrl+1", "There are no actions defined for this PowerButton"),
    ("¦text", "ctrl+shift+8", "Edit PowerButton 8"),
]


class KeyboardStories(Story):
    def in_both_boxes(self, story):
        run = self.start("start")
        for wrapped, status in (False, None), (True, "Word wrap now ON"):
            if wrapped:
                keys("alt+w")
                run.status_becomes(status)
            story(run, "wrapped" if wrapped else "plain")

    def test_keys_that_edit(self):
        def story(run, box):
            for before, stroke, after, status in EDITS:
                with self.subTest(box=box, before=before, keys=stroke):
                    run.place(before)
                    keys(*stroke.split())
                    run.picture_becomes(after)
                    if status:
                        run.status_becomes(status)

        self.in_both_boxes(story)

    def test_keys_that_open_something(self):
        def story(run, box):
            for before, stroke, said in BOXES:
                with self.subTest(box=box, before=before, keys=stroke):
                    run.place(before)
                    keys(stroke)
                    run.box_says(said)
                    keys("Escape")
                    if stroke == "shift+F7":
                        run.box_says("Spelling and grammar check complete")
                        keys("Escape")
                    run.main_is_active()
                    run.picture_becomes(before)

        self.in_both_boxes(story)

    def test_the_clipboard_keys(self):
        def story(run, box):
            run.place("one «two»")
            keys("ctrl+c")
            clipboard_becomes("two")
            keys("ctrl+x")
            run.picture_becomes("one ¦")
            keys("ctrl+v", "ctrl+v")
            run.picture_becomes("one twotwo¦")
            set_clipboard("x" * 65525)
            keys("ctrl+v")
            run.box_says("You cannot paste this text.\n\nThe current text (10 characters)")
            keys("Escape")
            run.main_is_active()
            set_clipboard("y" * 65524)
            keys("ctrl+v")
            run.text_becomes("one twotwo" + "y" * 65524)

        self.in_both_boxes(story)

    def test_ctrl_tab_leaves_the_text_box(self):
        def story(run, box):
            run.place("a¦b")
            for stroke, control in ("ctrl+Tab", "Copy and Close"), ("Tab", "Cancel"), ("shift+Tab shift+Tab", "Text"):
                keys(stroke)
                wait_for(lambda: run.focused() == control, lambda: f"{control!r}, the keys are at {run.focused()!r}")
            keys("Tab")
            run.picture_becomes("a\t¦b")

        self.in_both_boxes(story)

    def test_repeat_before_any_tool_does_nothing(self):
        run = self.start("text")
        keys("ctrl+r")
        type_text("!")
        run.picture_becomes("!¦text")

    def test_the_keys_that_end_the_run(self):
        for wrapped in False, True:
            for key, clipboard in ("alt+d", "end!"), ("ctrl+shift+c", "end!"), ("alt+q", "end"):
                with self.subTest(wrapped=wrapped, key=key):
                    self.settings.write("Tolvo", "Preferences", "Wordwrap", str(int(wrapped)))
                    run = self.start("end")
                    keys("ctrl+End", "exclam")
                    run.text_becomes("end!")
                    keys(key)
                    if key == "alt+q":
                        run.click("Discard changes")
                        run.ends()
                        self.assertEqual(get_clipboard(), clipboard)
                    else:
                        run.ends()
                        clipboard_becomes(clipboard)


if __name__ == "__main__":
    unittest.main()
