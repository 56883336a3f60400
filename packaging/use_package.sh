#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The life of the package on a system that check_package.sh has made: installed, used by an ordinary user, purged.
set -euo pipefail
package=$1
desktop="xvfb openbox xclip xdotool shared-mime-info desktop-file-utils libglib2.0-bin hunspell-en-gb"
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

# The window of the command stays until it is closed, and complains of nothing: window_stays WHEN COMMAND...
window_stays() {
    as_user env XDG_RUNTIME_DIR=/home/somebody/run QT_QPA_PLATFORM=offscreen timeout 4 "${@:2}" >/tmp/said 2>&1 && code=0 || code=$?
    expect "the window stays $1" "124" "$code"
    expect "and nothing is complained of" "" "$(grep -v '^This plugin does not support' /tmp/said)" # offscreen, raise()
}
refusal() { as_user "$@" 2>&1 >/dev/null && echo "0" || echo "$?"; }

apt_get() { apt-get "$1" -y -qq --no-install-recommends "${@:2}" >/tmp/apt.log 2>&1 || { cat /tmp/apt.log; exit 1; }; }
packages() { dpkg-query -W -f '${db:Status-Status} ${Package}\n' | grep -c '^installed'; }

# The same package under an older version.
make_older() {
    dpkg-deb -R "$package" /tmp/older
    sed -i 's/^Version: .*/Version: 0.0.1/' /tmp/older/DEBIAN/control
    dpkg-deb --root-owner-group -b /tmp/older /tmp/older.deb >/dev/null
}

apt-get update -qq
useradd --create-home somebody
as_user mkdir -m 700 /home/somebody/run
everything >/tmp/before
before=$(packages)
apt_get install "$package"
version=$(dpkg-query -W -f '${Version}' tolvo)
echo "tolvo $version: package $(($(stat -c %s "$package") / 1024)) KiB, installed $(dpkg-query -W -f '${Installed-Size}' tolvo) KiB," \
    "$(($(packages) - before - 1)) packages come with it"
dpkg-query -L tolvo >/tmp/files

expect "a pipe" "a b" "$(printf 'b  \na\n' | as_user tolvo-pipe foTRA soALP 2>/dev/null | paste -s -d ' ')"
for program in tolvo tolvo-pipe /usr/libexec/tolvo/{Advisor,Refresher,Tally}.exe; do
    expect "$program --version" "${program##*/} $version" "$(as_user "$program" --version)"
done
expect "the manual has its pages" "8" "$(find /usr/share/tolvo/manual -name '*.html' | wc -l)"
expect "the checker of updates runs" "0" "$(as_user env /usr/libexec/tolvo/Refresher.exe /update /quiet; echo $?)"
window_stays "with neither dictionaries, sound player, notifications nor settings" tolvo

expect "a PowerButton that there can't be" 'tolvo: there is no PowerButton "9"; a number from 1 to 8 or a name is meant|2' \
    "$(refusal tolvo --button 9 | paste -s -d '|')"
expect "a tool that there isn't" 'tolvo: there is no tool "nonsense"; --list-tools shows them all|2' \
    "$(refusal tolvo --tool nonsense | paste -s -d '|')"
expect "no display" 'tolvo: there is no display, so there is no clipboard|1' "$(refusal tolvo --tool foTRA | paste -s -d '|')"
install -d -m 555 /tmp/sealed
expect "a pipe in a home that can't be written to" "a" "$(printf 'a  ' | as_user env HOME=/tmp/sealed tolvo-pipe foTRA 2>/dev/null)"
window_stays "in such a home" env HOME=/tmp/sealed tolvo

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

# A desktop with a dictionary, for what needs them.
apt_get install $desktop
expect "completion of a dictionary" "en_GB" "$(offers 'tolvo-pipe --spell en_G' tolvo-pipe --spell en_G)"
as_user cp /usr/share/tolvo/PowerButtons/mail.tolvobutton /home/somebody/
as_user cp /usr/share/tolvo/PowerButtons/mail.tolvobutton /home/somebody/plain
for file in mail.tolvobutton plain; do
    expect "the type of $file" "text/x-tolvobutton" \
        "$(as_user gio info -a standard::content-type "/home/somebody/$file" | sed -n 's/.*content-type: //p')"
done
expect "completion of a file" "/home/somebody/mail.tolvobutton" "$(offers 'tolvo /home/somebody/' tolvo /home/somebody/ | tr '|' '\n' | grep mail)"
expect "and of no other file" "" "$(offers 'tolvo /home/somebody/pl' tolvo /home/somebody/pl)"
expect "what opens it" "tolvo.desktop" "$(as_user gio mime text/x-tolvobutton | sed -n 's/^Default .*: //p')"
install -m 755 "$(dirname "$0")/use_clipboard.sh" /home/somebody/
as_user bash /home/somebody/use_clipboard.sh /home/somebody/mail.tolvobutton >/tmp/session 2>&1 && code=0 || { code=$?; cat /tmp/session; }
expect "a text is cleaned by what the entry in the menu starts, and by a PowerButton from a file" "0" "$code"

make_older
apt_get remove tolvo
apt_get install --allow-downgrades /tmp/older.deb
apt_get install "$package"
expect "the version after an older one" "$version" "$(dpkg-query -W -f '${Version}' tolvo)"
expect "the settings are those of before" "1" "$(as_user tolvo-pipe --list-buttons | wc -l)"
window_stays "with the settings of before" tolvo

apt_get purge --autoremove tolvo $desktop
everything >/tmp/after
expect "no file of the package is left" "" "$(while read -r file; do [ -d "$file" ] || [ ! -e "$file" ] || echo "$file"; done </tmp/files)"
expect "nothing bears its name" "" "$(find / -xdev -path /proc -prune -o -path /home -prune -o -path /root -prune -o \
    -path /tmp -prune -o -iname '*tolvo*' -print)"
echo "left on the system, with what the libraries of others leave: $(comm -13 /tmp/before /tmp/after | paste -s -d ' ')"
exit $((faults > 0))
