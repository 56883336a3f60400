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
    head -c 20000 /dev/zero | tr "\0" x | fold -w 70 | xclip -selection clipboard -in >/dev/null 2>&1
    "$1/first_paint" 15 "$1/bare_text_box" "$2/tolvo"' first_paint "$benches" "$bin" >"$store/figures"
python3 - "$store/figures" <<'P'
import sys
bare, ours = [[float(figure) for figure in line.split()[1:]] for line in open(sys.argv[1])]
over = False
print("\nStart and memory, side by side")
for i, (name, unit, budget) in enumerate([("first picture", "ms", 1.25), ("peak memory", "MiB", 1.40)]):
    ratio = ours[i] / bare[i]
    over |= ratio > budget
    print(f"  {name:16} bare {bare[i]:8.1f} {unit}  tolvo {ours[i]:8.1f} {unit}  ratio {ratio:.2f} of {budget:.2f}"
          f"{'  OVER' if ratio > budget else ''}")
sys.exit(over)
P
