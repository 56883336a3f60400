# SPDX-License-Identifier: MIT
"""Opens the windows of the real program one after another and saves a picture of each:
pictures.py FOLDER SCALE [PART...], where a part is the name of a function here, such as options."""

import os
import subprocess
import sys
import time

from desk import Settings, Tolvo, keys, set_clipboard, type_text, wait_for

SAMPLE = """the lord of the rings
  a story in   three volumes ,by a professor of old languages

1. The fellowship of the ring
2. The two towers
3. The return of the king

It were first published in 1954. Ther are maps at the end , and "long appendices.
Write to reader@example.org or see www.example.org/books.html for more.
"""

# Colours as a desktop with a dark theme gives them.
DARK = """[Colors:Window]
BackgroundNormal=45,45,48
ForegroundNormal=235,235,235
[Colors:View]
BackgroundNormal=30,30,32
BackgroundAlternate=38,38,40
ForegroundNormal=235,235,235
[Colors:Button]
BackgroundNormal=60,60,64
ForegroundNormal=235,235,235
[Colors:Selection]
BackgroundNormal=40,110,70
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=60,60,64
ForegroundNormal=235,235,235
"""

# Group of the panel, and its tools with the titles of their dialogs.
TOOLS = [("Spaces & Layout", [("Indent...", "Indent"), ("Word wrap...", "Word Wrap"),
                              ("Remove blank lines...", "Remove Lines")]),
         ("Lists & Numbers", [("Bullet list...", "Bullet List Style"), ("Numbered list...", "Number List Style"),
                              ("Line numbers...", "Line Numbering")]),
         ("Sort & Move", [("Sort with options...", "Sort Lines"), ("Remove duplicates...", "Remove Duplicates"),
                          ("Keep or drop lines...", "Keep or Drop Lines"), ("Every other line...", "Every Other Line")]),
         ("Check", [("Statistics", "Statistics")])]
# The same for tools that the panel doesn't show.
FOUND_TOOLS = [("Before and after lines...", "Before and After Lines"), ("Split or join lines...", "Split or Join Lines"),
               ("Typography...", "Typography"), ("Case by language...", "Case by Language"), ("Wrap paragraphs...", "Wrap Paragraphs"),
               ("Choose columns...", "Choose Columns"), ("Sort by pattern...", "Sort by Pattern"),
               ("Count matches...", "Count Matches")]


class Photographer:
    """Takes pictures of one run's windows; a window must have the keys before its picture is taken."""

    def __init__(self, run, folder, suffix):
        self.run, self.folder, self.suffix = run, folder, suffix

    def take(self, name, title):
        self.run.active(title)
        time.sleep(0.4)
        self.save(name, subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True, check=True).stdout.strip())

    def take_screen(self, name):
        """With a menu, which is no window for the desktop."""
        time.sleep(0.5)
        self.save(name, "root")

    def save(self, name, window):
        subprocess.run(["import", "-window", window, os.path.join(self.folder, f"{name}-{self.suffix}.png")], check=True)

    def leave(self):
        """Escape until the main window is alone."""
        def alone():
            if len(self.run.windows()) == 1:
                return True
            keys("Escape")
            time.sleep(0.5)
            return False

        wait_for(alone, "the main window alone")
        self.run.main_is_active()


def tools(run, photographer):
    photographer.take("main", "Tolvo ")
    for group, dialogs in TOOLS:
        for tool, title in dialogs:
            run.tool(group, tool)
            photographer.take(title.lower().replace(" ", "-"), title)
            photographer.leave()
        photographer.take("main-" + group.split()[0].lower(), "Tolvo ")


def finding(run, photographer):
    keys("ctrl+p")
    type_text("line br")
    photographer.take("main-find", "Tolvo ")
    keys("Escape")
    for tool, title in FOUND_TOOLS:
        keys("ctrl+p")
        type_text(tool)
        keys("Return")
        photographer.take(title.lower().replace(" ", "-"), title)
        photographer.leave()


def spelling(run, photographer):
    run.tool("Check", "Spelling...")
    photographer.take("dictionary", "Select dictionary")
    keys("Return")
    photographer.take("spelling", "Spelling and Grammar")


def search(run, photographer):
    keys("ctrl+h")
    for tab in ("Simple Search", "Wildcard Search", "Regular Expression"):
        run.active("Tolvo Search")
        run.page(tab)
        photographer.take("search-" + tab.split()[0].lower(), "Tolvo Search")
        if tab == "Simple Search":
            keys("alt+m")  # the others then show all of theirs, too
            photographer.take("search-simple-other", "Tolvo Search")
    photographer.leave()
    keys("ctrl+f")
    run.active("Tolvo Search")
    run.click("Copy matches...")
    photographer.take("copy-matches", "Tolvo Search")
    keys("ctrl+f")
    run.page("Simple Search")
    keys("alt+e", "ctrl+a")
    type_text("the")
    run.click("Find All")
    photographer.take("results", "9 results found for")


def below(run, photographer):
    """The search below the text, which a run of its own has."""
    keys("ctrl+h")
    type_text("the")
    wait_for(lambda: run.shows("Replace with"), "the search")
    photographer.take("search-below", "Tolvo ")
    keys("Escape")


def line(run, photographer):
    keys("ctrl+g")
    photographer.take("go-to-line", "Go to line")


