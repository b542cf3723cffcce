#!/usr/bin/env bash
# The program as a user meets it: exit codes, documents that stay whole, no GDAL behind it, few reads.
set -euo pipefail
tool=$(realpath "$1")
source_dir=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
corpus=${ORMO_CORPUS:-$source_dir/../shared/corpus}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

fail() {
    echo "FAILED: $*"
    failed=$((failed + 1))
}
# expect CODE COMMAND...: runs the command quietly and compares its exit code.
expect() {
    local wanted=$1 got=0
    shift
    "$@" >"$work/out" 2>"$work/err" || got=$?
    [ "$got" -eq "$wanted" ] || fail "exit code $got in place of $wanted: $*"
}

sample=$work/sample.ntf
"$(dirname "$tool")/../examples/ormo-make-sample" "$sample"

expect 0 "$tool" info "$sample"
grep -q "NITF02.10" "$work/out" || fail "info does not tell the version"
expect 0 "$tool" json "$sample"
python3 -c 'import json,sys
for line in sys.stdin: json.loads(line)' <"$work/out" || fail "json of the sample is no JSON"
expect 0 "$tool" describe
expect 0 "$tool" describe BLOCKA L_LINES
expect 1 "$tool" describe NOSUCH
expect 2 "$tool" json "$work/nothing.ntf"
grep -q "^$work/nothing.ntf: " "$work/err" || fail "an error line does not begin with the file name"
expect 2 "$tool" json "$work"
expect 2 "$tool" nonsense
expect 0 "$tool" property "$sample" nitf.version
grep -qx "NITF02.10" "$work/out" || fail "property does not print the bare value"
expect 0 "$tool" property "$sample"
grep -q "^image.category: .*\[image subheader field ICAT\]" "$work/out" || fail "property does not tell the source"
expect 1 "$tool" property "$sample" sensor.model.state
expect 1 "$tool" property "$sample" sun.elevation
grep -q "Did you mean sun.elevation.angle" "$work/err" || fail "property does not tell the key that is meant"
expect 1 "$tool" property "$sample" nitf.version 99
expect 2 "$tool" property
expect 2 "$tool" property "$work/nothing.ntf" nitf.version
"$tool" property --keys | cmp -s - "$source_dir/docs/properties.md" || fail "docs/properties.md is not what property --keys prints"
for command in $("$tool" --help | sed -n '/^Subcommands:/,/^$/p' | awk 'NF > 1 {print $1}'); do
    expect 0 "$tool" "$command" --help
    [ "$(grep -c "^  ormo-nitf $command" "$work/out")" -ge 2 ] || fail "the help of $command has no two examples"
    grep -q "^Exit codes: 0 " "$work/out" || fail "the help of $command does not tell its exit codes"
done
expect 2 "$tool" jsno "$sample"
grep -q "Did you mean json?" "$work/err" || fail "a mistyped command is not recognised"
expect 2 "$tool" extract "$sample" imag:0 -o "$work/none"
grep -q "Did you mean image?" "$work/err" || fail "a mistyped segment is not recognised"
expect 2 "$tool" extract "$sample" header -o "$work/none"
expect 0 "$tool" extract "$sample" text:0 -o "$work/text0"
expect 0 "$tool" extract "$sample" text 0 -o "$work/text"
cmp -s "$work/text" "$work/text0" || fail "text:0 is not text 0"
expect 1 "$tool" extract "$sample" text 9 -o "$work/text9"
expect 0 "$tool" cgm "$sample"
grep -q "^ENDMF" "$work/out" || fail "cgm does not print the clear text"
expect 0 "$tool" cgm --svg -o "$work/drawing.svg" "$sample"
xmllint --noout "$work/drawing.svg" || fail "the drawing of the sample is no XML"
expect 1 "$tool" cgm "$sample" 99
expect 2 "$tool" cgm "$work/nothing.ntf"
expect 0 "$tool" plugin
grep -q "ORMO_CSM_PLUGIN" "$work/out" || fail "plugin does not show the plug-in of this library"
grep -q "reason: .*SCI_ImageSupportDataLib.dll" "$work/out" || fail "plugin does not tell why a companion is absent"
expect 2 "$tool" plugin "$work/nothing.so"
expect 1 "$tool" plugin libresolv.so.2
example=$(dirname "$tool")/../examples
if [ -x "$example/ormo-example-host" ]; then
    expect 0 "$example/ormo-example-host" "$sample"
    grep -q "^ISD NITF2.1" "$work/out" || fail "the example host shows no ISD"
    expect 1 "$example/ormo-example-host" "$work/nothing.ntf"
    rpc=$corpus/po_39928_pan_0000000_chip_700_700_noICHIPB.nitf
    if [ -f "$rpc" ] && [ -f "$example/libormo_example_rpc.so" ]; then
        expect 0 "$example/ormo-example-host" "$rpc" "$example/libormo_example_rpc.so"
        grep -q "reference point .* is at line" "$work/out" || fail "the example plug-in makes no model"
        expect 0 "$tool" plugin "$example/libormo_example_rpc.so"
        grep -q "EXAMPLE_RPC00B" "$work/out" || fail "plugin does not show a loaded plug-in"
    fi
