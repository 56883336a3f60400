#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A command without a window under a Wayland compositor that leaves a clipboard with its owner, so that Undo has something to
# do; then a search in the main window. The compositor shows nothing and refuses root.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
for program in sway wtype wl-copy wl-paste dbus-run-session; do
    command -v $program >/dev/null || { echo "SKIPPED: $program is not installed"; exit 0; }
done
if [ "${1:-}" != inside ]; then
    home=$(mktemp -d)
    trap 'rm -rf "$home"' EXIT
    user=()
    if [ "$(id -u)" = 0 ]; then
        chown nobody "$home"
        user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
        "${user[@]}" test -x "$TOLVO_BIN/tolvo" || { echo "SKIPPED: nobody else may read $TOLVO_BIN"; exit 0; }
    fi
    env -u DISPLAY -u WAYLAND_DISPLAY HOME="$home" XDG_RUNTIME_DIR="$home" LC_ALL=C.UTF-8 "${user[@]}" \
        dbus-run-session -- "$0" inside
    exit
fi
cd "$HOME"
echo 'xwayland disable' >config
WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 timeout 100 sway --config config >sway.log 2>&1 &
trap 'kill $(jobs -p) 2>/dev/null' EXIT
for _ in $(seq 100); do [ -S wayland-1 ] && break; sleep 0.1; done
export WAYLAND_DISPLAY=wayland-1 QT_QPA_PLATFORM=wayland QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
/usr/bin/python3 "$here/sway_story.py" || { cat sway.log; exit 1; }
