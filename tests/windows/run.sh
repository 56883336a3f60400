#!/usr/bin/env bash
# run.sh BUILD PIPE: the unit tests of a build for Windows under Wine, its tolvo-pipe beside this system's and with bad
# input, and the installer if it has been made. Needs a display for the tests that use Wine's clipboard.
set -euo pipefail
build=$(cd "$1" && pwd)
pipe=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export WINEPREFIX=$build/wine
export LC_ALL=C.UTF-8
say() { printf '== %s\n' "$*" >&2; }

# The toolkit wants Windows 10.
if [ ! -d "$WINEPREFIX/drive_c" ]; then
    say "Wine's folder in $WINEPREFIX"
    "$here/wine.sh" reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null 2>&1
fi

result=0
say "unit tests"
ctest --test-dir "$build" --output-on-failure --no-tests=error --label-exclude desktop || result=1
say "tolvo-pipe, beside this system's"
"$here/compare_pipes.py" "$pipe" "$here/wine.sh" "$build/bin/tolvo-pipe.exe" || result=1
say "bad input"
"$here/bad_input.py" "$build" || result=1
for setup in "$build"/Tolvo-*-setup.exe; do
    [ -f "$setup" ] || { say "No installer: its stories are left out"; continue; }
    say "installer"
    "$here/installer_stories.py" "$setup" || result=1
done
exit $result
