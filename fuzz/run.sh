#!/usr/bin/env bash
# fuzz/run.sh MINUTES [TARGET...]: fuzzes the targets, all without names, two at a time and for so long in all. The inputs
# that were found worth keeping stay in build/fuzz/corpus/TARGET, what breaks something in build/fuzz/found/TARGET, and what
# libFuzzer says in build/fuzz/TARGET.log. Files of ORMO_CORPUS below 20 kB join the seeds of whole files.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
minutes=${1:?how many minutes?}
shift
targets=("$@")
[ $# -gt 0 ] || targets=(file header tre overflow cgm properties)
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzzers
build=build/fuzz
"$build/fuzz/make_seeds" "$build/seeds"
if [ -d "${ORMO_CORPUS:-}" ]; then
    find "$ORMO_CORPUS" -type f -size -20k -exec cp -t "$build/seeds/file" {} +
fi
# Small inputs say as much as large ones about most code, and are tried much faster.
declare -A longest=([file]=16000 [header]=4000 [tre]=4000 [overflow]=200 [cgm]=2000 [properties]=1000)
# The reader of properties files needs little of the library.
declare -A least=([properties]=1000)

fuzz() {
    local target=$1 program=$build/fuzz/fuzz_$1 corpus=$build/corpus/$1 found=$build/found/$1 counters
    mkdir -p "$corpus" "$found"
    # Without instrumentation of the library the fuzzer would see its own target only.
    counters=$("$program" -runs=1 2>&1 | sed -n 's/.*Loaded 1 modules *(\([0-9]*\) inline.*/\1/p')
    [ "${counters:-0}" -ge "${least[$target]:-10000}" ] || { echo "$target: FAILED: the fuzzer sees ${counters:-no} branches"; return 1; }
    local code=0
    "$program" -max_total_time=$((minutes * 60 * 2 / ${#targets[@]})) -max_len="${longest[$target]}" -rss_limit_mb=2048 \
        -timeout=10 -dict="$build/seeds/words.dict" -print_final_stats=1 -artifact_prefix="$found/" \
        "$corpus" "$build/seeds/$target" $(ls -d "fuzz/regressions/$target" 2>/dev/null) >"$build/$target.log" 2>&1 || code=$?
    echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$build/$target.log") executions," \
        "$(sed -n 's/^stat::average_exec_per_sec: *//p' "$build/$target.log") a second," \
        "$(grep -o 'cov: [0-9]*' "$build/$target.log" | tail -1 | cut -c6-) of $counters branches"
    [ $code -eq 0 ] || echo "$target: FAILED, see $build/$target.log and $found"
    return $code
}

# Two at a time; a failure ends neither the other one nor those behind it.
pids=()
failed=0
for target in "${targets[@]}"; do
    if [ "$(jobs -rp | wc -l)" -ge 2 ]; then
        wait -n || true
    fi
    fuzz "$target" &
    pids+=($!)
done
for pid in "${pids[@]}"; do
    wait "$pid" || failed=1
done
exit $failed