fi
expect 0 "$tool" preview "$sample" -o "$work/image.png"
[ "$(head -c 4 "$work/image.png" | tail -c 3)" = PNG ] || fail "preview writes no PNG"
expect 1 "$tool" preview "$sample" 99 -o "$work/none.png"
expect 2 "$tool" preview "$sample" -o "$work/no/such/directory.png"
cp "$sample" "$work/input.ntf"
expect 2 "$tool" xml -o "$work/input.ntf" "$work/input.ntf"
expect 2 "$tool" extract "$work/input.ntf" image 0 -o "$work/input.ntf"
cmp -s "$sample" "$work/input.ntf" || fail "-o destroys its input"
echo kept >"$work/target"
expect 1 "$tool" extract "$sample" image 99 -o "$work/target"
grep -qx kept "$work/target" || fail "a failed extract changes its target"
expect 2 "$tool" xml -o /dev/full "$sample"
"$tool" json "$sample" >/dev/full 2>/dev/null && fail "a full standard output is no error"
expect 2 "$tool" json "$work/absent"
python3 -c 'import json,sys; json.load(sys.stdin)["error"]["text"]' <"$work/out" || fail "a file that cannot be opened is no line"
mkfifo "$work/fifo"
expect 2 timeout 5 "$tool" info "$work/fifo"

ldd "$tool" | grep -q libgdal && fail "libgdal stands behind the program"
if [ -z "${ORMO_SANITIZED:-}" ] && command -v strace >/dev/null; then
    reads=$(strace -f -e trace=pread64 "$tool" json "$sample" 2>&1 >/dev/null | grep -c pread64 || true)
    segments=$("$tool" json "$sample" | python3 -c 'import json,sys; print(len(json.load(sys.stdin)["segments"]))')
    # One read per header, two for the data of overflow DESs at most, and one to identify the file.
    [ "$reads" -le $((segments + 4)) ] || fail "$reads reads for $segments headers"
    echo "program: $reads reads for $segments headers"
fi

check_documents() {
    local file=$1
    "$tool" xml -o "$work/doc.xml" "$file" || { fail "xml of $file"; return; }
    xmllint --noout --huge --schema "$source_dir/schemas/raster/ImageSupportDataNITF.xsd" "$work/doc.xml" 2>"$work/err" ||
        { fail "xml of $file is not valid"; head -n 3 "$work/err"; }
    "$tool" validate --xml "$file" >"$work/report.xml" || [ $? -eq 1 ] || fail "validate of $file"
    xmllint --noout --schema "$source_dir/schemas/raster/ValidationSummaryNITF.xsd" "$work/report.xml" 2>"$work/err" ||
        { fail "validation report of $file is not valid"; head -n 3 "$work/err"; }
    "$tool" info "$file" >/dev/null || fail "info of $file"
}

check_documents "$sample"
if [ -d "$corpus" ]; then
    count=0
    while IFS='|' read -r _ name _ _ _ _ state _; do
        name=$(echo "$name" | tr -d ' ')
        case "$state" in *good*) ;; *) continue ;; esac
        check_documents "$corpus/$name"
        count=$((count + 1))
    done < <(grep '^|' "$corpus/README.md" | tail -n +3)
    echo "program: documents of $count good files are whole"
else
    echo "program: the corpus is absent, only the sample was checked"
fi
[ "$failed" -eq 0 ] && echo "1 passed, 0 failed" || { echo "$failed checks failed"; exit 1; }
