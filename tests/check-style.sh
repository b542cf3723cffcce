#!/usr/bin/env bash
# Every source keeps the format of .clang-format.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mapfile -t files < <(git ls-files '*.h' '*.cpp' 2>/dev/null || find . -path ./build -prune -o \( -name '*.h' -o -name '*.cpp' \) -print)
clang-format --dry-run --Werror "${files[@]}"
echo "format: ${#files[@]} files are as they should be"
