#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Lists the functions of the libraries that no program calls.

    checks/unused_functions.py BUILD_FOLDER

The folder's programs must be linked with --gc-sections from code with a section for each function, and without inlining
across functions: then a function that nothing reaches is in a library but in no program. Functions that only tests, fuzz
targets or benchmarks call count as unused.
"""

import pathlib
import re
import subprocess
import sys

PROGRAMS = ["tolvo", "tolvo-pipe", "tolvo-network.so", "Advisor.exe", "Tally.exe", "Refresher.exe"]

# Functions that may stay without a caller, by their demangled names, and why.
ALLOWED = {
    "the toolkit's object compiler writes them for every class with signals":
        [r"::(qt_metacast|qt_metacall|metaObject|qt_static_metacall)\("],
    "names of the program's vocabulary; the program calls what they are made of":
        [r"::(CRegistryTool|CSpellingErrors|CSpellingSuggestions|CPowerButtonCollection)::",
         r"::CSearch::(replaceHex|(RegExp|Simple|Wildcard)(Search|Find|Replace)(All)?)\(",
         r"::cTextMethods::(TrimQuotes|KeywordSort|SortReverse|TrimStopChars|LTrimWhiteSpace|Sort|Count|Numsort|IsInList)\(",
         r"::frmMain::RunSearchAction\(", r"::SettingsStore::(GetSetting|sectionExists)\(",
         r"::(MidOrEmpty|errorAtPosition|SEARCH_CHARS_PUNCTUATION|fnLeaf|CToBStr)\("],
    "whoever walks the whole table: tests, fuzz targets, benchmarks":
        [r"::toolTable\("],
    "the user at the text box without a window":
        [r"::MemoryTextBox::(type|erase|report)\("],
}


def functions(file, kinds):
    """The mangled names of this system's functions that a file defines, of the kinds that nm shows by letters."""
    listing = subprocess.run(["nm", "--defined-only", str(file)], check=True, capture_output=True, text=True).stdout
    return {line.split()[2] for line in listing.splitlines() if re.match(rf"[0-9a-f]+ [{kinds}] \S*5tolvo", line)}


def main():
    build = pathlib.Path(sys.argv[1])
    called = set().union(*(functions(build / "bin" / program, "TtWw") for program in PROGRAMS))
    # T is what one source defines for all; W stands in headers, for whoever includes them.
    defined = set()
    for library in sorted(build.glob("*/**/libtolvo_*.a")):
        if "tests" not in library.relative_to(build).parts:
            defined |= {name for name in functions(library, "T") if name not in called}
    names = subprocess.run(["c++filt"], input="\n".join(sorted(defined)), capture_output=True, text=True, check=True).stdout
    patterns = [pattern for reason in ALLOWED.values() for pattern in reason]
    unused = [name for name in names.splitlines() if not any(re.search(pattern, name) for pattern in patterns)]
    for name in unused:
        print(name)
    print(f"{len(unused)} functions without a caller")
    return 1 if unused else 0


if __name__ == "__main__":
    sys.exit(main())
