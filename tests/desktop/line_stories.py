# SPDX-License-Identifier: MIT
"""Tools of lines: a chain of them by keys, with their dialogs, a bad pattern, and the chain as a PowerButton."""

import unittest

from desk import Story, clipboard_becomes, keys, type_text

LIST = "tea, Milk, tea\nsugar 10,milk\n# old\nsugar 9"


class LineStories(Story):
    def opens(self, run, words, title):
        keys("ctrl+p")
        type_text(words)
        keys("Return")
        run.active(title)

    def test_a_chain_by_keys(self):
        run = self.start(LIST)
        run.main_is_active()
        run.text_becomes(LIST)
        self.opens(run, "lines containing", "Keep or Drop Lines")
        type_text("(#")
        keys("alt+i", "End", "alt+d", "Return")
        run.box_says("a group is not closed, at character 1")
        keys("Return")
        run.active("Keep or Drop Lines")
        type_text("^#")
        keys("Return")
        run.main_is_active()
        run.text_becomes("tea, Milk, tea\nsugar 10,milk\nsugar 9")
        run.status_becomes("1 line removed")
        self.opens(run, "split or join", "Split or Join Lines")
        keys("Return")
        run.main_is_active()
        run.text_becomes("tea\nMilk\ntea\nsugar 10\nmilk\nsugar 9")
        self.opens(run, "remove duplicates", "Remove Duplicates")
        keys("alt+c", "Return")
        run.main_is_active()
        run.text_becomes("tea\nMilk\nsugar 10\nsugar 9")
        self.opens(run, "sort with o", "Sort Lines")
        keys("alt+d", "alt+w")  # the preview comes over the text, which stays
        run.find("Preview in the text")
        keys("Return")
        run.main_is_active()
        run.text_becomes("tea\nsugar 10\nsugar 9\nMilk")
        keys("ctrl+u")
        keys("alt+d")
        run.ends()
        clipboard_becomes("Tea\nsugar 10\nsugar 9\nMilk")

    def test_columns_and_matches(self):
        run = self.start("tea,2,hot\nmilk,1,cold")
        run.main_is_active()
        self.opens(run, "choose columns", "Choose Columns")
        type_text("3,0")  # the columns are selected
        keys("Return")
        run.box_says("0 is not a column: name columns by numbers from 1, such as 3,1 or 2-4")
        keys("Return")
        run.active("Choose Columns")
        type_text("3,1")
        keys("Return")
        run.main_is_active()
        run.text_becomes("hot,tea\ncold,milk")
        run.status_becomes("Columns chosen")
        self.opens(run, "sort by pattern", "Sort by Pattern")
        type_text(",.")
        keys("alt+i", "End", "Return")
        run.main_is_active()
        run.text_becomes("cold,milk\nhot,tea")
        self.opens(run, "count matches", "Count Matches")
        type_text("l")
        keys("Return")
        run.main_is_active()
        run.text_becomes("2\tl")

    def test_a_chain_as_a_power_button(self):
        button = "PowerButtons\\Button 1"
        self.settings.write("Tolvo", button, "Name", "List")
        steps = (("lnSEP", "Join=0, Separator=,\\x20, Trim=1, LeaveOutEmpty=1"), ("ccLOW", ""),
                 ("lnNTH", "Drop=0, Every=2, First=1"),
                 ("lnAFF", "Before=<li>, After=</li>, Start=1, Step=1, Width=0, SkipBlanks=1"))
        for step, (token, details) in enumerate(steps, 1):
            self.settings.write("Tolvo", f"{button}\\Action {step}", "Token", token)
            self.settings.write("Tolvo", f"{button}\\Action {step}", "DlgOption", "1")
            self.settings.write("Tolvo", f"{button}\\Action {step}", "Details", details)
        run = self.start("Tea, Milk,sugar")
        run.main_is_active()
        keys("ctrl+1")
        run.text_becomes("<li>tea</li>\n<li>sugar</li>")


if __name__ == "__main__":
    unittest.main()
