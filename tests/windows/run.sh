#!/usr/bin/env bash
# run.sh BUILD PROGRAMS: a build for Windows under Wine: its unit tests, its tolvo-pipe beside this system's, and stories with
# the program that its installer installs. PROGRAMS is the folder of this system's programs. Needs a display with a window
# manager, as tests/desktop/on_display.sh has it. Ends with a table of what was told.
set -euo pipefail
TOLVO_WINDOWS_BUILD=$(cd "$1" && pwd)
TOLVO_BIN=$(cd "$2" && pwd)
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export TOLVO_WINDOWS_BUILD TOLVO_BIN
export WINEPREFIX=$TOLVO_WINDOWS_BUILD/wine TOLVO_RESULTS=$TOLVO_WINDOWS_BUILD/results.tsv
export LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
unset QT_QPA_PLATFORM # is this system's
say() { printf '== %s\n' "$*" >&2; }

# note WHAT COMMAND...: runs a command, for a line of the table.
note() {
    local what=$1 word=passed
    shift
    say "$what"
    "$@" || { word=FAILED result=1; }
    printf '%s\tthe whole\t%s\n' "$what" "$word" >>"$TOLVO_RESULTS"
}

# The toolkit wants Windows 10.
if [ ! -d "$WINEPREFIX/drive_c" ]; then
    say "Wine's folder in $WINEPREFIX"
    "$here/wine.sh" reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null 2>&1
fi
# Fonts of this system in the place of those that every Windows has, and the same for tests without a screen.
for font in 'Arial=DejaVu Sans' 'Courier New=DejaVu Sans Mono' 'Segoe UI=Tahoma'; do
    "$here/wine.sh" reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${font%=*}" /d "${font#*=}" /f >/dev/null 2>&1
done
mkdir -p "$TOLVO_WINDOWS_BUILD/fonts"
ln -sf /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold,Mono}.ttf "$TOLVO_WINDOWS_BUILD/fonts/"

result=0
rm -f "$TOLVO_RESULTS"
QT_QPA_FONTDIR=$TOLVO_WINDOWS_BUILD/fonts \
    note unit_tests ctest --test-dir "$TOLVO_WINDOWS_BUILD" --output-on-failure --no-tests=error --label-exclude desktop
note compare_pipes "$here/compare_pipes.py" "$TOLVO_BIN/tolvo-pipe" "$here/wine.sh" "$TOLVO_WINDOWS_BUILD/bin/tolvo-pipe.exe"
for stories in "$here"/bad_input.py "$here"/*_stories.py; do
    say "$(basename "$stories")"
    python3 "$stories" || result=1
done
awk -F '\t' '{ printf "%-18s %-90s %s\n", $1, $2, $3 }' "$TOLVO_RESULTS"
exit $result
