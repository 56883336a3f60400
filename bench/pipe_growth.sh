#!/usr/bin/env bash
# pipe_growth.sh BIN: how the time of tolvo-pipe grows with the text, and how it stands beside the shell's own tools.
exec python3 "$(dirname "${BASH_SOURCE[0]}")/pipe_growth.py" "$1/tolvo-pipe"
