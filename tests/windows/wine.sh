#!/usr/bin/env bash
# wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, in a world of its own: $WINEPREFIX, or a folder wine in
# build/windows. Its home lies there too, since Wine joins the user's folders to those of the home. TOLVO_WINDOWS_PREFIX
# names the folder where dependencies.sh keeps what the programs load.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$top/build/windows/wine}
export HOME=$WINEPREFIX/home
mkdir -p "$HOME"
# No entries in this system's menus, nothing asked for Mono and Gecko, no remarks on what Wine lacks.
export WINEDLLOVERRIDES="winemenubuilder.exe=d;mscoree=;mshtml=" WINEDEBUG=${WINEDEBUG:--all}

# Both spellings of a folder: drive Z is this system's root.
path=
for folder in "${TOLVO_WINDOWS_PREFIX:?names the kept libraries}/bin" \
    "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")" \
    "$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")"; do
    path+="Z:$(realpath "$folder" | tr / '\\');"
done
export WINEPATH=$path

wine=/usr/lib/wine/wine64
[ -x "$wine" ] || wine=wine
exec "$wine" "$@"
