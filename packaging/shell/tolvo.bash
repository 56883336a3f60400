# SPDX-License-Identifier: MIT
# Completion of tolvo and tolvo-pipe for bash. What can be completed is asked of tolvo-pipe.

_tolvo_steps() {
    local begun=$1 quote= prefix= word
    case $begun in
    [\'\"]*) quote=${begun:0:1} begun=${begun:1} ;;
    *) prefix=${begun%"${begun##*[:=]}"} begun=${begun//\\/} ;; # colon and equals sign begin a new word for bash
    esac
    while IFS=$'\t' read -r word _; do
        [[ $word == *:* ]] && compopt -o nospace
        if [[ -z $quote ]]; then
            word=${word// /\\ }
            word=${word#"$prefix"}
        fi
        COMPREPLY+=("$word")
    done < <(tolvo-pipe --complete "$begun" 2>/dev/null)
}

_tolvo_options() {
    mapfile -t COMPREPLY < <(compgen -W "$("$1" --help | grep -oE -- '(^|, | )--[a-z-]+' | grep -oE -- '--[a-z-]+' | sort -u)" -- "$2")
}

_tolvo() {
    local cur prev words cword
    _get_comp_words_by_ref -n := cur prev words cword
    COMPREPLY=()
    case $prev in
    --button)
        mapfile -t COMPREPLY < <(compgen -W "$(tolvo-pipe --list-buttons 2>/dev/null | cut -f 1)" -- "$cur")
        return
        ;;
    --tool)
        _tolvo_steps "$cur"
        return
        ;;
    --spell)
        mapfile -t COMPREPLY < <(compgen -W "$(tolvo-pipe --list-dictionaries 2>/dev/null | cut -f 1)" -- "$cur")
        return
        ;;
    --button-file)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        return
        ;;
    --select) return ;;
    esac
    if [[ $cur == -* ]]; then
        _tolvo_options "$1" "$cur"
    elif [[ ${1##*/} == tolvo-pipe ]]; then
        _tolvo_steps "$cur"
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$cur"; compgen -f -X '!*.tolvobutton' -- "$cur")
    fi
}

complete -F _tolvo tolvo tolvo-pipe
