#!/usr/bin/env bash
# Runs every fuzz target from its kept inputs.
#
#   fuzz/run.sh FOLDER SECONDS        each target of the folder for so many seconds; new inputs are thrown away
#   fuzz/run.sh FOLDER SECONDS keep   the same; then a small set of all inputs with the same cover is kept
#
# The kept inputs of a target are fuzz/corpus/NAME.tar.xz. An input that breaks a target is left beside it, in FOLDER.
set -euo pipefail
export targets=$1 seconds=$2 keep=${3:-}
corpus=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/corpus
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export corpus work LC_ALL=C.UTF-8 ASAN_OPTIONS=allocator_may_return_null=1

one_target() {
    local name=$1 old=$work/$1/old new=$work/$1/new log=$work/$1/log
    mkdir -p "$old" "$new"
    [ ! -e "$corpus/$name.tar.xz" ] || tar -xJf "$corpus/$name.tar.xz" -C "$old"
    if ! "$targets/$name" "$new" "$old" -max_total_time="$seconds" -timeout=20 -artifact_prefix="$targets/" -print_final_stats=1 >"$log" 2>&1; then
        printf '%s failed:\n' "$name"
        tail -n 60 "$log"
        return 1
    fi
    printf '%-24s from %4d inputs, %s\n' "$name" "$(find "$old" -type f | wc -l)" \
        "$(sed -n 's/stat::number_of_executed_units: *\(.*\)/\1 runs/p' "$log")"
    [ -n "$keep" ] || return 0
    mkdir "$work/$name/kept"
    "$targets/$name" -set_cover_merge=1 -max_len=400 "$work/$name/kept" "$old" "$new" >"$log" 2>&1
    tar --sort=name --mtime=@0 --owner=0 --group=0 -cJf "$corpus/$name.tar.xz" -C "$work/$name/kept" .
}
export -f one_target

find "$targets" -name 'fuzz_*' -printf '%f\n' | sort | xargs -P "$(nproc)" -I{} bash -ec 'one_target {}'
