#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy over every source of the build folders and keeps its clean answers.

    checks/tidy.py CLANG_TIDY BUILD_FOLDER...

An answer is kept under a hash of everything that it depends on: the program's version, its rules, the compiler's command,
the source and every file that the source includes. A source without a kept answer is looked at; one with findings is looked
at every time. The build must be up to date, for the list of included files comes from it.
"""

import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

TOP = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "tolvo-checks" / "tidy"


def output(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def included_files(build):
    """The files that each object was made from, by the object's name."""
    files = {}
    target = None
    for line in output("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line and not line[0].isspace() and ": #deps" in line:
            target = files.setdefault(line.split(":", 1)[0], [])
        elif line.startswith("    ") and target is not None:
            target.append(line.strip())
    return files


def commands(build):
    """The build's commands as clang-tidy understands them: without the headers that gcc has compiled beforehand, and
    without ccache."""
    entries = json.loads((build / "compile_commands.json").read_text())
    for entry in entries:
        entry["command"] = re.sub(r"^\S*ccache | -Winvalid-pch| -include \S+cmake_pch\.hxx", "", entry["command"])
    (build / "tidy").mkdir(exist_ok=True)
    (build / "tidy" / "compile_commands.json").write_text(json.dumps(entries))
    return entries


class Hashes:
    """What stands for a file in a key: the contents of ours, name and size of a library's."""

    def __init__(self, build):
        self.build = build
        self.known = {}

    def of(self, name):
        path = pathlib.Path(os.path.normpath(self.build / name))
        if path not in self.known:
            if self.build in path.parents:
                self.known[path] = ""  # made from what counts already
            elif TOP in path.parents:
                self.known[path] = f"{path.relative_to(TOP)} {hashlib.sha256(path.read_bytes()).hexdigest()}"
            else:
                self.known[path] = f"{path} {path.stat().st_size}"
        return self.known[path]


def keys_of(build, wanted, rules):
    """Those of the wanted sources that a build folder has, and their keys."""
    files = included_files(build)
    hashes = Hashes(build)
    for entry in commands(build):
        source = os.path.relpath(entry["file"], TOP)
        if source not in wanted:
            continue
        made_from = files.get(re.search(r" -o (\S+)", entry["command"])[1])
        if not made_from:
            sys.exit(f"{source} is not built; build first")
        parts = [rules, entry["command"].replace(str(TOP), "")]
        parts += sorted(map(hashes.of, made_from))
        yield source, hashlib.sha256("\n".join(parts).encode()).hexdigest()


def look_at(program, build, source, key):
    """True if there is nothing to mend."""
    reply = subprocess.run([program, "--quiet", "-p", str(build / "tidy"), str(TOP / source)], capture_output=True, text=True)
    if reply.returncode == 0 and not reply.stdout.strip():
        (CACHE / key).touch()
        return True
    print(f"{source}:\n{reply.stdout}{reply.stderr if not reply.stdout.strip() else ''}", flush=True)
    return False


def main():
    program, *builds = sys.argv[1:]
    CACHE.mkdir(parents=True, exist_ok=True)
    # The sources for Windows are in no build here; ./dev windows-check has the compiler look at them.
    ours = set(output("git", "ls-files", "*.cpp", ":!fuzz", ":!*/windows/*", cwd=TOP).split())
    rules = output(program, "--version") + "".join((TOP / name).read_text() for name in (".clang-tidy", "tests/.clang-tidy"))
    found = {}  # a source of several build folders is looked at in the first of them
    for build in map(pathlib.Path, builds):
        found |= {source: (build, key) for source, key in keys_of(build.resolve(), ours - found.keys(), rules)}
    new = [(build, source, key) for source, (build, key) in found.items() if not (CACHE / key).exists()]
    print(f"clang-tidy: {len(found)} sources, {len(new)} to look at", flush=True)
    for source in sorted(ours - found.keys()):
        print(f"{source} is in no build")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        clean = list(pool.map(lambda item: look_at(program, *item), new))
    print(f"clang-tidy: {clean.count(False)} sources with findings", flush=True)
    return 1 if False in clean or ours - found.keys() else 0


if __name__ == "__main__":
    sys.exit(main())
