#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# installed_package.sh BUILD-FOLDER WORK-FOLDER: installs what was built there into an empty place, moves it,
# and builds and runs a program of somebody else against it, and a module of somebody else for the editor.
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

# A module is built with the installed package alone, and the installed editor loads it: from the folder of the
# user, and from its own.
if [[ -x "$work/prefix/bin/lumetra-editor" ]]; then
    cp -r examples/editor-plugin "$work/module-sources"
    list_modules() {
        HOME="$work/home" QT_QPA_PLATFORM=offscreen "$work/prefix/bin/lumetra-editor" --modules
    }
    for prefix in "$work/home/.local" "$work/prefix"; do
        mkdir -p "$prefix"
        cmake -S "$work/module-sources" -B "$work/module" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" \
            -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
        cmake --build "$work/module"
        cmake --install "$work/module" >/dev/null
        modules=$(list_modules)
        module=$(grep '^exposure-panel' <<<"$modules" | cut -f 2)
        if [[ "$module" != "$prefix"/*/lumetra/plugins/libexposure-panel.so ]]; then
            echo "expected that the editor loads exposure-panel from below $prefix, found: $modules" >&2
            exit 1
        fi
        if ! grep -q '^lumetra-presets' <<<"$modules"; then
            echo "expected that the editor loads its own module too, found: $modules" >&2
            exit 1
        fi
        if [[ "$(ldd "$module")" == *"not found"* ]]; then
            echo "$module: a library is not found" >&2
            exit 1
        fi
        if ! grep -q "$work/prefix/" < <(ldd "$module"); then
            echo "$module: expected the libraries of $work/prefix" >&2
            exit 1
        fi
        rm "$module"
    done
fi
