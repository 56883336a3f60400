#!/usr/bin/env bash
# Whether the sources for Windows compile, as far as can be seen without the libraries for it: their syntax, with the headers
# of this system's toolkit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
headers=$(pkg-config --cflags-only-I Qt6Widgets Qt6Gui Qt6Network | sed 's/-I/-isystem /g')
# shellcheck disable=SC2086
git ls-files -z '*/windows/*.cpp' ':!tests' | xargs -0 -n 1 -P "$(nproc)" x86_64-w64-mingw32-g++-posix -std=c++20 \
    -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Werror -DQT_NO_FOREACH -DQT_NO_CAST_TO_ASCII -I. $headers
