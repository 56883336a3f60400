#!/bin/sh
# SPDX-License-Identifier: MIT
# One page of the manual as HTML: make_page.sh LOWDOWN PAGE.md PAGE.html
set -eu
title=$(sed -n '1s/^# //p' "$2")
"$1" -s -thtml --out-no-smarty -m "title: Tolvo: $title" -m 'css: manual.css' "$2" |
    sed -e 's/<html>/<html lang="en">/' -e 's/\(href="[a-z]*\)\.md"/\1.html"/g' >"$3"
