# SPDX-License-Identifier: MIT
"""What a screen reader can say: the name of every control, and what calls for attention."""

import unittest

from desk import Atspi, Story, keys, wait_for
from gi.repository import GLib

CONTROLS = {Atspi.Role.PUSH_BUTTON, Atspi.Role.TOGGLE_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.RADIO_BUTTON,
            Atspi.Role.COMBO_BOX, Atspi.Role.TEXT, Atspi.Role.ENTRY, Atspi.Role.SPIN_BUTTON, Atspi.Role.LIST,
            Atspi.Role.TREE, Atspi.Role.TREE_TABLE, Atspi.Role.TABLE, Atspi.Role.PAGE_TAB, Atspi.Role.SLIDER}
TEXT = "one mistke\n  two lines\nthree"


class SpeechStories(Story):
    def listen(self):
        """The names of what calls for attention, from now on."""
        heard = []

        def hear(event):
            # Newer toolkits announce the words themselves; older ones have the control that shows them speak up.
            words = event.any_data if event.type.startswith("object:announcement") else event.source.get_name()
            heard.append(words)

        listener = Atspi.EventListener.new(hear)
        for kind in "object:announcement", "object:alert", "object:property-change:accessible-name":
            listener.register(kind)
        self.addCleanup(lambda: [listener.deregister(kind) for kind in
                                 ("object:announcement", "object:alert", "object:property-change:accessible-name")])
        return heard

    def hears(self, heard, words):
        def told():
            while GLib.MainContext.default().iteration(False):
                pass
            return any(words in said for said in heard)

        wait_for(told, lambda: f"{words!r} to be said, heard were {heard}")

    def check_names(self, run, title):
        """Of all that shows in the active window and takes part in what it does."""
        window = run.active(title)
        seen = []

        def look(node):
            states = node.get_state_set()
            if states.contains(Atspi.StateType.SHOWING) and node.get_role() in CONTROLS:
                seen.append(node.get_role())
                labels = [relation for relation in node.get_relation_set()
                          if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
                within = node.get_parent().get_role()
                part = within in (Atspi.Role.COMBO_BOX, Atspi.Role.SPIN_BUTTON)  # the outer control has the name
                self.assertTrue(node.get_name().strip() or labels or part,
                                f"nameless {node.get_role_name()} in {title}, in {node.get_parent().get_name()!r}")
            return False

        run._named(look, [window])
        self.assertGreater(len(seen), 2, f"the controls of {title}")

    def test_every_window(self):
        run = self.start(TEXT)
        run.main_is_active()
        run.text_becomes(TEXT)
        self.check_names(run, "Tolvo ")
        for stroke, title in (("ctrl+h", "Tolvo Search"), ("ctrl+o", "Options"), ("ctrl+shift+1", "Edit PowerButton 1")):
            with self.subTest(title):
                keys(stroke)
                self.check_names(run, title)
                keys("Escape")
                run.main_is_active()
        run.tool("Lists & Numbers", "Bullet list...")
        self.check_names(run, "Bullet List Style")
        keys("Escape")
        run.main_is_active()

    def test_a_tool_and_a_wrong_word_are_said(self):
        run = self.start(TEXT)
        run.main_is_active()
        heard = self.listen()
        run.tool("Capitals", "UPPER CASE")
        self.hears(heard, "characters: upper case")
        keys("ctrl+z")
        run.text_becomes(TEXT)
        run.tool("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Return")
        run.active("Spelling")
        self.check_names(run, "Spelling")
        self.hears(heard, "mistke")
        self.assertIn("mistke", run.focused_node().get_description(), "said with the control that has the focus")
        keys("Escape")
        run.box_says("Spelling check complete")
        keys("Return")


if __name__ == "__main__":
    unittest.main()
