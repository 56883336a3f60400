#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs every example of the manual and compares it with what the page says; every tool has its place in tools.md under the name
and with the explanation that the catalogue gives, and every link leads to a page.

An example is a block of code marked "example": a tolvo-pipe command, the text that goes in, a line ---, the text that comes
out. A middle dot stands for a blank, a barred arrow for a tab. The commands run in the folder of the ready-made PowerButtons."""

import glob
import os
import re
import shlex
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
PIPE = os.path.join(os.environ["TOLVO_BIN"], "tolvo-pipe")
BLOCK = re.compile(r"^```example\n(.*)\n((?s:.*?))\n---\n((?s:.*?))\n```$", re.MULTILINE)


def run(arguments, text=""):
    """What tolvo-pipe writes for a user without settings."""
    with tempfile.TemporaryDirectory() as folder:
        return subprocess.run([PIPE, *arguments], input=text.encode(), stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True,
                              cwd=os.path.join(os.environ["TOLVO_BIN"], "PowerButtons"),
                              env={**os.environ, "TOLVO_SETTINGS": os.path.join(folder, "s"), "XDG_DATA_HOME": folder}).stdout.decode()


def typed(text):
    return text.replace("·", " ").replace("⇥", "\t")


def wrong_examples(name, page):
    for command, before, after in BLOCK.findall(page):
        try:
            found = run(shlex.split(command)[1:], typed(before))
        except subprocess.CalledProcessError as failure:
            found = failure.stderr.decode()
        if found != typed(after):
            yield f"{name}: {command}\n  the page says {typed(after)!r}\n  it gives      {found!r}"
    if page.count("```example") != len(BLOCK.findall(page)):
        yield f"{name}: an example that is not of the form"


def missing_tools(page):
    flat = " ".join(page.split())
    for line in run(["--list-tools"]).splitlines():
        if not line or line.startswith("#"):
            continue
        token, name, explanation = line.split("\t")
        entry = f"### {name.rstrip('.')} `{token}` {explanation.rstrip('.')}."
        if entry not in flat:
            yield f"tools.md: no {entry!r}"


def leads_somewhere(link, name, pages):
    """Whether a link of a page leads to a page or to a heading: "tools.md", "spelling.md#languages", "#languages"."""
    page, _, place = link.partition("#")
    text = pages.get(page or name)
    headings = re.findall(r"^#+ (.*)$", text or "", re.MULTILINE)
    return text is not None and (not place or place in [heading.lower().replace(" ", "-") for heading in headings])


def main():
    pages = {}
    for path in glob.glob(os.path.join(HERE, "*.md")):
        with open(path, encoding="utf-8") as file:
            pages[os.path.basename(path)] = file.read()
    faults = list(missing_tools(pages["tools.md"]))
    examples = 0
    for name, page in sorted(pages.items()):
        faults += wrong_examples(name, page)
        faults += [f"{name}: a link to {link}" for link in re.findall(r"\]\(([^)]*)\)", page)
                   if not leads_somewhere(link, name, pages)]
        examples += len(BLOCK.findall(page))
    print(*faults, f"{examples} examples", sep="\n")
    return 1 if faults or not examples else 0


if __name__ == "__main__":
    sys.exit(main())
