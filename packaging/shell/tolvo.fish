# SPDX-License-Identifier: MIT
# Completion of tolvo for fish. What can be completed is asked of tolvo-pipe.
complete -c tolvo -f -a '(__fish_complete_suffix .tolvobutton)'
complete -c tolvo -l button -x -a '(tolvo-pipe --list-buttons 2>/dev/null)'
complete -c tolvo -l tool -x -a '(tolvo-pipe --complete (commandline -ct | string unescape) 2>/dev/null)'
complete -c tolvo -n 'string match -q -- "-*" (commandline -ct)' \
    -a "(tolvo --help | string replace -rf '^  (?:-., )?(--[a-z-]+)(?: [A-Z,]+)?  +(.*)' '\$1\t\$2')"
