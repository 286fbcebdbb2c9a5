#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# symbols.sh NAMESPACE LIBRARY...: a shared library shows only names of ours, which are those in the namespace.
# Two may stand beside them, because an exception of the slider setting crosses the boundary: the type
# information of boost::exception and of its wrapper around std::invalid_argument.
set -euo pipefail
source tests/checks/files.sh

own="${#1}$1"
shift
# Mangled names: demangled ones of templates begin with what they return.
ours="_Z(N[KOR]*|T[VISTC]N|T[hvc][^N]*NK?|GVN)$own"
exceptions='_ZT[IS]N5boost(9exceptionE|16exception_detail)'

looked_at=0
for library in "$@"; do
    while read -r name; do
        looked_at=$((looked_at + 1))
        if ! [[ "$name" =~ ^($ours|$exceptions) ]]; then
            violation "$(basename "$library") shows $(c++filt "$name" | cut -c 1-160)"
        fi
    done < <(nm -D --defined-only "$library" | awk '$2 != "t" { print $3 }')
done
conclude "$looked_at"
