#!/usr/bin/env bash
# docs/make-tre-pages.sh PROGRAM FOLDER: one page per TRE, with what the program's describe says of it.
set -euo pipefail
program=$1
folder=$2
mkdir -p "$folder"
"$program" describe | sed -nE 's/^  ([A-Z0-9_]+) .*/\1/p' | sort -u | while read -r tag; do
    {
        printf '# TRE %s\n\n```\n' "$tag"
        "$program" describe "$tag"
        printf '```\n'
    } >"$folder/tre-$tag.md"
done
