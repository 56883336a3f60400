#!/usr/bin/env bash
# Saves pictures of the windows of the real program, light and dark, at 100 % and 200 %: 
# pictures.sh PROGRAMS FOLDER [PART...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export TOLVO_BIN=$1 PYTHONDONTWRITEBYTECODE=1
pictures=$2
mkdir -p "$pictures"
for scale in 1 2; do
    "$here/on_display.sh" --screen $((1280 * scale))x$((1024 * scale))x24 \
        /usr/bin/python3 "$here/pictures.py" "$pictures" "$scale" "${@:3}"
done
echo "Pictures: $pictures"
