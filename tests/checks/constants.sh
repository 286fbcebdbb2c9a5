#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Constants outside of functions are named in UpperCamelCase. The naming rule of clang-tidy looks at headers; this
# check looks at the sources, of which it would take a quarter of an hour.
set -euo pipefail
source tests/checks/files.sh

# A line without indentation that defines a constant; its name is what "=", "[", "{" or ";" follows. Members of a
# class, whose names stand behind a colon, are looked at in the header.
declaration='^(static |inline )*(constexpr|const) [^()={;]*[ &*]([A-Za-z_][A-Za-z0-9_]*)(\[[^]]*\])*( = |=|\{|;)'
upper_camel='^[A-Z]([A-Za-z0-9]*[a-z][A-Za-z0-9]*)?$'

sources=()
while read -r file; do
    [[ $file == *.cpp ]] && sources+=("$file")
done < <(tree_files platform library host plugin apps tools benchmarks examples fuzz)
while IFS=: read -r file line text; do
    [[ $text =~ $declaration ]] || continue
    name=${BASH_REMATCH[3]}
    [[ $name =~ $upper_camel ]] ||
        violation "$file:$line: expected a constant in UpperCamelCase, found \"$name\""
done < <(grep -nE '^(static |inline )*(constexpr|const) ' "${sources[@]}")
conclude "${#sources[@]}"
