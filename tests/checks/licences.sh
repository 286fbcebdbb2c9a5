#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Every source file names its licence in an SPDX line at its top, and the one that its folder has.
set -euo pipefail
source tests/checks/files.sh

licence_of() {
    case $1 in
        host/* | plugin/* | apps/* | tools/* | tests/host/* | tests/plugin/* | tests/apps/* | tests/cli/* | \
            tests/editor/* | tests/tools/* | fuzz/* | benchmarks/host/*) echo GPL-2.0-or-later ;;
        *) echo MIT ;;
    esac
}

is_source() {
    case $1 in
        *.h | *.cpp | *.h.in | *.cmake | *.sh | */CMakeLists.txt | CMakeLists.txt | run | test | bench | \
            .ci/run | .clang-tidy) return 0 ;;
    esac
    return 1
}

looked_at=0
while read -r file; do
    is_source "$file" || continue
    looked_at=$((looked_at + 1))
    found=$(head -n 3 "$file" | grep -oP 'SPDX-License-Identifier: \K\S+' || true)
    wanted=$(licence_of "$file")
    # Build files and scripts of the GPL parts may be MIT too.
    if [[ "$found" == MIT && "$file" != *.h && "$file" != *.cpp ]]; then
        continue
    fi
    if [[ -z "$found" ]]; then
        violation "$file: no SPDX-License-Identifier line; expected $wanted"
    elif [[ "$found" != "$wanted" ]]; then
        violation "$file: SPDX-License-Identifier is $found; files here are $wanted"
    fi
done < <(tree_files .)
for licence in MIT GPL-2.0-or-later; do
    [[ -s "LICENSES/$licence.txt" ]] || violation "LICENSES/$licence.txt: the licence's text is missing"
done
conclude "$looked_at"
