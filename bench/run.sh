#!/usr/bin/env bash
# run.sh BIN: prints the figures of every benchmark beside their budgets. BIN is the folder of the built programs; the
# benchmarks stand in the folder "bench" beside it. Ends with 1 if a figure is over its budget.
set -uo pipefail
bin=$1
benches=$bin/../bench
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export LC_ALL=C.UTF-8
failed=0
for program in "$benches"/bench_*; do
    [ -x "$program" ] || continue
    QT_QPA_PLATFORM=offscreen "$program" || failed=1
done
[ -x "$here/pipe_growth.sh" ] && { "$here/pipe_growth.sh" "$bin" || failed=1; }
[ -x "$here/start_up.sh" ] && [ -x "$bin/tolvo" ] && { "$here/start_up.sh" "$bin" || failed=1; }
exit $failed
