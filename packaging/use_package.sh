#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The life of the package on a system that check_package.sh has made: installed, used by an ordinary user, purged.
set -euo pipefail
package=$1
faults=0
expect() { # WHAT EXPECTED FOUND
    if [ "$2" = "$3" ]; then echo "ok      $1"; else
        echo "FAILED  $1: expected '$2', found '$3'"
        faults=$((faults + 1))
    fi
}
as_user() { runuser -u somebody -- env -i HOME=/home/somebody PATH=/usr/bin:/bin LC_ALL=C.UTF-8 "$@"; }
# Where programs keep what they can make anew is nobody's litter.
everything() { find / -xdev \( -path /proc -o -path /dev -o -path /var/cache -o -path /var/lib/apt -o -path /var/lib/dpkg \
    -o -path /var/log -o -path /tmp -o -path /home \) -prune -o -print | sort; }

# What bash offers at the end of a line: the line, then the words that bash sees in it.
offers() {
    as_user bash -c '
        . /usr/share/bash-completion/bash_completion
        compopt() { :; } # is for the line editor alone
        COMP_LINE=$1 COMP_POINT=${#1} COMP_TYPE=9
        shift
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
        . "/usr/share/bash-completion/completions/$1"
        _tolvo "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        printf "%s\n" "${COMPREPLY[@]}"' offers "$@" | paste -s -d '|'
}

apt-get update -qq
useradd --create-home somebody
everything >/tmp/before
apt-get install -y -qq --no-install-recommends "$package" >/tmp/install.log 2>&1 || { cat /tmp/install.log; exit 1; }
echo "installed: $(dpkg-query -W tolvo)"
version=$(dpkg-query -W -f '${Version}' tolvo)
dpkg-query -L tolvo >/tmp/files

expect "a pipe" "a b" "$(printf 'b  \na\n' | as_user tolvo-pipe foTRA soALP 2>/dev/null | paste -s -d ' ')"
for program in tolvo tolvo-pipe /usr/libexec/tolvo/{Advisor,Refresher,Tally}.exe; do
    expect "$program --version" "${program##*/} $version" "$(as_user "$program" --version)"
done
expect "the manual has its pages" "8" "$(find /usr/share/tolvo/manual -name '*.html' | wc -l)"
expect "the checker of updates runs" "0" "$(as_user env /usr/libexec/tolvo/Refresher.exe /update /quiet; echo $?)"
as_user mkdir -m 700 /home/somebody/run
as_user env XDG_RUNTIME_DIR=/home/somebody/run QT_QPA_PLATFORM=offscreen timeout 4 tolvo >/tmp/said 2>&1 && code=0 || code=$?
expect "the window stays until it is closed" "124" "$code"
expect "and nothing is complained of" "" "$(grep -v '^This plugin does not support' /tmp/said)" # offscreen, raise()

for page in tolvo tolvo-pipe tolvo-advisor tolvo-refresher tolvo-tally; do
    case $page in tolvo | tolvo-pipe) program=$page ;; *)
        name=${page#tolvo-}
        program=/usr/libexec/tolvo/${name^}.exe
        ;;
    esac
    as_user man "$page" >/tmp/page
    for option in $(as_user "$program" --help | grep -oE '^  (-h, )?(--?|/)[a-z-]+' | grep -oE '(--|/)[a-z-]+'); do
        expect "man $page tells of $option" "yes" "$(grep -q -- "$option" /tmp/page && echo yes)"
    done
done

expect "completion of a tool" "foTRA" "$(offers 'tolvo-pipe foTRA' tolvo-pipe foTRA)"
expect "completion of a tool after --tool" "ccUPP" "$(offers 'tolvo --tool ccUP' tolvo --tool ccUP)"
expect "completion of a setting" "Width=50|Justify=0|Hanging=0|Tab=True" "$(offers 'tolvo-pipe foWRP:' tolvo-pipe foWRP :)"
expect "completion in quotes" "foWRP:Width=9, Tab=True" \
    "$(offers "tolvo-pipe 'foWRP:Width=9, T" tolvo-pipe "'foWRP:Width=9, T")"
expect "completion of an option" "--list-buttons|--list-dictionaries|--list-tools" "$(offers 'tolvo-pipe --li' tolvo-pipe --li)"
expect "completion of a dictionary" "en_GB" "$(offers 'tolvo-pipe --spell en_G' tolvo-pipe --spell en_G)"

apt-get purge -y -qq --autoremove tolvo >/tmp/purge.log 2>&1 || { cat /tmp/purge.log; exit 1; }
everything >/tmp/after
expect "no file of the package is left" "" "$(while read -r file; do [ -d "$file" ] || [ ! -e "$file" ] || echo "$file"; done </tmp/files)"
expect "nothing bears its name" "" "$(find / -xdev -path /proc -prune -o -path /home -prune -o -path /root -prune -o \
    -path /tmp -prune -o -iname '*tolvo*' -print)"
echo "left on the system, with what the libraries of others leave: $(comm -13 /tmp/before /tmp/after | paste -s -d ' ')"
exit $((faults > 0))
