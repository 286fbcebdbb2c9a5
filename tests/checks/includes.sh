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

# Sets `target` to the layer that holds what `file` includes as "name"; to nothing for a generated
# header.
find_layer() {
    local file=$1 name=$2 root
    target=""
    if [[ -e "${file%/*}/$name" ]]; then
        target=$(realpath --relative-to=. "${file%/*}/$name")
        target=${target%%/*}
        return
    fi
    # plugin/core and apps/cli, for example, are include roots of their own.
    for root in "${layers[@]}" plugin/* apps/* host/*; do
        if [[ -e "$root/$name" ]]; then
            target=${root%%/*}
            return
        fi
    done
}

looked_at=0
for layer in "${layers[@]}"; do
    [[ -d "$layer" ]] || continue
    while IFS=: read -r file line include; do
        looked_at=$((looked_at + 1))
        name=${include#*[\"<]}
        if [[ "$include" == *\"* ]]; then
            find_layer "$file" "$name"
            if [[ -n "$target" && "$target" != "$layer" && " ${may_include[$layer]} " != *" $target "* ]]; then
                violation "$file:$line: $layer/ includes \"$name\" of $target/"
            fi
        elif [[ "$layer" == platform || "$layer" == library ]] && ! [[ "$name" =~ $allowed_outside ]]; then
            violation "$file:$line: $layer/ includes <$name>; only Qt, Boost and the standard library"
        fi
    done < <(grep -rnoE --include='*.h' --include='*.cpp' --include='*.h.in' \
        '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<][^">]+' "$layer" || true)
done
while IFS= read -r hit; do
    violation "$hit: platform/ and library/ know nothing of it"
done < <(grep -rniE "$foreign" platform library || true)
conclude "$looked_at"
