#!/usr/bin/env bash
# Installs the build and uses it as a stranger would: through find_package and through pkg-config; every public header
# compiles alone as C++17, and nothing but public classes is exported.
set -euo pipefail
build=$(realpath "$1")
source_dir=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/prefix" >/dev/null
sample=$work/sample.ntf
"$build/tests/sample/ormo-make-sample" "$sample"

cmake -S "$source_dir/tests/install" -B "$work/client" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/client" >/dev/null
"$work/client/client" "$sample" | grep -q "^NITF02.10, 1 image" || { echo "FAILED: client through find_package"; exit 1; }

# The first program of the README, as it stands there.
sed -n '/^```cpp$/,/^```$/p' "$source_dir/README.md" | grep -v '^```' >"$work/readme.cpp"
sed "s|client.cpp|$work/readme.cpp|" "$source_dir/tests/install/CMakeLists.txt" >"$work/CMakeLists.txt"
cmake -S "$work" -B "$work/readme" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/readme" >/dev/null || { echo "FAILED: the program of the README does not build"; exit 1; }
"$work/readme/client" "$sample" | grep -q "lines" || { echo "FAILED: the program of the README"; exit 1; }
"$work/readme/client" "$work/absent.ntf" >/dev/null 2>&1 && { echo "FAILED: the README's program opens nothing"; exit 1; }

# The package may be moved.
mv "$work/prefix" "$work/moved"
pc=$(dirname "$(find "$work/moved" -name ormo-csm.pc)")
export PKG_CONFIG_PATH=$pc
# shellcheck disable=SC2046
g++ -std=c++17 "$source_dir/tests/install/client.cpp" -o "$work/pc-client" $(pkg-config --cflags --libs ormo-csm)
LD_LIBRARY_PATH=$(dirname "$pc") "$work/pc-client" "$sample" | grep -q "^NITF02.10, 1 image" ||
    { echo "FAILED: client through pkg-config"; exit 1; }
[ ! -f "$pc/ormo-csm-gdal.pc" ] || pkg-config --libs ormo-csm-gdal | grep -q -- "-lormo_csm_gdal" ||
    { echo "FAILED: pkg-config does not know the GDAL library"; exit 1; }
mv "$work/moved" "$work/prefix"

# A host without the CSM API: nothing of it but three names of classes comes along.
echo '#include <ormo_nitf.h>
class TSMPlugin {}; class TSMError {}; class NITF_2_1_ISD {}; class des {}; class tre {};
static_assert(ORMO_CSM_VERSION_NUMBER >= 10000, "");
int main() { return sizeof(ORMO::SensorModel::CSM::Finding) == 0; }' >"$work/nitf-only.cpp"
g++ -std=c++17 -fsyntax-only -Wall -Wextra -Werror -I"$work/prefix/include/ormo-csm" "$work/nitf-only.cpp" ||
    { echo "FAILED: ormo_nitf.h needs the CSM API"; exit 1; }

# Inside another project the library alone is built; an archive of the sources may come without the tests.
mkdir "$work/outer" "$work/archive"
(cd "$source_dir" && tar --exclude=./build --exclude=./.git --exclude=./tests --exclude=./out -cf - .) | tar -xf - -C "$work/archive"
printf 'cmake_minimum_required(VERSION 3.25)\nproject(Outer LANGUAGES CXX)\nadd_subdirectory(%s ormo)\n' \
    "$work/archive" >"$work/outer/CMakeLists.txt"
cmake -S "$work/outer" -B "$work/outer/build" -G Ninja -DCMAKE_DISABLE_FIND_PACKAGE_GDAL=ON \
    -DCMAKE_DISABLE_FIND_PACKAGE_CLI11=ON -DCMAKE_DISABLE_FIND_PACKAGE_nlohmann_json=ON \
    -DCMAKE_DISABLE_FIND_PACKAGE_EXPAT=ON >"$work/log" 2>&1 ||
    { echo "FAILED: as a part of another project"; cat "$work/log"; exit 1; }
