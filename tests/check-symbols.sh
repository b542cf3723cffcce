#!/usr/bin/env bash
# tests/check-symbols.sh LIBRARY [--update]: what the library exports is what cmake/ormo_csm.symbols lists. A line that
# goes breaks programs that were linked before and asks for a new SOVERSION; new lines are added with --update.
set -euo pipefail
library=$(realpath "$1")
list=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../cmake/ormo_csm.symbols")

# Tables of types follow from the classes, thunks from their functions; which inline functions stand in the library is the
# compiler's choice.
exported() {
    nm -DC --defined-only "$library" | sed -nE 's/^[0-9a-f]+ [TDBR] //p' |
        grep -vE '^(vtable|typeinfo|typeinfo name|VTT) for |thunk to ' | LC_ALL=C sort -u
}

if [ "${2:-}" = --update ]; then
    exported >"$list"
    exit
fi
foreign=$(nm -D --defined-only "$library" | grep -cE ' _Z[A-Z]*St' || true)
[ "$foreign" -eq 0 ] || { echo "FAILED: $foreign instances of standard templates are exported"; exit 1; }
[ "$(exported | grep -c 'Detail::')" -eq 0 ] || { echo "FAILED: internals are exported"; exported | grep 'Detail::'; exit 1; }
[ -f "$list" ] || { echo "FAILED: no list of symbols"; exit 1; }
difference=$(diff "$list" <(exported) || true)
[ -z "$difference" ] || { printf 'FAILED: exported symbols (< gone, > new):\n%s\n' "$difference"; exit 1; }
