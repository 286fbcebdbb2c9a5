#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-2.0-or-later
# fuzz/run.sh [SECONDS [TARGET...]]: builds the fuzz targets, makes their seeds and runs each for so
# long (60 seconds without a number). What is found stays in build/fuzz/found.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds="${1:-60}"
shift || true
targets=("$@")
[[ ${#targets[@]} -gt 0 ]] || targets=(json catalogue store photo record lumetra xmp lrtemplate pp3)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_seeds "${targets[@]/#/fuzz_}"
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_stack_use_after_return=1
export LSAN_OPTIONS="suppressions=$PWD/tests/support/lsan.supp:print_suppressions=0"
build/fuzz/bin/fuzz_seeds catalogue/presets.json catalogue/sample/sample.jpg build/fuzz/seeds
for target in "${targets[@]}"; do
    echo "== $target, $seconds seconds"
    mkdir -p "build/fuzz/corpus/$target" "build/fuzz/found" "build/fuzz/seeds/$target"
    [[ ! -d "fuzz/seeds/$target" ]] || cp fuzz/seeds/"$target"/* "build/fuzz/seeds/$target"
    "build/fuzz/bin/fuzz_$target" "build/fuzz/corpus/$target" "build/fuzz/seeds/$target" \
        -max_total_time="$seconds" -max_len=20000 -timeout=20 -rss_limit_mb=3000 \
        -artifact_prefix="build/fuzz/found/$target-" -print_final_stats=1 2>&1 |
        grep -vE '^#[0-9]+\s+(NEW|REDUCE|pulse|INITED|RELOAD)|^\s*NEW_FUNC' || exit 1
done
