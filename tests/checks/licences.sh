#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Every source file names its licence in an SPDX line at its top, and the one that its folder has.
set -euo pipefail
source tests/checks/files.sh

licence_of() {
    case $1 in
        plugin/api/* | examples/plugin-template/*) echo MIT ;;
        host/* | plugin/* | apps/* | tools/* | tests/host/* | tests/plugin/* | tests/apps/* | tests/cli/* | \
            tests/editor/* | tests/tools/* | tests/catalogue/* | fuzz/* | benchmarks/* | \
            examples/*) echo GPL-2.0-or-later ;;
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

sources=()
while read -r file; do
    ! is_source "$file" || sources+=("$file")
done < <(tree_files .)

while IFS=$'\t' read -r file found; do
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
done < <(awk '
    FNR == 1 && NR > 1 { print file "\t" found }
    FNR == 1 { file = FILENAME; found = "" }
    FNR <= 3 && match($0, /SPDX-License-Identifier: [^ ]+/) { found = substr($0, RSTART + 25, RLENGTH - 25) }
    END { print file "\t" found }' "${sources[@]}")

for licence in MIT GPL-2.0-or-later; do
    [[ -s "LICENSES/$licence.txt" ]] || violation "LICENSES/$licence.txt: the licence's text is missing"
done
conclude "${#sources[@]}"
