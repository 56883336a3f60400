#!/usr/bin/env bash
# Runs a command on a virtual X server with a window manager and a message bus of its own.
#   on_display.sh [--screen 1280x1024x24] COMMAND...
set -eu
screen=1280x1024x24
if [ "${1:-}" = --screen ]; then screen=$2; shift 2; fi
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0
unset WAYLAND_DISPLAY
runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
export XDG_RUNTIME_DIR=$runtime
chmod 700 "$runtime"
# Without -noreset the server starts anew, and drops whoever is just coming, each time its last client leaves.
xvfb-run -a -s "-screen 0 $screen -dpi 96 -nolisten tcp -noreset" dbus-run-session -- bash -c '
    openbox --sm-disable >/dev/null 2>&1 &
    manager=$!
    # The window manager names itself before it takes care of windows; it lists them when it does. A window that comes
    # in between is never managed and gets no keys.
    ready() { xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q WINDOW; }
    for _ in $(seq 200); do ready && break; sleep 0.1; done
    ready || { echo "The window manager did not start." >&2; exit 1; }
    sleep 0.2
    set +e
    "$@"
    code=$?
    kill $manager 2>/dev/null
    exit $code' on_display "$@"
