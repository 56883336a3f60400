#!/usr/bin/env bash
# run.sh BIN: prints the figures of every benchmark beside their budgets. BIN is the folder of the built
# programs; the benchmarks stand in the folder "bench" beside it. Ends with 1 if a figure is over its budget.
set -uo pipefail
bin=$1
failed=0
for program in "$bin"/../bench/bench_*; do
    [ -x "$program" ] || continue
    "$program" || failed=1
done
exit $failed
