#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# symbols.sh NAMESPACE LIBRARY...: a shared library shows only names of ours, which are those in the namespace.
# Two may stand beside them, because an exception of the slider setting crosses the boundary: the type
# information of boost::exception and of its wrapper around std::invalid_argument.
set -euo pipefail
source tests/checks/files.sh

namespace=$1
shift
ours='((vtable|typeinfo|typeinfo name|VTT|construction vtable|guard variable) for |((non-)?virtual thunk|covariant return thunk) to )?'"$namespace::"
exceptions='typeinfo( name)? for boost::exception(_detail::.*)?$'

looked_at=0
for library in "$@"; do
    while read -r name; do
        looked_at=$((looked_at + 1))
        if ! [[ "$name" =~ ^($ours|$exceptions) ]]; then
            violation "$(basename "$library") shows ${name:0:160}"
        fi
    done < <(nm -DC --defined-only "$library" | sed -E 's/^[0-9a-f]+ . //')
done
conclude "$looked_at"
