#!/usr/bin/env bash
# start_up.sh BIN: start and peak memory of tolvo beside a bare program with one text box, on a virtual X server.
set -euo pipefail
bin=$1
benches=$bin/../bench
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
store=$(mktemp -d)
trap 'rm -rf "$store"' EXIT
export TOLVO_SETTINGS=$store/settings.sqlite XDG_DATA_HOME=$store
# Without tips: their window is not what is measured.
"$benches/quiet_start" "$TOLVO_SETTINGS"
"$here/../tests/desktop/on_display.sh" bash -c '
    head -c 20000 /dev/zero | tr "\0" x | fold -w 70 | xclip -selection clipboard -in
    "$1/first_paint" 15 "$1/bare_text_box" "$2/tolvo"' first_paint "$benches" "$bin" |
    awk '
        { milliseconds[NR] = $2; mebibytes[NR] = $3 }
        function row(name, bare, ours, unit, budget) {
            printf "  %-26s bare %8.1f %s  tolvo %8.1f %s  ratio %.2f  budget %.2f%s\n", name, bare, unit, ours, unit,
                   ours / bare, budget, ours / bare > budget ? "  OVER" : ""
            if (ours / bare > budget) over = 1
        }
        END {
            print "Start and memory, side by side"
            row("first picture", milliseconds[1], milliseconds[2], "ms", 1.25)
            row("peak memory", mebibytes[1], mebibytes[2], "MiB", 1.40)
            exit over
        }'
