#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The files that describe the program to a desktop and to a packager: the validators have nothing to say, and all of them
speak of the version of CMakeLists.txt."""

import os
import re
import shutil
import subprocess
import sys

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
VALIDATORS = (["desktop-file-validate", "packaging/tolvo.desktop"],
              ["appstreamcli", "validate", "--strict", "--no-net", "packaging/tolvo.metainfo.xml"])
# From 1.0 on AppStream wants an element that 0.16 does not know; both read developer_name.
DEVELOPER = "--override=developer-name-tag-deprecated=pedantic,developer-info-missing=pedantic"
VERSIONS = {"debian/changelog": r"^tolvo \(([^)]*)\)",
            "CHANGELOG.md": r"^## \[([0-9.]+)\]",
            "packaging/tolvo.metainfo.xml": r'<release version="([^"]*)"'}


def first(file, pattern):
    with open(os.path.join(TOP, file), encoding="utf-8") as text:
        found = re.search(pattern, text.read(), re.MULTILINE)
    return found.group(1) if found else "none"


def output(command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def main():
    faults = []
    version = first("CMakeLists.txt", r"project\(Tolvo VERSION ([0-9.]+)")
    for file, pattern in VERSIONS.items():
        if first(file, pattern) != version:
            faults.append(f"{file}: its newest version is {first(file, pattern)}, not {version}")
    missing = [command[0] for command in VALIDATORS if not shutil.which(command[0])]
    for command in VALIDATORS:
        if command[0] in missing:
            continue
        if command[0] == "appstreamcli" and " 0." not in output([command[0], "--version"]):
            command = [*command, DEVELOPER]
        reply = subprocess.run(command, cwd=TOP, capture_output=True, text=True)
        if reply.returncode:
            faults.append(f"{' '.join(command)}:\n{reply.stdout}{reply.stderr}")
    for fault in faults:
        print(fault, file=sys.stderr)
    if missing and not faults:
        print("SKIPPED: not installed:", *missing)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
