# SPDX-License-Identifier: MIT
# Completion of tolvo-pipe for fish. What can be completed is asked of tolvo-pipe itself.
complete -c tolvo-pipe -f -a '(tolvo-pipe --complete (commandline -ct | string unescape) 2>/dev/null)'
complete -c tolvo-pipe -l spell -x -a '(tolvo-pipe --list-dictionaries 2>/dev/null)'
complete -c tolvo-pipe -l button-file -r -F
complete -c tolvo-pipe -n 'string match -q -- "-*" (commandline -ct)' \
    -a "(tolvo-pipe --help | string replace -rf '^  (?:-., )?(--[a-z-]+)(?: [A-Z,]+)?  +(.*)' '\$1\t\$2')"
