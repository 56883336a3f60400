#!/usr/bin/env bash
# licences.sh LIBRARIES FOLDER: puts into FOLDER the terms of all that the programs for Windows bring with them, as Debian
# gives them: of the libraries that dependencies.sh keeps (LIBRARIES is its folder), the compiler's runtime and the
# dictionaries; and the common licences that these name.
set -euo pipefail
kept=$1
folder=$2
common=/usr/share/common-licenses
mkdir -p "$folder"

index=$folder/index.txt
cat >"$index" <<'END'
Tolvo itself is free software under the terms in the file LICENSE beside the programs. It brings these, each under the terms
in the file of its name here. The libraries in files of their own (*.dll) can be exchanged for others of the same interface.
All were made from the sources of Debian (www.debian.org), of the versions named.

END
# A library of its own file, or linked into the programs.
for name in qt6-base icu hunspell minizip pcre2 sqlite3; do
    cp "$kept/licences/$name" "$folder/$name.txt"
    printf '%-32s %s\n' "$name" "$(cut -d' ' -f1 "$kept/stamps/$name")" >>"$index"
done
# The compiler's runtime, the system's interface, and the dictionaries, from packages of this system.
for package in gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev libz-mingw-w64-dev hunspell-en-gb hunspell-en-us; do
    cp "/usr/share/doc/$package/copyright" "$folder/$package.txt"
    # shellcheck disable=SC2016 # dpkg-query's own
    printf '%-32s %s\n' "$package" "$(dpkg-query -W -f='${Version}' "$package")" >>"$index"
done
printf '\nWhere they name a file in %s, it lies here.\n' "$common" >>"$index"
grep -oh "$common/[A-Za-z0-9.-]*[A-Za-z0-9]" "$folder"/*.txt | sort -u | while read -r licence; do
    [ ! -f "$licence" ] || cp "$licence" "$folder/"
done
