#!/usr/bin/env bash
# fetch.sh FOLDER PACKAGE VERSION: Debian's sources of a package, patched, in FOLDER/PACKAGE. Prints the version that they
# have: VERSION, or the next one that Debian's archives hand out where that one is missing. What is there stays until
# another VERSION is asked for. The system's own list of archives is left alone: apt reads one made here.
set -euo pipefail
package=$2
version=$3
mkdir -p "$1/apt/lists/partial" "$1/apt/cache/archives/partial"
cd "$1"
sources=$PWD

# with_archives FILE COMMAND...: apt-get or apt-cache on the archives that the file names.
with_archives() {
    "$2" -qq -o Dir::Etc::sourcelist="$sources/$1" -o Dir::Etc::sourceparts=/dev/null \
        -o Dir::State::lists="$sources/apt/lists" -o Dir::Cache="$sources/apt/cache" -o APT::Get::List-Cleanup=0 \
        -o APT::Sandbox::User="$(id -un)" "${@:3}"
}

# download VERSION: every archive is asked in turn, as a mirror may lack a file of one of them.
download() {
    local archive
    while read -r archive; do
        echo "$archive" >apt/one.list
        rm -rf download && mkdir download
        with_archives apt/one.list apt-cache showsrc "$package" 2>/dev/null | grep -qxF "Version: $1" || continue
        (cd download && with_archives apt/one.list apt-get source "$package=$1") >>fetch.log 2>&1 && return 0
    done <apt/archives.list
    return 1
}

if [ "$(cat "$package.asked" 2>/dev/null)" != "$version" ]; then
    rm -rf "$package" "$package.asked"
    : >fetch.log
    # The archives that this system installs Debian's packages from, for sources.
    apt-get indextargets --format '$(ORIGIN)|deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        sed -n 's/^Debian|//p' | sort -u >apt/archives.list
    with_archives apt/archives.list apt-get update
    for candidate in "$version" $(with_archives apt/archives.list apt-cache showsrc "$package" |
        sed -n 's/^Version: //p' | grep -vxF "$version" | sort -rVu); do
        download "$candidate" && break
        echo "The archives lack $package $candidate." >&2
        rm -rf download
    done
    [ -d download ] || { cat fetch.log >&2; exit 1; }
    mv download/*/ "$package"
    rm -rf download
    echo "$version" >"$package.asked"
fi
cd "$package"
dpkg-parsechangelog -S Version
