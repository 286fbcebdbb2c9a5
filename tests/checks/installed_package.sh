#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# installed_package.sh BUILD-FOLDER WORK-FOLDER: installs what was built there into an empty place, moves it,
# and builds and runs a program of somebody else against it.
set -euo pipefail

build=$1
work=$2
rm -rf "$work"
mkdir -p "$work"
work=$(realpath "$work")
cmake --install "$build" --prefix "$work/first" >/dev/null
# An installed package works wherever it is put.
mv "$work/first" "$work/prefix"
if grep -rIl "$PWD" "$work/prefix/include" "$work/prefix/lib"; then
    echo "these installed files name the source tree" >&2
    exit 1
fi
cmake -S tests/cmake-consumer -B "$work/consumer" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$work/consumer"
"$work/consumer/consumer"
for program in "$work"/prefix/bin/*; do
    [[ -x "$program" ]] || continue
    if [[ "$(ldd "$program")" == *"not found"* ]]; then
        echo "$program: a library is not found" >&2
        exit 1
    fi
done
