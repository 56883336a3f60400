# SPDX-License-Identifier: MIT
"""Ten jobs from the window with the text to the result on the clipboard, by keys alone and by the mouse. The harness counts
what the user does: a key, held ones included, is one stroke, and so are a letter in the field that finds tools, a click,
and a text typed into any other field."""

import unittest

import desk
from desk import Atspi, Story, clipboard_becomes, keys, type_text

MOST = 12
PDF = "A line that\nbroke off in\nthe middle.\n\nThe next one."
QUOTES = "\u201cTwo  blanks\u201d and   \u2018three\u2019"
MAIL = "> Dear reader,\n> this is quoted."


class Hand:
    """Acts on a run and counts."""

    def __init__(self, run):
        self.run, self.count = run, 0

    def keys(self, *strokes):
        self.count += len(strokes)
        keys(*strokes)

    def find(self, letters, tool):
        """From the text to a tool by the first letters of its name; there it has to stand first."""
        self.keys("ctrl+p")
        type_text(letters)
        self.count += len(letters)
        desk.wait_for(lambda: [row.get_name() for row in self.run.rows()][:1] == [tool], f"{tool!r} to be found first")
        self.keys("Return")

    def fill(self, text):
        type_text(text)
        self.count += 1

    def click(self, control):
        self.run.click(control)
        self.count += 1

    def tool(self, group, name):
        self.count += 1 if self.run.shows(name) else 2
        self.run.tool(group, name)


def by_keys_spelling(hand):
    hand.find("spel", "Spelling...")
    hand.run.active("Select dictionary")
    hand.keys("Return")
    hand.run.active("Spelling")
    hand.keys("Return")
    hand.run.main_is_active()


def by_mouse_spelling(hand):
    hand.tool("Check", "Spelling...")
    hand.run.active("Select dictionary")
    hand.click("OK")
    hand.run.active("Spelling")
    hand.click("Change")
    hand.run.main_is_active()


def by_keys_replace(hand):
    hand.keys("ctrl+h")
    hand.run.active("Tolvo Search")
    hand.keys("ctrl+Prior")  # from the first kind of search round to the last; the focus stays
    hand.fill("(\\d+)-(\\d+)")
    hand.keys("alt+i")
    hand.fill("$2-$1")
    hand.keys("alt+a")
    hand.run.box_says("2 strings replaced")
    hand.keys("Return")
    hand.run.active("Tolvo Search")
    hand.keys("Escape")
    hand.run.main_is_active()


def by_mouse_replace(hand):
    hand.tool("Clean & Replace", "Search & replace...")
    hand.run.active("Tolvo Search")
    hand.run.page("Regular Expression")
    hand.count += 1
    hand.click(lambda: hand.run.rows(Atspi.Role.COMBO_BOX)[0])
    hand.fill("(\\d+)-(\\d+)")
    hand.click(lambda: hand.run.rows(Atspi.Role.COMBO_BOX)[1])
    hand.fill("$2-$1")
    hand.click("Replace All")
    hand.run.box_says("2 strings replaced")
    hand.click("OK")
    hand.run.active("Tolvo Search")


def numbers(hand, confirm):
    hand.run.active("Line Numbering")
    confirm()
    hand.run.main_is_active()


# Job: the text, by keys, by the mouse, the result on the clipboard. Copy and Close follows.
JOBS = {
    "line breaks out of a PDF": (
        PDF, lambda h: h.find("join", "Join paragraphs"), lambda h: h.tool("Spaces & Layout", "Join paragraphs"),
        "A line that broke off in the middle.\n\nThe next one."),
    "title case": (
        "the old man and the sea", lambda h: h.find("titl", "Title Case"), lambda h: h.click("Title case"),
        "The Old Man and the Sea"),
    "straight quotes, single blanks": (
        QUOTES, lambda h: (h.find("pla", "Plain characters"), h.find("sin", "Single spaces")),
        lambda h: (h.tool("Clean & Replace", "Plain characters"), h.tool("Spaces & Layout", "Single spaces")),
        "\"Two blanks\" and 'three'"),
    "line numbers": (
        "a\nb", lambda h: (h.find("line n", "Line numbers..."), numbers(h, lambda: h.keys("Return"))),
        lambda h: (h.tool("Lists & Numbers", "Line numbers..."), numbers(h, lambda: h.click("OK"))),
        "1 a\n2 b"),
    "three steps of a PowerButton": (
        "b  \na  ", lambda h: h.keys("ctrl+1"), lambda h: h.click("PowerButton 1: Tidy"), "A\nB"),
    "replace by a pattern": ("1-2 and 3-4", by_keys_replace, by_mouse_replace, "2-1 and 4-3"),
    "spelling": ("I recieve it", by_keys_spelling, by_mouse_spelling, "I receive it"),
    "quotes out of a mail": (
        MAIL, lambda h: h.find("mail", "Clean up e-mail"), lambda h: h.tool("Clean & Replace", "Clean up e-mail"),
        "Dear reader,\nthis is quoted."),
    "sort": (
        "b\nc\na", lambda h: h.find("sort", "Sort A to Z"), lambda h: h.tool("Sort & Move", "Sort A to Z"), "a\nb\nc"),
    "length": ("twelve units", lambda h: h.run.find("12 / 65,535"), lambda h: h.run.find("12 / 65,535"), None),
}


class JobStories(Story):
    def setUp(self):
        super().setUp()
        button = "PowerButtons\\Button 1"
        self.settings.write("Tolvo", button, "Name", "Tidy")
        for step, token in enumerate(("ccUPP", "foTRA", "soALP"), 1):
            self.settings.write("Tolvo", f"{button}\\Action {step}", "Token", token)

    def do(self, text, act, by_keys, result):
        self.tearDown()  # nobody has done the job before: fields hold nothing
        self.setUp()
        run = self.start(text)
        run.main_is_active()
        run.text_becomes(text)
        hand = Hand(run)
        act(hand)
        if result is not None:
            run.text_becomes(result)
            hand.keys("alt+d") if by_keys else hand.click("Copy and Close")
            run.ends()
            clipboard_becomes(result)
        return hand.count

    def test_take_twelve_strokes_at_most(self):
        rows = []
        for job, (text, with_keys, with_mouse, result) in JOBS.items():
            for way, act in (("keys", with_keys), ("mouse", with_mouse)):
                with self.subTest(job=job, way=way):
                    count = self.do(text, act, way == "keys", result)
                    rows.append(f"{job:32} {way:6} {count:3}")
                    self.assertLessEqual(count, MOST)
        print("\n" + "\n".join(rows))


if __name__ == "__main__":
    unittest.main()