def sharing(run, photographer):
    run.click("More for PowerButtons")
    photographer.take_screen("more")
    keys("r", "Up", "Return")
    photographer.take("load-powerbutton", "Load a PowerButton")
    run.click("Load")
    run.main_is_active()
    run.click("More for PowerButtons")
    keys("s")
    photographer.take("share-powerbutton", "Share a PowerButton")


def undo_menu(run, photographer):
    keys("ctrl+u", "ctrl+l")
    run.click("Choose how far to undo")
    photographer.take_screen("undo-menu")
    keys("Escape")


def power_buttons(run, photographer):
    keys("ctrl+shift+1")
    photographer.take("powerbutton-new", "Edit PowerButton 1")
    run.click("Lists & Numbers", times=2)
    run.click("Bullet list...")
    photographer.take("powerbutton", "Edit PowerButton 1")
    keys("alt+i")
    photographer.take("icon", "Edit Button Icon")
    run.click("Choose symbol...")
    photographer.take("character", "Choose Symbol")


def choose_power_button(run, photographer):
    keys("ctrl+shift+2")
    run.active("Edit PowerButton 2")
    run.click("PowerButton steps", times=2)
    run.click("Run PowerButton...")
    run.click("Settings...")
    photographer.take("choose-powerbutton", "Choose PowerButton")


def options(run, photographer):
    run.click("Options")  # the key would swap the fonts, as the key that opened the editor counts as a right click
    for page in ("Display", "Extensions", "General", "Spelling"):
        run.active("Options")
        run.page(page)
        photographer.take("options-" + page.lower(), "Options")
    run.page("Display")
    run.click("Choose proportional font")
    photographer.take("font", "Choose font")
    keys("Escape")
    run.active("Options")
    run.page("Spelling")
    for provider, name, title in (("Hunspell", "language", "Select Language"),
                                  ("Microsoft Word", "quick-list", "Select Languages for Quick List")):
        run.click("Configure " + provider)
        photographer.take(name, title)
        if name == "language":
            run.click("Add Language...")
            photographer.take("add-language", "Add Language")
            keys("Escape")
            run.active(title)
        keys("Escape")
        run.active("Options")


    run.page("Spelling")
    run.click("Your own words...")
    run.active("Your Own Words")
    for word in "Tolvo", "clipboards", "wordwrap":
        type_text(word)
        keys("Return")
    photographer.take("own-words", "Your Own Words")
    for word in "Tolvo", "clipboards", "wordwrap":
        type_text(word)
        keys("alt+r")
    keys("Escape")
    run.active("Options")


def key_sheet(run, photographer):
    keys("ctrl+question")
    photographer.take("keys", "Keyboard shortcuts")


def about(run, photographer):
    run.click("About")
    photographer.take("about", "About Tolvo")
    run.click("Third-party software")
    photographer.take("third-parties", "Third-party software")


def box(run, photographer):
    keys("F1")
    photographer.take("box", "Tolvo")


def closing(run, photographer):
    keys("ctrl+End", "x", "alt+q")
    photographer.take("confirm-close", "Confirm close")


PARTS = (tools, finding, spelling, search, line, undo_menu, power_buttons, choose_power_button, options, sharing, key_sheet, about,
         box, closing, below)


def in_own_runs(parts, settings, environment, folder, suffix):
    """What begins with other settings."""
    for part, setting in ((below, ("Tolvo", "View", "SearchBelow", "1")),):
        if part in parts:
            settings.write(*setting)
            run = Tolvo(settings, **environment)
            part(run, Photographer(run, folder, suffix))
            run.kill()


def companions(settings, environment, folder, suffix):
    for name, title in ("Advisor", "Tips for Tolvo"), ("Tally", "Tolvo statistics"):
        run = Tolvo(settings, wait=False, program=name + ".exe", **environment)
        wait_for(lambda: title in " ".join(run.titles()), title)
        subprocess.run(["xdotool", "search", "--name", title, "windowactivate"], check=True)  # tips leave the keys elsewhere
        Photographer(run, folder, suffix).take(name.lower(), title)
        run.kill()


def main():
    folder, scale, troubles = sys.argv[1], sys.argv[2], 0
    parts = [part for part in PARTS if len(sys.argv) == 3 or part.__name__ in sys.argv[3:]]
    for theme in ("light", "dark"):
        settings = Settings()
        settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        environment = {"QT_SCALE_FACTOR": scale}
        if theme == "dark":
            with open(os.path.join(settings.folder, "kdeglobals"), "w", encoding="utf-8") as colours:
                colours.write(DARK)
            environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}
        set_clipboard(SAMPLE)
        suffix = f"{theme}-{int(scale) * 100}"
        run = Tolvo(settings, **environment)
        photographer = Photographer(run, folder, suffix)
        for part in parts:
            if part == below:
                continue
            try:
                part(run, photographer)
            except (AssertionError, subprocess.CalledProcessError) as trouble:
                troubles += 1
                print(f"{theme} {scale}: {part.__name__}: {trouble}", file=sys.stderr)
            if run.process.poll() is None:
                photographer.leave()
        run.kill()
        in_own_runs(parts, settings, environment, folder, suffix)
        if len(parts) == len(PARTS):
            companions(settings, environment, folder, suffix)
        settings.close()
    sys.exit(troubles > 0)


if __name__ == "__main__":
    main()