cmake -S "$work/archive" -B "$work/archive/build" -G Ninja >"$work/log" 2>&1 ||
    { echo "FAILED: an archive without tests"; cat "$work/log"; exit 1; }

"$work/prefix/bin/ormo-nitf" info "$sample" >/dev/null || { echo "FAILED: the installed program"; exit 1; }

# The Python package finds its libraries from where it lies.
python=$(find "$work/prefix" -type d -name ormo_nitf -printf '%h')
if [ -n "$python" ]; then
    PYTHONPATH=$python /usr/bin/python3 -c 'import sys, ormo_nitf
assert ormo_nitf.open(sys.argv[1]).images[0].pixels().shape == (1, 128, 128)' "$sample" ||
        { echo "FAILED: the installed Python package"; exit 1; }
fi

[ -f "$work/prefix/share/man/man1/ormo-nitf.1.gz" ] || { echo "FAILED: the manual page is not installed"; exit 1; }
[ -f "$work/prefix/share/bash-completion/completions/ormo-nitf" ] ||
    { echo "FAILED: the completion is not installed"; exit 1; }

# A CSM host that knows only the folder of plug-ins finds ours there, alone and beside the library itself.
plugin=$(find "$work/prefix" -path '*/csmplugins/libormo_csm.so')
if [ -x "$build/tests/csmhost/ormo_host_gnuxx14_loading" ]; then
    "$build/tests/csmhost/ormo_host_gnuxx14_loading" "$plugin" 2>/dev/null |
        diff "$source_dir/tests/csmhost/expected.txt" - || { echo "FAILED: the plug-in in its folder"; exit 1; }
    "$work/prefix/bin/ormo-nitf" plugin "$plugin" | grep -c ORMO_CSM_PLUGIN | grep -qx 1 ||
        { echo "FAILED: the plug-in is not registered once"; exit 1; }
fi

include=$work/prefix/include/ormo-csm
compile_alone() {
    local header
    for header in "$@"; do
        echo "#include \"$header\"" |
            g++ -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror -I"$include" -I"$include/csmapi" -x c++ - ||
            { echo "FAILED: $header alone"; return 255; }
    done
}
# The layer for programs of C++17 and later, with both compilers.
for compiler in g++ clang++; do
    for standard in c++17 c++20; do
        if command -v "$compiler" >/dev/null; then
            echo '#include <ormo/nitf.hpp>' | "$compiler" -std=$standard -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow \
                -Wconversion -Wsign-conversion -Wold-style-cast -Werror -I"$include" -x c++ - ||
                { echo "FAILED: ormo/nitf.hpp as $standard of $compiler"; exit 1; }
        fi
    done
done
# Hosts and plug-ins of the CSM API are older: its headers compile alone in every language from C++11 on.
compile_csmapi() {
    local standard=$1 header
    for header in "$include"/csmapi/*.h; do
        echo "#include \"$header\"" |
            g++ -std="$standard" -fsyntax-only -Wall -Wextra -Wpedantic -Werror -x c++ - ||
            { echo "FAILED: $header alone as $standard"; return 255; }
    done
}
export -f compile_alone compile_csmapi
export include
find "$include" -name '*.h' ! -path '*/csmapi/*' -print0 | xargs -0 -P "$(nproc)" -n 8 bash -c 'compile_alone "$@"' _
printf '%s\0' c++11 gnu++14 c++17 c++20 | xargs -0 -P "$(nproc)" -n 1 bash -c 'compile_csmapi "$@"' _

internal=$(grep -rlE '\bDetail(::| *\{)' "$include" || true)
[ -z "$internal" ] || { echo "FAILED: public headers that name internals: $internal"; exit 1; }
"$source_dir/tests/check-symbols.sh" "$plugin"
echo "1 passed, 0 failed"
