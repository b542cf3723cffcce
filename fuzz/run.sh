#!/usr/bin/env bash
# fuzz/run.sh MINUTES [SEEDS]: fuzzes whole files for so long. Seeds are the files of a directory, the corpus of the tests
# without one. What is found stays in build/fuzz/found.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
minutes=${1:?how many minutes?}
seeds=${2:-${ORMO_CORPUS:-../shared/corpus}}
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
mkdir -p build/fuzz/corpus build/fuzz/found
find "$seeds" -type f -size -200k -exec cp -t build/fuzz/corpus {} +
target=build/fuzz/fuzz/fuzz_file

# Without instrumentation of the library the fuzzer would see its own target only.
counters=$("$target" -runs=1 2>&1 | sed -n 's/.*Loaded 1 modules *(\([0-9]*\) inline.*/\1/p')
[ "${counters:-0}" -ge 10000 ] || { echo "FAILED: the fuzzer sees ${counters:-no} branches"; exit 1; }
echo "the fuzzer sees $counters branches"
"$target" -max_total_time=$((minutes * 60)) -max_len=200000 -rss_limit_mb=2048 -timeout=10 -print_final_stats=1 \
    -artifact_prefix=build/fuzz/found/ build/fuzz/corpus
