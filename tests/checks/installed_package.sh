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

# expect_libraries FILE: every library that FILE is linked with is found, and those of this tree are the installed ones.
expect_libraries() {
    local found
    found=$(ldd "$1")
    if [[ "$found" == *"not found"* ]]; then
        echo "$1: a library is not found" >&2
        exit 1
    fi
    if grep -E '(umetra|Zorvik)[^ ]* =>' <<<"$found" | grep -v "=> $work/prefix/" >&2; then
        echo "$1: expected the libraries of $work/prefix" >&2
        exit 1
    fi
}
while read -r binary; do
    expect_libraries "$binary"
done < <(find "$work"/prefix/bin "$work"/prefix/lib -type f \( -perm -u+x -o -name '*.so*' \))

# The host is the programs' own business: nothing to compile against, to link with or to ask CMake for.
if grep -rl 'lumetra-host' "$work/prefix/lib" --include='*.cmake' >&2 ||
        find "$work/prefix" -name 'liblumetra-host.so' -o -path '*/include/*' -name 'ThreadPool.h' | grep . >&2; then
    echo "these installed files offer the host to others" >&2
    exit 1
fi

# Desktops know files with looks, and open them with the editor.
if [[ -x "$work/prefix/bin/lumetra-editor" ]]; then
    XDG_DATA_DIRS="$work/prefix/share" update-mime-database "$work/prefix/share/mime"
    type=$(sed -n 's/^[0-9]*:\(.*\):\*\.lumetra$/\1/p' "$work/prefix/share/mime/globs2")
    if [[ -z "$type" ]] || ! grep -q "^MimeType=.*;$type;" "$work"/prefix/share/applications/*.desktop; then
        echo "expected a media type of *.lumetra that the editor opens, found: \"$type\"" >&2
        exit 1
    fi
fi

# The tool comes with its manual page and its completions.
if [[ -x "$work/prefix/bin/lumetra-presets" ]]; then
    for file in man/man1/lumetra-presets.1 bash-completion/completions/lumetra-presets \
            zsh/site-functions/_lumetra-presets fish/vendor_completions.d/lumetra-presets.fish; do
        if [[ ! -s "$work/prefix/share/$file" ]]; then
            echo "expected share/$file, found nothing" >&2
            exit 1
        fi
    done
fi

# A module is built with the installed package alone, and the installed editor loads it: from the folder of the
# user, and from its own.
if [[ -x "$work/prefix/bin/lumetra-editor" ]]; then
    # The template becomes a module of another name by the commands that it tells, and needs no path of its own.
    cp -r examples/plugin-template "$work/my-panel"
    (
        cd "$work/my-panel"
        sed -n 's/^    \(sed -i.*\|mv .*\)/\1/p' README.md >rename.sh
        bash -e rename.sh
        for compiler in g++ clang++; do
            for standard in 17 20; do
                cmake -B build -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_INSTALL_PREFIX="$work/template" \
                    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_STANDARD="$standard" -DCMAKE_SKIP_INSTALL_RPATH=ON \
                    -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Werror" >/dev/null
                cmake --build build
                cmake --install build >/dev/null
                rm -r build
            done
        done
    )
    found=$(HOME="$work/home" QT_QPA_PLATFORM=offscreen LUMETRA_PLUGIN_PATH="$work/template/lib/lumetra/plugins" \
        "$work/prefix/bin/lumetra-editor" --modules | grep '^my-panel')
    if [[ "$found" != "my-panel	$work/template/lib/lumetra/plugins/libmy-panel.so	1.0.0" ]]; then
        echo "expected that the editor loads the template as my-panel, found: $found" >&2
        exit 1
    fi

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
        expect_libraries "$module"
        rm "$module"
    done
fi
