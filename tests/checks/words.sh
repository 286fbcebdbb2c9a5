#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The tree works on every machine: no file names a path of somebody's machine.
set -euo pipefail
source tests/checks/files.sh

machine_path='(^|[^A-Za-z0-9_.}])/(work|home|Users|root|mnt)/[A-Za-z0-9_.]'

texts=()
while read -r file; do
    case $file in
        *.h | *.cpp | *.in | *.cmake | *.sh | *.txt | *.md | *.json | *.yml | *.ui | *.ts | *.qrc | *.qss | \
            run | test | bench | .ci/run) texts+=("$file") ;;
    esac
done < <(tree_files .)
while IFS= read -r hit; do
    violation "$hit"
done < <(grep -nE "$machine_path" "${texts[@]}" || true)
conclude "${#texts[@]}"
