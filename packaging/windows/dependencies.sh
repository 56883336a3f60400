#!/usr/bin/env bash
# dependencies.sh [--kept]: builds what the programs stand on for Windows, from Debian's sources, and prints the folder that
# keeps it: $TOLVO_WINDOWS_CACHE or ~/.cache/tolvo-windows, and in it one folder for the compiler. A library is built again only
# when its version, the compiler or what is written here about it has changed. With --kept it builds nothing, and fails
# where something would have to be built. What was interrupted goes on where it stopped.
#
# The toolkit is shared, since the network module has to use the copy that the program has loaded; so is ICU, for the size
# of its data. The others are linked into the programs.
set -euo pipefail
shopt -s nullglob
export LC_ALL=C.UTF-8
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cache=${TOLVO_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/tolvo-windows}
triplet=x86_64-w64-mingw32
compiler=$(dpkg-query -W -f='${Version}' g++-mingw-w64-x86-64-posix)
prefix=$cache/$triplet-gcc-${compiler%%[.-]*}
export TOLVO_WINDOWS_PREFIX=$prefix
[ "${1:-}" = --kept ] || mkdir -p "$prefix/stamps" "$cache/work"

# Each: source package, the package of this system whose version is taken, options of CMake.
libraries=(
    "minizip libminizip-dev"
    "hunspell libhunspell-dev"
    "sqlite3 libsqlite3-dev"
    "pcre2 libpcre2-dev -DPCRE2_BUILD_PCRE2_8=OFF -DPCRE2_BUILD_PCRE2_16=ON -DPCRE2_BUILD_PCRE2GREP=OFF -DPCRE2_BUILD_TESTS=OFF"
    "googletest libgtest-dev"
    "icu libicu-dev"
    "qt6-base qt6-base-dev -DBUILD_SHARED_LIBS=ON -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF
        -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DFEATURE_tabletevent=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF
        -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_printsupport=OFF -DFEATURE_concurrent=OFF
        -DFEATURE_direct2d1_1=OFF -DFEATURE_pkg_config=OFF -DFEATURE_system_zlib=OFF"
)

# follow NAME: how far it is, once a second on a terminal, else in tenths. Everything goes into the log.
follow() {
    local name=$1 line done_ all tenth=-1
    while IFS= read -r line; do
        printf '%s\n' "$line"
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        done_=${BASH_REMATCH[1]} all=${BASH_REMATCH[2]}
        if [ -t 2 ]; then
            printf '\r== %s: %s of %s ' "$name" "$done_" "$all" >&2
        elif [ $((10 * done_ / all)) != "$tenth" ]; then
            tenth=$((10 * done_ / all))
            printf '== %s: %s of %s\n' "$name" "$done_" "$all" >&2
        fi
    done >>"$cache/work/$name.log"
    [ ! -t 2 ] || echo >&2
}

# configure_library NAME VERSION OPTION...: with the library's own CMake files, or those in libraries/. What CMake reads is
# copied beside the work, which goes on whatever happens to this checkout.
configure_library() {
    local name=$1 version=$2 tree=$cache/sources/$1 recipe=$cache/work/$1.recipe
    shift 2
    rm -rf "$cache/work/$name" "$recipe"
    mkdir "$recipe"
    cp "$here/toolchain.cmake" "$recipe/"
    if [ -d "$here/libraries/$name" ]; then
        cp "$here/libraries/$name"/* "$recipe/"
        tree=$recipe
    fi
    cmake -G Ninja -S "$tree" -B "$cache/work/$name" -DCMAKE_TOOLCHAIN_FILE="$recipe/toolchain.cmake" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=Release -DCMAKE_WARN_DEPRECATED=OFF \
        -DSOURCES="$cache/sources/$name" -DLIBRARY_VERSION="${version%%[-+]*}" "$@"
}

# build_library NAME VERSION STAMP OPTION...
build_library() {
    local name=$1 version=$2 stamp=$3 log=$cache/work/$1.log
    shift 3
    echo "== $name $version" | tee "$log" >&2
    if [ "$(cat "$cache/work/$name/stamp" 2>/dev/null)" != "$stamp" ]; then
        configure_library "$name" "$version" "$@" >>"$log" 2>&1 || { tail -n 40 "$log" >&2; exit 1; }
        echo "$stamp" >"$cache/work/$name/stamp"
    fi
    ninja -C "$cache/work/$name" | follow "$name" &&
        cmake --install "$cache/work/$name" >>"$log" 2>&1 ||
        { tail -n 40 "$log" >&2; exit 1; }
    install -Dm644 "$cache/sources/$name/debian/copyright" "$prefix/licences/$name"
    rm -rf "$cache/work/$name" "$cache/work/$name.recipe"
}

for library in "${libraries[@]}"; do
    read -rd '' -a words <<<"$library" || true
    name=${words[0]}
    wanted=$(dpkg-query -W -f='${source:Version}' "${words[1]}")
    stamp="$wanted $compiler $(echo "${words[@]:2}" | cat - "$here/toolchain.cmake" "$here/libraries/$name"/* | sha256sum)"
    [ "$(cat "$prefix/stamps/$name" 2>/dev/null)" != "$stamp" ] || continue
    [ "${1:-}" != --kept ] || exit 1
    version=$("$here/fetch.sh" "$cache/sources" "$name" "$wanted")
    build_library "$name" "$version" "$stamp" "${words[@]:2}"
    # Who uses the library statically has to say so.
    [ "$name" != pcre2 ] || sed -i 's/^Cflags: .*/& -DPCRE2_STATIC/' "$prefix/lib/pkgconfig/libpcre2-16.pc"
    echo "$stamp" >"$prefix/stamps/$name"
done
echo "$prefix"
