#!/usr/bin/env bash
# The program as a user meets it: exit codes, documents that stay whole, no GDAL behind it, few reads.
set -euo pipefail
tool=$(realpath "$1")
source_dir=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
corpus=${ORMO_CORPUS:-$source_dir/../shared/corpus}
work=$(mktemp -d)
chmod 711 "$work"  # other users run the program in it
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
"$(dirname "$tool")/../tests/sample/ormo-make-sample" "$sample"

expect 0 "$tool" info "$sample"
grep -q "NITF02.10" "$work/out" || fail "info does not tell the version"
expect 0 "$tool" json "$sample"
python3 -c 'import json,sys
for line in sys.stdin: json.loads(line)' <"$work/out" || fail "json of the sample is no JSON"
expect 0 "$tool" describe
expect 0 "$tool" describe BLOCKA L_LINES
expect 0 "$tool" describe NROWS
[ "$(grep -c '^NROWS (NITF 2' "$work/out")" -eq 2 ] || fail "describe does not know a header field in both versions"
expect 0 "$tool" describe ImageSegment
expect 0 "$tool" describe image IC
grep -q "C8 (JPEG 2000)" "$work/out" || fail "describe does not tell what the values of a header field mean"
expect 0 "$tool" describe SUN_EL
expect 1 "$tool" describe image NROW
grep -q "Did you mean NROWS?" "$work/err" || fail "describe does not tell the field that is meant"
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
expect 0 "$tool" cgm "$sample" 0
cp "$work/out" "$work/first"
expect 0 "$tool" cgm "$sample" graphic:0
cmp -s "$work/out" "$work/first" || fail "graphic:0 is not the first graphic"
expect 1 "$tool" cgm "$sample" symbol:0
expect 2 "$tool" preview "$sample" text:0 -o "$work/none.png"
expect 0 "$tool" property "$sample" image.category image:0
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
python3 - "$work" "$tool" "$sample" "$source_dir" <<'PYTHON' || fail "typed JSON, tables, dumps or differences are not as they should be"
import base64, csv, io, json, subprocess, sys
work, tool, sample, source = sys.argv[1:]

def run(*words, code=0):
    done = subprocess.run([tool, *words], capture_output=True, text=True)
    assert done.returncode == code, (words, done.returncode, done.stderr)
    return done.stdout

plain = json.loads(run("json", sample))
typed = json.loads(run("json", "--typed", sample))
assert [s["index"] for s in plain["segments"]] == [s["index"] for s in typed["segments"]]
image = next(s for s in typed["segments"] if s["kind"] == "image")
raw = dict(next(s for s in plain["segments"] if s["kind"] == "ImageSegment")["fields"])
assert image["fields"]["NROWS"] == int(raw["NROWS"])
assert image["fields"]["IDATIM"] == "%s-%s-%sT%s:%s:%sZ" % tuple(raw["IDATIM"][a:b] for a, b in
        ((0, 4), (4, 6), (6, 8), (8, 10), (10, 12), (12, 14))), image["fields"]["IDATIM"]
assert image["fields"]["TGTID"] is None and "IXSHD" not in image["fields"]
one = json.loads(run("json", "--segment", "image:0", "--tre", "BLOCKA", sample))
assert len(one["segments"]) == 1 and {t["tag"] for t in one["segments"][0]["tres"]} == {"BLOCKA"}

rows = list(csv.reader(io.StringIO(run("table", "--field", "image.IDATIM", "--field", "BLOCKA.L_LINES",
                                       "--field", "header.FTITLE", sample))))
assert rows[0] == ["file", "image.IDATIM", "BLOCKA.L_LINES", "header.FTITLE"], rows
assert rows[1][0] == sample and rows[1][1] == raw["IDATIM"] and rows[1][2].isdigit(), rows
line = json.loads(run("table", "-f", "ndjson", "--each", "image", "--field", "ImageSegment.NROWS", sample))
assert line == {"file": sample, "segment": "image 0", "ImageSegment.NROWS": int(raw["NROWS"])}, line
run("table", "--field", "image.NOSUCH", sample, code=2)
run("table", "--field", "nonsense", sample, code=2)

