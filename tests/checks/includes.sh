#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The layers' arrows point one way: apps -> plugin -> library -> platform <- host.
# A quoted include is resolved the way the build does it (the file's own folder, then the include roots of
# the layers); a layer may include a file of itself and of the layers listed for it, nothing else.
set -euo pipefail
source tests/checks/files.sh

declare -A may_include=(
    [platform]=""
    [library]="platform"
    [host]="platform"
    [plugin]="library platform host"
    [apps]="plugin library platform host"
)
layers=(platform library host plugin apps)

# What of the world outside the platform and the library may know.
allowed_outside='^(Q[A-Za-z]*|Qt[A-Za-z]*/.*|boost/.*|[a-z_]+|cxxabi\.h|dlfcn\.h|unistd\.h)$'
foreign='opencv|opencolorio|nlohmann|exiv2|lcms2'

# Prints the layer that holds what `file` includes as "name", nothing for a generated header.
layer_of_include() {
    local file=$1 name=$2 root
    if [[ -e "$(dirname "$file")/$name" ]]; then
        realpath --relative-to=. "$(dirname "$file")/$name" | cut -d/ -f1
        return
    fi
    for root in "${layers[@]}"; do
        if [[ -e "$root/$name" ]]; then
            echo "$root"
            return
        fi
    done
    # plugin/core and apps/cli are include roots of their own.
    for root in plugin/* apps/* host/*; do
        if [[ -e "$root/$name" ]]; then
            echo "${root%%/*}"
            return
        fi
    done
}

looked_at=0
for layer in "${layers[@]}"; do
    [[ -d "$layer" ]] || continue
    while read -r file; do
        case $file in *.h | *.cpp | *.h.in) ;; *) continue ;; esac
        looked_at=$((looked_at + 1))
        while IFS=: read -r line name; do
            target=$(layer_of_include "$file" "$name")
            if [[ -n "$target" && "$target" != "$layer" && " ${may_include[$layer]} " != *" $target "* ]]; then
                violation "$file:$line: $layer/ includes \"$name\" of $target/"
            fi
        done < <(grep -noP '^\s*#\s*include\s*"\K[^"]+' "$file" || true)
        [[ "$layer" == platform || "$layer" == library ]] || continue
        while IFS=: read -r line name; do
            if ! [[ "$name" =~ $allowed_outside ]]; then
                violation "$file:$line: $layer/ includes <$name>; only Qt, Boost and the standard library"
            fi
        done < <(grep -noP '^\s*#\s*include\s*<\K[^>]+' "$file" || true)
    done < <(tree_files "$layer")
done
while IFS= read -r hit; do
    violation "$hit: platform/ and library/ know nothing of it"
done < <(grep -rniE "$foreign" platform library || true)
conclude "$looked_at"
