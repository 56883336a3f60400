# SPDX-License-Identifier: MIT
"""pipe_growth.py PIPE: times tolvo-pipe on 4 MB and 16 MB of text, and the shell tool that a user would pick on 16 MB.
Growth compares the time above the start of the program; sorts may grow by n log n. Ends with 1 if a figure is over."""

import math
import os
import subprocess
import sys
import tempfile
import time

PAGE = ("The committee met on 12 March, at 10:30, in room 4 (second floor); see www.example.org/minutes.txt.\n"
        "Members don't read \"all of it\", e.g. the annex, but they're asked to... Isn't that so?\n\n"
        "    1. First item, with\ta tab and  two blanks\n* A bullet point, costing 300 &amp; more\n"
        "> An answer quoted from mail@example.com\niv) A Roman item; 'single quotes' and a closing line.   \n")
# Both are larger than the processor's caches: what stays in them is up to twice as fast, however linear a tool is.
SMALL, LARGE = 1 << 22, 1 << 24
GROWTH = 1.15

# A tool with settings runs with its defaults; these have more in them, and a search runs with settings only.
SETTINGS = {"lnPAT": "Drop=0, Pattern=\\bthe\\b, Mode=3, MatchCase=0, WholeWords=0, SpecialChars=0",
            "lnSRP": "Pattern=\\d+, Mode=3, MatchCase=0, WholeWords=0, SpecialChars=0, Order=2, Descending=0",
            "exCNT": "Pattern=\\w+, Mode=3, MatchCase=0, WholeWords=0, SpecialChars=0",
            "foWRP": "Width=60, Justify=0, Hanging=0, Tab=True",
            "edREP": "Mode=1, Find=the, MatchCase=0, Direction=D, WholeWords=0, SpecialChars=0, Replace=a, "
                     "SmartReplace=0, ReplaceAll=1"}
SORTS = {"soALP", "soNUM", "lnSRT", "lnSRP"}
SHELL = [("soALP", ["sort", "-f"]), ("soREV", ["tac"]), ("foWRP", ["fmt", "-w", "60"]), ("foT2S", ["expand"]),
         ("foTRA", ["sed", "s/[ \\t]*$//"]), ("ccUPP", ["tr", "a-z", "A-Z"])]


def step_of(token):
    return f"{token}:{SETTINGS[token]}" if token in SETTINGS else token


def tools(pipe, empty):
    """The steps of all tools that tolvo-pipe runs; those that need a window it refuses."""
    listed = subprocess.run([pipe, "--list-tools"], capture_output=True, text=True, check=True).stdout.splitlines()
    tokens = [line.split("\t")[0] for line in listed if "\t" in line]
    return [token for token in tokens if subprocess.run([pipe, step_of(token)], stdin=open(empty.name, "rb"),
                                                        capture_output=True).returncode != 2]


def text_file(size):
    file = tempfile.NamedTemporaryFile(suffix=".txt")
    lines = PAGE.splitlines(keepends=True)
    written, count = 0, 0
    while written < size:
        # Every line differs from the others, as in real texts.
        line = f"{(count * 7919) % 99991} {lines[count % len(lines)]}" if count % 3 == 0 else lines[count % len(lines)]
        written += file.write(line.encode())
        count += 1
    file.flush()
    return file


def run(command, file):
    """Runs a command once on a file; the seconds that a user waits and those that the processor works."""
    with open(file.name, "rb") as text:
        start = time.perf_counter()
        process = subprocess.Popen(command, stdin=text, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        _, _, usage = os.wait4(process.pid, 0)
        return time.perf_counter() - start, usage.ru_utime + usage.ru_stime


def waited(command, file):
    return min(run(command, file)[0] for _ in range(3))


def worked(pipe, step, small, large):
    """Processor time for both texts, which other programs disturb less than the time waited. They take turns: the
    machine's speed changes from one second to the next."""
    times = [[], []]
    for _ in range(6):
        for place, file, runs in ((0, small, 4), (1, large, 1)):
            times[place] += [run([pipe, step], file)[1] for _ in range(runs)]
    return [min(part) for part in times]


def main():
    pipe, over = sys.argv[1], False
    empty, small, large = text_file(0), text_file(SMALL), text_file(LARGE)
    start = min(run([pipe, "pbCLR"], empty)[1] for _ in range(20))
    print("\ntolvo-pipe: processor time for 4 MB and 16 MB, above the start of the program")
    for step in tools(pipe, empty):
        times = [max(seconds - start, 1e-4) for seconds in worked(pipe, step_of(step), small, large)]
        limit = GROWTH * (math.log(LARGE) / math.log(SMALL) if step in SORTS else 1)
        growth = times[1] / times[0] / (LARGE / SMALL)
        over |= growth > limit
        print(f"  {step:8} {times[0] * 1000:9.1f} ms {times[1] * 1000:9.1f} ms   growth {growth:5.2f} of "
              f"{limit:4.2f} {'OVER' if growth > limit else ''}")
    print("\ntolvo-pipe beside the shell's tools, 16 MB")
    for step, command in SHELL:
        ours, theirs = waited([pipe, step_of(step)], large), waited(command, large)
        over |= ours > theirs
        print(f"  {step:8} {ours * 1000:9.1f} ms   {' '.join(command):28} {theirs * 1000:9.1f} ms "
              f"{'OVER' if ours > theirs else ''}")
    return 1 if over else 0


if __name__ == "__main__":
    sys.exit(main())