# The rows of a dump follow one another without a gap and show what stands in the file.
data = open(sample, "rb").read()
at = 0
for row in run("dump", sample, "header").splitlines()[2:]:
    words = row.split()
    if row.startswith("  TRE"):
        break
    offset, length = int(words[0]), int(words[1])
    assert offset == at, row
    at += length
    if '"' in row and "..." not in row:
        assert row[row.index('"') + 1:-1].encode() == data[offset:offset + length], row
assert at == int(dict(plain["segments"][0]["fields"])["HL"])

run("diff", sample, sample)
changed = bytearray(data)
fields = dict(plain["segments"][0]["fields"])
changed[39:44] = b"Other"
open(work + "/changed.ntf", "wb").write(changed)
lines = run("diff", sample, work + "/changed.ntf", code=1).splitlines()
assert len(lines) == 1 and lines[0].startswith("header FTITLE: "), lines

# Salvage: one broken subheader, the rest as it was.
text = next(s for s in plain["segments"] if s["kind"] == "TextSegment")
broken = bytearray(data)
broken[text["header_offset"]] = 0x58
open(work + "/broken.ntf", "wb").write(broken)
run("json", work + "/broken.ntf", code=2)
left = json.loads(run("json", "--salvage", work + "/broken.ntf", code=1))
for before, after in zip(plain["segments"], left["segments"], strict=True):
    if before["kind"] == "TextSegment":
        assert "error" in after and after["fields"] == [] and after["data_size"] == before["data_size"]
    else:
        assert before == after, before["kind"]
assert "text 0: not readable" in run("info", "--salvage", work + "/broken.ntf", code=1)
assert "58 45" in run("dump", "--salvage", work + "/broken.ntf", "text:0", code=1)

try:
    import jsonschema
except ImportError:
    sys.exit("python3-jsonschema is missing: packages.txt")
for name, options in (("file", []), ("typed", ["--typed"])):
    schema = json.load(open(source + "/schemas/json/" + name + ".schema.json"))
    jsonschema.Draft202012Validator.check_schema(schema)
    for code, file in ((0, sample), (2, work + "/nothing.ntf"), (1, work + "/broken.ntf")):
        words = ["json", *options, *(["--salvage"] if code == 1 else []), file]
        jsonschema.validate(json.loads(run(*words, code=code)), schema, jsonschema.Draft202012Validator)
schema = json.load(open(source + "/schemas/json/finding.schema.json"))
for code, file in ((2, work + "/nothing.ntf"), (2, work + "/broken.ntf"), (0, work + "/wrong.ntf")):
    if code == 0:  # a date of the 13th month, which is a warning
        bytes = open(sample, "rb").read()
        open(file, "wb").write(bytes[:29] + b"13" + bytes[31:])
    findings = [json.loads(line) for line in run("validate", "--json", file, code=code).splitlines()]
    assert findings, file
    for finding in findings:
        jsonschema.validate(finding, schema, jsonschema.Draft202012Validator)
PYTHON
mkdir -p "$work/many/deep"
for i in 1 2 3 4 5 6 7 8 9; do cp "$sample" "$work/many/deep/$i.ntf"; done
echo "no NITF" >"$work/many/other.txt"
expect 0 "$tool" json -r "$work/many" -j 3
[ "$(wc -l <"$work/out")" -eq 9 ] || fail "-r does not find every file"
python3 -c 'import json,sys
names = [json.loads(line)["file"] for line in sys.stdin]
assert names == sorted(names)' <"$work/out" || fail "results do not stand in the order of the files"
expect 2 "$tool" json "$sample" "$work/nothing.ntf" "$sample" -j 2
[ "$(wc -l <"$work/out")" -eq 3 ] || fail "a failing file hides the others"
tail -n 1 "$work/err" | grep -q "3 files: 2 without errors, 1 not read" || fail "there is no total"
printf '%s\n\n%s\r\n' "$sample" "$sample" >"$work/list"
expect 0 "$tool" info --files-from "$work/list"
[ "$(grep -c "^$sample" "$work/out")" -eq 2 ] || fail "--files-from does not take every line"
"$tool" info --files-from - <"$work/list" | cmp -s - "$work/out" || fail "--files-from - does not read standard input"
grep -q $'\033' "$work/out" && fail "colours stand in a file"
expect 2 "$tool" info
expect 2 "$tool" info -r "$work/no/such/directory"
expect 0 "$tool" manual
if command -v man >/dev/null; then
    man --warnings -l "$work/out" >/dev/null 2>"$work/err" || fail "the manual page cannot be shown"
    [ -s "$work/err" ] && fail "the manual page has faults"
