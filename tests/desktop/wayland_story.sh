#!/usr/bin/env bash
# One run on Wayland with a Russian keyboard: the text comes in, Copy and Close, and it can be pasted after the end; then a
# command without a window. A compositor stands as a window on a virtual X server, so that real keys reach it; it takes the
# server's layouts.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [ "${1:-}" != inside ]; then exec "$here/on_display.sh" "$0" inside; fi
for program in weston wl-copy wl-paste; do
    command -v $program >/dev/null || { echo "SKIPPED: $program is not installed"; exit 0; }
done
store=$(mktemp -d)
printf '[core]\nidle-time=0\n[shell]\nlocking=false\npanel-position=none\n' >"$store/weston.ini"
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$store"' EXIT
fail() {
    echo "FAILED: $*"
    xwininfo -root -tree
    xprop -root _NET_SUPPORTING_WM_CHECK _NET_ACTIVE_WINDOW
    cat "$store/weston.log"
    exit 1
}
wait_for() { for _ in $(seq 150); do "$@" >/dev/null 2>&1 && return 0; sleep 0.1; done; fail "waited in vain: $*"; }

setxkbmap ru,us
export WAYLAND_DISPLAY=tolvo-wayland
weston --backend=x11-backend.so --use-pixman --config="$store/weston.ini" --socket="$WAYLAND_DISPLAY" --width=1100 \
    --height=800 >"$store/weston.log" 2>&1 &
wait_for test -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY"
screen=
screen_takes_keys() {
    screen=$(xdotool search --onlyvisible --class weston | head -1)
    [ -n "$screen" ] && xdotool windowactivate --sync "$screen"
}
wait_for screen_takes_keys
copy_words() { printf 'words from wayland' | timeout 3 wl-copy; }
wait_for copy_words

export TOLVO_SETTINGS=$store/settings.sqlite XDG_DATA_HOME=$store
"$TOLVO_BIN/../tests/store_tool" "$TOLVO_SETTINGS" write Tolvo Preferences "Show Tips at Startup" 0
QT_QPA_PLATFORM=wayland "$TOLVO_BIN/tolvo" >"$store/tolvo.log" 2>&1 &
run=$!
started() { [ "$("$TOLVO_BIN/../tests/store_tool" "$TOLVO_SETTINGS" read Tolvo-Stats Usage Count)" = 1 ]; }
wait_for started
sleep 2 # for the window
# By their codes: Ctrl-A, Ctrl-U, Alt-K, which means nothing, Alt-D.
xdotool windowactivate --sync "$screen" key --delay 100 37+38 37+30 64+45
sleep 0.5
xdotool key 64+40
for _ in $(seq 100); do kill -0 "$run" 2>/dev/null || break; sleep 0.1; done
kill -0 "$run" 2>/dev/null && fail "the run did not end: $(cat "$store/tolvo.log")"
wait "$run" || fail "the run ended with $?: $(cat "$store/tolvo.log")"
pasted=$(timeout 10 wl-paste --no-newline || true)
[ "$pasted" = "WORDS FROM WAYLAND" ] || fail "pasted: '$pasted' $(cat "$store/tolvo.log")"
[ ! -s "$store/tolvo.log" ] || fail "the run wrote: $(cat "$store/tolvo.log")"
# A command needs some input: the key that is let go after it has started is enough.
QT_QPA_PLATFORM=wayland timeout 20 "$TOLVO_BIN/tolvo" --tool ccLOW >"$store/command.log" 2>&1 &
run=$!
for _ in $(seq 50); do
    kill -0 "$run" 2>/dev/null || break
    xdotool key Shift_L
    sleep 0.2
done
wait "$run" || fail "the command ended with $?: $(cat "$store/command.log")"
[ "$(timeout 10 wl-paste --no-newline)" = "words from wayland" ] || fail "the command: $(cat "$store/command.log")"
echo "passed: '$pasted' pasted after the end"
