# SPDX-License-Identifier: MIT
"""Languages of the spelling check: found on the machine, guessed from the text, checked in, added and removed."""

import os
import unittest
import zipfile

from desk import Story, keys, type_text, wait_for

GERMAN = ("Der Hund läuft durch den Gartn und das Kind geht mit der Mutter in die Schule. "
          "Am Abend lesen sie ein Buhc, und die Oma erzählt vom Krieg.")


class LanguageStories(Story):
    def ask(self, text, **environment):
        """Opens the question for the language of a check, with keys alone."""
        run = self.start(text, **environment)
        run.main_is_active()
        run.text_becomes(text)
        run.tool_by_keys("Check", "Spelling...")
        run.active("Select dictionary")
        return run

    @unittest.skipUnless(os.path.exists("/usr/share/hunspell/de_DE.dic"), "without hunspell-de-de")
    def test_a_german_text_by_keys(self):
        run = self.ask(GERMAN)
        run.find("The text looks like Deutsch (Deutschland), the first of the list.")
        keys("Home")
        run.find("/usr/share/hunspell")
        keys("Return")
        run.active("Spelling and Grammar - Deutsch (")
        for word, correction in ("Gartn", "Garten"), ("Buhc", "Buch"):
            run.find(word)
            type_text(correction)  # in place of the first suggestion
            keys("Return")
        run.main_is_active()
        run.text_becomes(GERMAN.replace("Gartn", "Garten").replace("Buhc", "Buch"))
        # The next check begins with this language.
        keys("shift+F7")
        run.box_says("Spelling and grammar check complete")

    def test_a_language_is_added_and_removed(self):
        downloads = os.path.join(self.settings.folder, "Downloads")
        os.mkdir(downloads)
        with zipfile.ZipFile(os.path.join(downloads, "letzebuerg.oxt"), "w") as package:
            package.writestr("lb_LU.aff", "SET UTF-8\n")
            package.writestr("lb_LU.dic", "2\nhaus\nmoien\n")
        run = self.ask("moien hauus", HOME=self.settings.folder)
        keys("Tab", "Tab", "Return")  # "Manage dictionaries"
        run.active("Select Language")
        run.click("Add Language...")
        run.active("Add Language")
        run.find("letzebuerg.oxt")
        keys("Return")
        run.active("Select Language")
        run.find("lb-lu")
        keys("Return")  # OK
        run.active("Select dictionary")
        keys("alt+d")
        wait_for(lambda: run.shows("Added by you") or keys("l"), "Luxembourgish, by its first letter")
        keys("Return")
        run.active("Spelling and Grammar - ")
        run.find("hauus")
        keys("Return")
        run.main_is_active()
        run.text_becomes("moien haus")
        run.tool_by_keys("Check", "Spelling...")
        run.active("Select dictionary")
        keys("Tab", "Tab", "Return")
        run.active("Select Language")
        type_text("lb")
        run.find("lb-lu")
        run.click("Remove")
        run.box_says("Remove the dictionary of ")
        keys("alt+y")
        wait_for(lambda: not run.shows("lb-lu"), "the language to go")
        self.assertEqual(os.listdir(os.path.join(self.settings.folder, "tolvo", "Dictionaries")), [])


if __name__ == "__main__":
    unittest.main()
