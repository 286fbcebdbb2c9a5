#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# layout.sh WORK-FOLDER COMPILER OPTION...: plug-ins are built against the exported classes, so the order of
# their virtual operations, bases and fields must not move. Compares what g++ makes of them with the
# lists in tests/checks/layout: NAME.slots.txt holds the table of a class from its first operation
# on (a last line "..." leaves the rest free), NAME.fields.txt its bases and fields.
set -euo pipefail
source tests/checks/files.sh

work=$1
shift
lists=tests/checks/layout
mkdir -p "$work"
rm -f "$work"/*.class
"$@" -g -femit-class-debug-always -fdump-lang-class="$work/probe.class" -c "$lists/LayoutProbe.cpp" -o "$work/probe.o"
readelf --debug-dump=info "$work/probe.o" | awk -f tests/checks/layout_of_debug_info.awk >"$work/probe.debug"

# The fields and bases of a class, by its name without namespace.
fields_of() {
    awk -F'\t' -v class="$1" '$1 == class && $2 == "field" { print $3 }' "$work/probe.debug"
}

# The virtual table of a class. The dump tells a pure operation's place, the debug information its name.
slots_of() {
    awk -F'\t' -v class="$1" -f tests/checks/layout_of_class_dump.awk "$work/probe.debug" "$work/probe.class"
}

compare() {
    local expected=$1 class=$2 actual=$3
    grep -v '^#' "$expected" >"$work/expected"
    if [[ "$(tail -n 1 "$work/expected")" == ... ]]; then
        sed -i '$d' "$work/expected"
        head -n "$(wc -l <"$work/expected")" "$actual" >"$work/cut"
        actual="$work/cut"
    fi
    if ! diff -u --label "$expected" "$work/expected" --label "what $class has" "$actual" >&2; then
        violation "$class: differs from $expected"
    fi
}

looked_at=0
for expected in "$lists"/*.txt; do
    looked_at=$((looked_at + 1))
    class=$(basename "$expected" .txt)
    case $class in
        *.slots) slots_of "${class%.slots}" >"$work/actual" ;;
        *.fields) fields_of "${class%.fields}" >"$work/actual" ;;
    esac
    compare "$expected" "${class%.*}" "$work/actual"
done
conclude "$looked_at"
