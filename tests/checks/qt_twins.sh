#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# qt_twins.sh BUILD5 BUILD6 WORK-FOLDER: installs what was built with Qt 5 and with Qt 6 into one place, where no file
# of one may lie over one of the other, and builds and runs a program of somebody else against each of them.
set -euo pipefail

work=$3
rm -rf "$work"
mkdir -p "$work"
work=$(realpath "$work")
prefix="$work/prefix"
cmake --install "$1" --prefix "$prefix" >/dev/null
find "$prefix" -type f -exec sha256sum {} + | sort -k 2 >"$work/first"
cmake --install "$2" --prefix "$prefix" >/dev/null
sha256sum --quiet --check "$work/first"
installed_twice=$(sort "$1/install_manifest.txt" "$2/install_manifest.txt" | uniq -d)
if [[ -n "$installed_twice" ]]; then
    echo "these files are installed by both: $installed_twice" >&2
    exit 1
fi

# try_package PACKAGE QT-LIBRARY: a consumer of PACKAGE runs, and is linked with that Qt and no other.
try_package() {
    local build="$work/$1" libraries
    cmake -S tests/cmake-consumer -B "$build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" -DLUMETRA_PACKAGE="$1" \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build "$build"
    "$build/consumer"
    libraries=$(ldd "$build/consumer" | grep -o 'libQt[56]Core' | sort -u)
    if [[ "$libraries" != "$2" ]]; then
        echo "$1: expected $2, found $libraries" >&2
        exit 1
    fi
}
try_package LumetraPresetsUtil libQt5Core
try_package LumetraPresetsUtilQt6 libQt6Core
