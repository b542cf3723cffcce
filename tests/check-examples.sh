#!/usr/bin/env bash
# The examples over the header-only layer print what their users are to see.
set -euo pipefail
build=$(realpath "$1")
expected=$(realpath "$(dirname "${BASH_SOURCE[0]}")/examples")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/archive/below"
sample=$work/archive/below/whole.ntf
"$build/tests/sample/ormo-make-sample" "$sample"
head -c 3000 "$sample" >"$work/archive/short.ntf"
echo "no image" >"$work/archive/readme.txt"

failed=0
# check CODE NAME ARGUMENT: the exit code and the output of an example.
check() {
    local got=0
    "$build/examples/ormo-example-$2" "$3" >"$work/out" || got=$?
    [ "$got" -eq "$1" ] && diff "$expected/$2.txt" "$work/out" || { echo "FAILED: the example $2"; failed=1; }
}
check 0 tres "$sample"
check 0 geometry "$sample"
check 1 check "$work/archive"
[ $failed -eq 0 ] && ! "$build/examples/ormo-example-tres" "$work/absent.ntf" 2>"$work/out" && grep -q "^ERROR: " "$work/out"
