#!/usr/bin/env bash
# The library builds against a CSM API SDK of the stock kind: exception specifications on every operation, getters of
# errors that are not const, records whose copies are shallow. Such an SDK is made here from the headers of csmapi/.
set -euo pipefail
source_dir=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/sdk/include/TSM" "$work/sdk/lib"

python3 - "$source_dir/csmapi" "$work/sdk/include/TSM" <<'EOF'
import pathlib, re, sys
for header in pathlib.Path(sys.argv[1]).glob("*.h"):
    text = header.read_text()
    text = re.sub(r"(TSMWarning\* \w+\([^;{]*?\)(?: const)?)( = 0)?;", r"\1 throw (TSMError)\2;", text, flags=re.S)
    text = re.sub(r"\(\) const \{ return the", "() { return the", text)
    text = re.sub(r"    \w*&? ?(\w+|operator=)\(const (tre|des|image|NITF_2_\d_ISD)& aOther\);\n", "", text)
    text = text.replace("virtual ~TSMPlugin();", "virtual ~TSMPlugin() {}")
    pathlib.Path(sys.argv[2], header.name).write_text(text)
EOF
grep -q "throw (TSMError) = 0" "$work/sdk/include/TSM/TSMSensorModel.h" || { echo "FAILED: no SDK was made"; exit 1; }
echo 'int g_base_library;' | g++ -shared -fPIC -x c++ - -o "$work/sdk/lib/libTSMAPI.so"

cmake -S "$source_dir" -B "$work/build" -G Ninja -DORMO_CSMAPI_ROOT="$work/sdk" >"$work/log" 2>&1 ||
    { echo "FAILED: configuring with an SDK"; cat "$work/log"; exit 1; }

check() {
    g++ -std=c++20 -fsyntax-only -fvisibility=hidden -Wall -Wextra -Werror -DORMO_CSM_BUILDING -DORMO_CSMAPI_EXTERNAL -I"$source_dir" \
        -I"$sdk" "$1" || { echo "FAILED: $1 with an SDK"; return 255; }
}
export -f check
export source_dir sdk=$work/sdk/include/TSM
find "$source_dir/isd" "$source_dir/foundation" -name '*.cpp' -print0 | xargs -0 -P "$(nproc)" -n 1 bash -c 'check "$1"' _
echo "1 passed, 0 failed"
