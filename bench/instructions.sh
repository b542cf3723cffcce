#!/usr/bin/env bash
# bench/instructions.sh [--update]: the instructions that reading all metadata of each sample takes, which are the same on
# every run, beside those of bench/instructions.txt. Needs valgrind and the bench preset.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --build --preset bench --target ormo-compare >/dev/null
list=bench/instructions.txt
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for sample in header 1-image 10-images 100-images 999-images 25-tres overflow 500-texts 300-bands 6000-bands; do
    valgrind --tool=callgrind --callgrind-out-file="$work/out" --toggle-collect=ReadOnce \
        build/bench/bench/ormo-compare --sample "$sample" >/dev/null 2>&1
    now=$(sed -n 's/^summary: //p' "$work/out")
    before=$(awk -v name="$sample" '$1 == name { print $2 }' "$list" 2>/dev/null || true)
    echo "$sample $now" >>"$work/list"
    awk -v name="$sample" -v now="$now" -v before="${before:-$now}" \
        'BEGIN { printf "%-12s %12d %+7.1f %%\n", name, now, 100 * (now - before) / before }'
done
[ "${1:-}" != --update ] || cp "$work/list" "$list"
