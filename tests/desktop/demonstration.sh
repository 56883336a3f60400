#!/usr/bin/env bash
# Plays one whole run on a virtual X server and reports what happened: demonstration.sh PROGRAMS PICTURES
set -euo pipefail
bin=$1 pictures=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
mkdir -p "$pictures"
if [ "${3:-}" != inside ]; then exec "$here/on_display.sh" "$0" "$bin" "$pictures" inside; fi

store=$(mktemp -d)
trap 'rm -rf "$store"' EXIT
export TOLVO_SETTINGS=$store/settings.sqlite XDG_DATA_HOME=$store
wait_for() { for _ in $(seq 150); do "$@" >/dev/null 2>&1 && return 0; sleep 0.1; done; echo "waited in vain: $*" >&2; exit 1; }

printf '  the lord   of the rings \n  a story in   three volumes ' | xclip -selection clipboard -in
echo 'No display here: one run on a virtual X server.'
echo '--- clipboard before'
xclip -selection clipboard -out
echo
"$bin/tolvo" 2>/dev/null &
run=$!
wait_for xdotool search --name '^Tolvo [0-9]'
window=$(xdotool search --name '^Tolvo [0-9]' | head -1)
sleep 1
# The tips of the first run stand in a window of their own.
for tips in $(xdotool search --name 'Tip' 2>/dev/null); do xdotool windowclose "$tips" || true; done
xdotool windowactivate --sync "$window"
import -window "$window" "$pictures/run-1-start.png"
xdotool key ctrl+a ctrl+k
sleep 0.5
import -window "$window" "$pictures/run-2-tool.png"
xdotool key alt+d
wait "$run"
echo '--- clipboard after Initial Caps and Copy and Close (the program has ended)'
xclip -selection clipboard -out
echo
echo "--- pictures: $pictures/run-1-start.png, $pictures/run-2-tool.png"
