# SPDX-License-Identifier: MIT
"""What a user at an X server does with any program: keys, the clipboard by xclip as the other program, and a settings store."""

import os
import shutil
import sqlite3
import subprocess
import tempfile
import time

PROGRAMS = os.environ["TOLVO_BIN"]
PATIENCE = float(os.environ.get("TOLVO_PATIENCE", "15"))


def wait_for(condition, what, patience=PATIENCE):
    """Waits until the condition gives something true and returns it. `what` is the name of it, or a function that says
    in the end how things are instead."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        try:
            result = condition()
        except Exception:  # what is asked fails for a moment while windows come and go
            result = None
        if result:
            return result
        time.sleep(0.05)
    raise AssertionError(f"waited {patience:.0f} s in vain for {what() if callable(what) else what}")


# Asked for these by name, newer X servers hold Alt with them.
CODES = {**{f"F{n}": str(66 + n) for n in range(1, 11)}, "KP_Add": "86"}


def by_code(stroke):
    """A stroke such as ctrl+F3 with the code of its key, if it has one here."""
    *modifiers, key = stroke.split("+")
    return "+".join([*modifiers, CODES.get(key, key)])


def keys(*names):
    """Presses keys, one after the other; a name may hold several, parted by blanks, that go down in one stroke."""
    for name in names:
        subprocess.run(["xdotool", "key", "--clearmodifiers", *map(by_code, name.split())], check=True)
        time.sleep(0.2 if "alt+" in name else 0.05)  # a mnemonic holds its button down for a tenth of a second


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)
    time.sleep(0.05)


def set_clipboard(text, target="UTF8_STRING"):
    owner = subprocess.Popen(["xclip", "-selection", "clipboard", "-target", target, "-in"], stdin=subprocess.PIPE,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    owner.communicate(text if isinstance(text, bytes) else text.encode(), timeout=20)


def get_clipboard():
    """The clipboard's text, None if nobody offers any."""
    for _ in range(2):
        try:
            reply = subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True, timeout=5)
        except subprocess.TimeoutExpired:
            continue
        return reply.stdout.decode() if reply.returncode == 0 else None
    raise AssertionError("the clipboard's owner does not answer")


def clipboard_becomes(text):
    wait_for(lambda: get_clipboard() == text, f"the clipboard to hold {text[:60]!r}, it holds {get_clipboard()!r:.80}")


class Settings:
    """The settings store of one user, looked at with SQLite itself."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="tolvo-user-")
        self.file = os.path.join(self.folder, "settings.sqlite")

    def close(self):
        shutil.rmtree(self.folder, ignore_errors=True)

    def environment(self):
        return {**os.environ, "TOLVO_SETTINGS": self.file, "XDG_DATA_HOME": self.folder, "XDG_CONFIG_HOME": self.folder}

    def programs(self, name):
        """The ids of this user's programs of a name."""
        return [int(program) for program in filter(str.isdigit, os.listdir("/proc"))
                if name in file_of(program, "cmdline") and self.file in file_of(program, "environ")]

    def write(self, tree, section, key, value):
        """Writes one value with the store itself."""
        subprocess.run([os.path.join(PROGRAMS, "..", "tests", "store_tool"), self.file, "write", tree, section, key, value],
                       check=True)

    def read(self, tree, section, key):
        reply = subprocess.run([os.path.join(PROGRAMS, "..", "tests", "store_tool"), self.file, "read", tree, section, key],
                               check=True, capture_output=True)
        return reply.stdout.decode()

    def is_sound(self):
        with sqlite3.connect(self.file) as database:
            return database.execute("pragma integrity_check").fetchone()[0] == "ok"


def file_of(process, name):
    """What the system reports of a process, empty if it is gone."""
    try:
        with open(f"/proc/{process}/{name}", errors="replace") as file:
            return file.read()
    except OSError:
        return ""
