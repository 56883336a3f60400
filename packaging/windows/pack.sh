#!/usr/bin/env bash
# Makes the installer and the zip of a finished build: pack.sh BUILD LIBRARIES...
#
# BUILD is the build folder; its bin holds the programs and their data. LIBRARIES are the folders where the DLLs that the
# programs need are looked for, the toolkit's first: beside its DLLs, or in ../plugins, lie its plugins.
# Results: BUILD/Tolvo-VERSION-setup.exe and BUILD/Tolvo-VERSION.zip. Needs makensis, zip and the cross objdump.
set -euo pipefail
export LC_ALL=C.UTF-8
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(cd "$1" && pwd)
shift
libraries=("$@")
objdump=x86_64-w64-mingw32-objdump
version=$(sed -n 's/^project(Tolvo VERSION \([0-9.]*\).*/\1/p' "$here/../../CMakeLists.txt")
files=$build/package/Tolvo
programs=(Tolvo.exe tolvo-pipe.exe Refresher.exe Advisor.exe Tally.exe tolvo-network.dll)
data=(Tools.dat Locales.txt FileExtensions.txt OtherWords.txt scrbar.wav PowerButtons Dictionaries manual)
plugins=(platforms/qwindows.dll styles/qwindowsvistastyle.dll tls/qschannelbackend.dll)

fail() { printf 'pack.sh: %s\n' "$*" >&2; exit 1; }

# find_in NAME FOLDER...: the first of the folders' files of that name, in any case.
find_in() {
    local name=$1 folder found
    shift
    for folder in "$@"; do
        found=$(find "$folder" -maxdepth 1 -iname "$name" -print -quit 2>/dev/null)
        [ -z "$found" ] || { printf '%s\n' "$found"; return 0; }
    done
    return 1
}

# The DLLs that a file asks for and that aren't the system's, and those that these ask for.
copy_needed() {
    local name library
    for name in $("$objdump" -p "$1" | sed -n 's/^\s*DLL Name: //p'); do
        find_in "$name" "$files" >/dev/null && continue
        library=$(find_in "$name" "${libraries[@]}") || continue
        cp "$library" "$files/"
        x86_64-w64-mingw32-strip --strip-unneeded "$files/$(basename "$library")"
        copy_needed "$library"
    done
}

rm -rf "$build/package"
mkdir -p "$files"
for name in "${programs[@]}"; do
    cp "$build/bin/$name" "$files/" || fail "$name is not built"
    x86_64-w64-mingw32-strip "$files/$name"
done
for name in "${data[@]}"; do cp -r "$build/bin/$name" "$files/"; done
rm -f "$files/Dictionaries/persdict.dat" # the user's own lies in the user's folder
cp "$here/qt.conf" "$here/../../LICENSE" "$files/"
"$here/licences.sh" "${libraries[0]}/.." "$files/Licences"
for name in "${programs[@]}"; do copy_needed "$files/$name"; done
for plugin in "${plugins[@]}"; do
    for folder in "${libraries[@]}"; do
        for file in "$folder/$plugin" "$folder/../plugins/$plugin"; do
            [ -f "$file" ] && [ ! -f "$files/$plugin" ] || continue
            install -D "$file" "$files/$plugin"
            x86_64-w64-mingw32-strip --strip-unneeded "$files/$plugin"
            copy_needed "$file"
        done
    done
    [ -f "$files/$plugin" ] || fail "the toolkit's plugin $plugin is missing"
done

list=$build/package/uninstall.nsh
(cd "$files" && find . -type f -printf 'Delete "$INSTDIR\\%P"\n' && find . -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR\\%P"\n') |
    tr / '\\' >"$list"
"$here/make_sidebar.py" "$build/package/sidebar.bmp"
(cd "$here" && makensis -V2 -WX -DVERSION="$version" -DFILES="$files" -DLIST="$list" -DSIDEBAR="$build/package/sidebar.bmp" \
    -DUNINSTALL_KEY='Software\Microsoft\Windows\CurrentVersion\Uninstall\Tolvo' \
    -DRESULT="$build/Tolvo-$version-setup.exe" tolvo.nsi)
rm -f "$build/Tolvo-$version.zip"
(cd "$build/package" && zip -qr "$build/Tolvo-$version.zip" Tolvo)
du -sh --apparent-size "$files" "$build/Tolvo-$version-setup.exe" "$build/Tolvo-$version.zip"
