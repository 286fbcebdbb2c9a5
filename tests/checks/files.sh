# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# Source this in a check that runs in the root of the tree.

violations=0
violation() {
    echo "$*" >&2
    violations=$((violations + 1))
}

# Ends the check: fails when there was a violation, or when it looked at nothing.
conclude() {
    local looked_at=$1
    if [[ "$looked_at" -eq 0 ]]; then
        echo "nothing to check: the check looks in the wrong place" >&2
        exit 1
    fi
    echo "$looked_at looked at, $violations violations"
    [[ "$violations" -eq 0 ]]
}

# Every file of the tree below the given folders, without what a build leaves behind.
tree_files() {
    find "$@" \( -path ./build -o -path ./out -o -name .git -o -name .cache \) -prune -o -type f -print |
        sed 's|^\./||' | sort
}
