#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The clipboard's way through the installed program, on a display of its own: what the entry in the menu starts, a
# PowerButton from a file, a command without a window. use_clipboard.sh FILE.tolvobutton
set -xeuo pipefail # what was done is shown after a failure
button=$1
export DISPLAY=:7
Xvfb "$DISPLAY" -screen 0 1280x800x24 -noreset 2>/dev/null &
display=$!
trap 'kill $display' EXIT
start=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' /usr/share/applications/tolvo.desktop)

copy() { xclip -selection clipboard -in >/dev/null 2>&1; }
paste() { timeout 5 xclip -selection clipboard -out; }
# wait_for WHAT COMMAND...: tries for twenty seconds.
wait_for() {
    for _ in {1..100}; do
        "${@:2}" >/dev/null 2>&1 && return
        sleep 0.2
    done
    echo "waited in vain for $1"
    exit 1
}
pastes() { [ "$(paste)" = "$1" ]; }
shows() { xdotool search --onlyvisible --name "$1" windowactivate --sync; }

wait_for "the display" xdotool getmouselocation
openbox 2>/dev/null &
printf 'b  \na  ' | copy
"$start" &
session=$!
wait_for "the window" shows '^Tolvo [0-9]'
sleep 1
xdotool key ctrl+p type 'trim trailing'
sleep 1
xdotool key Return
sleep 1
xdotool key alt+d
wait "$session"
wait_for "the clean text, instead of '$(paste)'" pastes $'b\na'

"$start" "$button" &
session=$!
wait_for "the offer to load the PowerButton" shows '^Load a PowerButton$'
sleep 1
xdotool key Return
wait_for "the PowerButton in the row" sh -c 'tolvo-pipe --list-buttons | grep -q .'
wait_for "the window" shows '^Tolvo [0-9]'
sleep 1
xdotool key alt+q
wait "$session"

printf '> I shall come  \n> tomorrow\n' | copy
"$start" --button 1
wait_for "the text without quoting marks, instead of '$(paste)'" pastes "$(printf '> I shall come  \n> tomorrow\n' | tolvo-pipe --button-file "$button" 2>/dev/null)"
