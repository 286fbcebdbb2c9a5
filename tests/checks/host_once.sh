#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# host_once.sh HOST BINARY...: no program or module has code or variables of the host beside the library HOST,
# so that a process has one pool of threads, one table of effects, one of each cache. What headers have inline
# is no copy: the host shows none of it.
set -euo pipefail
source tests/checks/files.sh

# Names of the functions (T) and of the variables (B, D, R) that a library shows, without the type information,
# which every user of a class may have.
shown() {
    nm -D --defined-only "$1" | awk '$2 ~ /^[BDRT]$/ && $3 !~ /^_ZT/ { print $3 }' | sort -u
}

# Names of everything that a file defines, shown or not, without a program's copies of variables of its libraries,
# to which the libraries' own uses lead.
defined() {
    local copies
    copies=$(readelf -rW "$1" | awk '$3 == "R_X86_64_COPY" || $3 == "R_AARCH64_COPY" { print $5 }' | sort -u)
    nm --defined-only "$1" | awk 'NF == 3 { print $3 }' | sort -u | comm -23 - <(printf '%s\n' "$copies")
}

host=$1
shift
looked_at=0
for binary in "$@"; do
    if ! readelf -dW "$binary" | grep -q "NEEDED.*$(basename "${host%.so*}").so"; then
        violation "$(basename "$binary"): expected that it loads $(basename "$host")"
    fi
    names=$(defined "$binary")
    looked_at=$((looked_at + $(wc -l <<<"$names")))
    while read -r name; do
        violation "$(basename "$binary") has a copy of $(c++filt "$name" | cut -c 1-160)"
    done < <(comm -12 <(shown "$host") - <<<"$names")
done
conclude "$looked_at"