fi
expect 0 "$tool" completion
bash -n "$work/out" || fail "the completion is no bash"
mkfifo "$work/fifo"
expect 2 timeout 5 "$tool" info "$work/fifo"

expect 0 "$tool" rules
grep -q '^PV-02 ' "$work/out" || fail "rules lists no PV-02"
expect 0 "$tool" rules pv-02
expect 1 "$tool" rules XX-99
expect 0 "$tool" rules --markdown
cmp -s "$work/out" "$source_dir/docs/rules.md" || fail "docs/rules.md is not what rules --markdown writes"
# A file whose image says more significant bits than it stores.
python3 - "$sample" "$work/bad.ntf" <<'END'
import subprocess, sys
data = bytearray(open(sys.argv[1], 'rb').read())
at = data.index(b'IM', 388)
abpp = data.index(b'VIS     08R', at) + 8
data[abpp:abpp + 2] = b'09'
open(sys.argv[2], 'wb').write(data)
END
expect 1 "$tool" validate "$work/bad.ntf"
grep -q 'ERROR  PV-02' "$work/out" || fail "validate does not name the rule"
grep -q $'\033' "$work/out" && fail "validate colours what is no terminal"
expect 1 "$tool" validate --quiet "$work/bad.ntf" "$sample"
[ "$(wc -l <"$work/out")" = 3 ] || fail "validate --quiet is not a line per file and one for all"
expect 1 "$tool" validate --json "$work/bad.ntf"
python3 -c 'import json,sys; [json.loads(line)["rule"] for line in sys.stdin]' <"$work/out" || fail "validate --json writes no JSON"
expect 0 "$tool" validate --ignore PV-02 "$work/bad.ntf"
expect 2 "$tool" validate --ignore XX-99 "$work/bad.ntf"
expect 2 "$tool" validate "$work/absent"

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
    "$tool" info "$file" >"$work/info" || fail "info of $file"
    if tail -n +2 "$work/info" | grep -qE '^.{101}'; then fail "info of $file has lines of more than 100 columns"; fi
}

for document in isd validation; do
    expect 0 "$tool" schema "$document" -o "$work/$document.xsd"
    cmp -s "$work/$document.xsd" "$source_dir"/schemas/raster/"$([ $document = isd ] && echo Image || echo Valid)"*.xsd ||
        fail "schema $document is another one"
done
mapfile -t files < <(find "$corpus" -type f -size -60M 2>/dev/null | sort)
python3 "$source_dir/tests/compare-xml-json.py" "$tool" "$sample" "${files[@]}" || fail "XML and JSON disagree"
mkdir "$work/controls"
python3 "$source_dir/tests/check-output.py" "$tool" "$sample" "$work/controls" || fail "control bytes of a file reach a terminal"
mkdir "$work/catalogue"
python3 "$source_dir/tests/check-catalogue.py" "$tool" "$sample" "$source_dir" "$work/catalogue" "$corpus" ||
    fail "the catalogue is not as it should be"
mkdir "$work/report"
charts=()
for name in 0000M033.GN3 U_1123A.NTF U_1130F.NTF i_3113g.ntf ns3101b.nsf; do
    [ -f "$corpus/$name" ] && charts+=("$corpus/$name")
done
python3 "$source_dir/tests/check-report.py" "$tool" "$sample" "$work/report" "${charts[@]}" ||
    fail "the page of report is not as it should be"
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
