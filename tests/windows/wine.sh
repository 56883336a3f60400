#!/usr/bin/env bash
# wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, in a world of its own: $WINEPREFIX, or a folder wine in
# build/windows. Its home lies there too, since Wine joins the user's folders to those of the home. TOLVO_WINDOWS_PREFIX
# names the folder where dependencies.sh keeps what the programs load; if it is empty, they find only what lies beside them.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$top/build/windows/wine}
export HOME=$WINEPREFIX/home
mkdir -p "$HOME"
# No entries in this system's menus, nothing asked for Mono and Gecko, no remarks on what Wine lacks.
export WINEDLLOVERRIDES="winemenubuilder.exe=d;mscoree=;mshtml=" WINEDEBUG=${WINEDEBUG:--all}

# Wine keeps this system's settings of the toolkit from its programs, unless they are called so.
for name in "${!QT_@}"; do export "WINE$name=${!name}"; done

if [ -n "${TOLVO_WINDOWS_PREFIX?names the kept libraries}" ]; then
    # Drive Z is this system's root.
    path=
    for folder in "$TOLVO_WINDOWS_PREFIX/bin" \
        "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
        "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")"; do
        path+="Z:$(realpath "$folder" | tr / '\\');"
    done
    export WINEPATH=$path
fi

wine=/usr/lib/wine/wine64
[ -x "$wine" ] || wine=wine
exec "$wine" "$@"
