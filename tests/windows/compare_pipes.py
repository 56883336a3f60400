#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares what two tolvo-pipes answer, byte for byte: compare_pipes.py OURS THEIRS...

OURS is this system's program, THEIRS the other's with what starts it. Both get every tool but the shuffling one on every
text of a list, the rows of tests/pipe/examples.txt, the lists that tolvo-pipe prints and a spelling. Prints what differs;
exits with 1 then.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parents[2]
BATCH_SIZE = 2000  # requests to one process
SHOWN = 20
RANDOM = {"lnSHU"}

TEXTS = [
    "",
    "a",
    "Hello world. and i am here.\r\nthe SECOND line, with  blanks  \r\n\r\nb@c.example and www.tolvo.example/x?y=1&z=%20",
    "one\ttwo\tthree\r\n1.\tfirst\r\n2.\tsecond\r\n\t\tdeep",
    "> quoted\r\n>> twice\r\n> > and so\r\n-- \r\nsigned",
    "z\r\nä\r\nA\r\na\r\nÄ\r\nß\r\nss\r\n10\r\n9\r\nZ\r\n-3,5\r\n",
    "na\u00efve caf\u00e9 \u2018quoted\u2019 \u201cdouble\u201d \u2026 \u2013 \u2014 \u00a0nbsp \u20ac \ufb01n \u01c4 \u0130I\u0131i",
    "e\u0301 o\u0308 \U0001f600 \U0001d518 \u05e9\u05dc\u05d5\u05dd \u4f60\u597d\uff01 \u30ab\u30bf\u30ab\u30ca",
    "=48=65=6C=6C=6F=\r\n =C3=A9 &amp; &lt;b&gt; &eacute; &#233; %C3%A9 SGVsbG8gd29ybGQ=",
    "lf only\nhere\n\nand cr\rhere",
    "a,b;\"c,d\"\r\n1,2;3\r\n\"x \"\"y\"\"\",z",
    " (a ) , b ;c !  d ?e.. f:g \"h \" i'm don't THE nasa USA 3rd 1st McDonald o'neill 12,345.67 2024-02-29 5pm",
]


class Pipe:
    """One program, with a settings file of its own."""

    def __init__(self, command):
        self.command = command
        self.folder = tempfile.TemporaryDirectory()
        self.environment = dict(os.environ, TOLVO_SETTINGS=self.folder.name + "/settings.sqlite", LC_ALL="C.UTF-8")

    def run(self, arguments, text):
        done = subprocess.run(self.command + arguments, input=text, capture_output=True, env=self.environment, timeout=600)
        return done.returncode, done.stdout


class Comparison:
    def __init__(self, ours, theirs):
        self.pipes = Pipe([ours]), Pipe(theirs)
        self.compared = 0
        self.different = []

    def note(self, what, answers):
        self.compared += 1
        if answers[0] != answers[1]:
            self.different.append((what, *answers))

    def calls(self, rows, view=lambda answer: answer):
        for arguments, text in rows:
            self.note(arguments, [view(pipe.run(arguments, text)) for pipe in self.pipes])

    def batch(self, requests):
        for start in range(0, len(requests), BATCH_SIZE):
            part = requests[start : start + BATCH_SIZE]
            text = "".join(json.dumps(request) + "\n" for request in part).encode()
            answers = [pipe.run(["--batch"], text)[1].splitlines() for pipe in self.pipes]
            for lines in answers:
                if len(lines) != len(part):
                    raise SystemExit(f"{len(lines)} answers to {len(part)} requests")
            for request, *pair in zip(part, *answers):
                self.note(request, pair)

    def tools(self):
        code, out = self.pipes[0].run(["--list-tools"], b"")
        tokens = re.findall(r"^([a-z]{2}[A-Z0-9]{3})\b", out.decode(), re.M)
        if code or len(tokens) < 40:
            raise SystemExit(f"only {len(tokens)} tools are listed")
        return [token for token in tokens if token not in RANDOM]


def first_suggestions(answer):
    """An answer to --spell with three suggestions for each word. Hunspell walks its words in an order that depends on the
    size of a long, so of those that are equally far the last may be others."""
    code, out = answer
    return code, [b",".join(line.split(b",")[:3]) for line in out.splitlines()]


def settings_rows():
    """The steps with settings, and the texts, of the tables beside the sources of the tests."""
    steps = set()
    for file in TOP.glob("tests/**/*examples.txt"):
        steps.update(re.findall(r'"([a-z]{2}[A-Z0-9]{3}:[^"\\]*)"', file.read_text(encoding="utf-8")))
    return sorted(steps)


def example_texts():
    """The first column of tests/text/examples.txt, as texts: "|" is a line end."""
    rows = (TOP / "tests/text/examples.txt").read_text(encoding="utf-8").splitlines()
    return [row.split("→")[0].replace("|", "\r\n") for row in rows if "→" in row and not row.startswith("#")]


def pipe_rows():
    for row in (TOP / "tests/pipe/examples.txt").read_text(encoding="utf-8").splitlines():
        columns = row.split("→")
        if len(columns) > 3 and row.startswith("["):
            yield json.loads(columns[0]), json.loads(columns[1])[0].encode()


def main():
    comparison = Comparison(sys.argv[1], sys.argv[2:])
    tokens = comparison.tools()
    requests = [{"text": text, "steps": [token]} for text in TEXTS for token in tokens]
    requests += [{"text": text, "steps": [token], "selStart": 1, "selLength": 5} for text in TEXTS for token in tokens]
    requests += [{"text": text, "steps": [step]} for text in TEXTS for step in settings_rows()]
    examples = example_texts()
    requests += [{"text": text, "steps": [tokens[i % len(tokens)]]} for i, text in enumerate(examples)]
    comparison.batch(requests)

    comparison.calls(pipe_rows())
    comparison.calls([(["--list-tools"], b""), (["--list-buttons"], b""), (["--help"], b""), (["--version"], b""),
                      (["ccUPP"], b"bad \xff byte"), (["--raw", "ccUPP"], "é\r\n\n\r".encode()),
                      (["ccUPP"], ("line\n" * 20000).encode()), (["--spell", "xx_XX"], b"a")])
    spelling = b"Teh colour of recieve\nand naive wordz, isn't it\n"
    comparison.calls([(["--spell", "en_GB"], spelling), (["--spell", "en_US"], spelling)], first_suggestions)

    for what, ours, theirs in comparison.different[:SHOWN]:
        print(f"{what}\n  ours:   {ours}\n  theirs: {theirs}")
    print(f"{comparison.compared} answers compared, {len(comparison.different)} differ")
    return 1 if comparison.different else 0


if __name__ == "__main__":
    sys.exit(main())
