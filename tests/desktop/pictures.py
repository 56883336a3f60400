# SPDX-License-Identifier: MIT
"""Opens the windows of the real program one after another and saves a picture of each: pictures.py FOLDER SCALE"""

import os
import subprocess
import sys
import time

from desk import Atspi, Settings, Tolvo, keys, set_clipboard, wait_for

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

TOOLS = [("Spaces & Layout", ["Indent...", "Word wrap...", "Remove blank lines..."]),
         ("Lists & Numbers", ["Bullet list...", "Numbered list...", "Line numbers..."]),
         ("Check", ["Statistics", "Spelling..."])]


class Photographer:
    def __init__(self, folder, suffix):
        self.folder, self.suffix = folder, suffix

    def take(self, name):
        time.sleep(0.4)
        window = wait_for(lambda: subprocess.run(["xdotool", "getactivewindow"], capture_output=True,
                                                 text=True).stdout.strip(), "an active window")
        subprocess.run(["import", "-window", window, os.path.join(self.folder, f"{name}-{self.suffix}.png")], check=True)


def open_page(run, name):
    """Clicks a tab: the bus doesn't tell of a tab that it is showing."""
    tab = wait_for(lambda: run._named(lambda n: n.get_name() == name and n.get_role() == Atspi.Role.PAGE_TAB), name)
    run.click_on(tab)


def leave_two_windows():
    for _ in range(2):
        keys("Escape")
        time.sleep(0.5)


def tools(run, photographer):
    for category, names in TOOLS:
        run.click(category)
        time.sleep(1.5)
        photographer.take("main-" + category.split()[0].lower())
        for name in names:
            run.click(name)
            photographer.take(name.rstrip(".").lower().replace(" ", "-"))
            if name == "Spelling...":
                keys("Return")
                time.sleep(1.5)
                photographer.take("checking")
                keys("Escape")
                run.box_says("Spelling check complete")
            keys("Escape")
            time.sleep(0.3)


def search(run, photographer):
    keys("ctrl+h")
    photographer.take("search-simple-less")
    for tab in ("Simple Search", "Wildcard Search", "Regular Expression"):
        open_page(run, tab)
        photographer.take("search-" + tab.split()[0].lower())
    open_page(run, "Simple Search")
    keys("alt+m")
    photographer.take("search-more")
    keys("Escape")


def power_buttons(photographer):
    keys("ctrl+shift+1")
    photographer.take("powerbutton")
    keys("alt+i")
    photographer.take("icon")
    leave_two_windows()


def others(run, photographer):
    keys("ctrl+o")
    for tab in ("Display", "Extensions", "General", "Spelling"):
        open_page(run, tab)
        photographer.take("options-" + tab.lower())
    keys("Escape")
    run.click("About")
    photographer.take("about")
    keys("Escape", "ctrl+End", "x", "alt+q")
    photographer.take("confirm-close")
    keys("Escape")


def main():
    folder, scale = sys.argv[1], sys.argv[2]
    for theme in ("light", "dark"):
        settings = Settings()
        settings.write("Tolvo", "Preferences", "Show Tips at Startup", "0")
        environment = {"QT_SCALE_FACTOR": scale}
        if theme == "dark":
            with open(os.path.join(settings.folder, "kdeglobals"), "w", encoding="utf-8") as colours:
                colours.write(DARK)
            environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}
        set_clipboard(SAMPLE)
        run = Tolvo(settings, **environment)
        photographer = Photographer(folder, f"{theme}-{int(scale) * 100}")
        photographer.take("main")
        for part in (lambda: tools(run, photographer), lambda: search(run, photographer),
                     lambda: power_buttons(photographer), lambda: others(run, photographer)):
            try:
                part()
            except (AssertionError, subprocess.CalledProcessError) as trouble:
                print(f"{theme} {scale}: {trouble}", file=sys.stderr)
                leave_two_windows()
        run.kill()
        settings.close()


if __name__ == "__main__":
    main()
