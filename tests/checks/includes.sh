#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The layers' arrows point one way: apps -> plugin -> library -> platform <- host. Inside host, plugin and apps
# the rooms' arrows do so too.
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

# The rooms inside a layer, from the ground up: a room may include files of itself and of the rooms before it.
# A folder that is not listed belongs to the room that it lies in.
rooms=(
    host/threads host/storage host/image host/archive host/style host/userdata
    host/engine/base host/engine/kernels host/engine/pixels host/engine/stages host/engine/effects
    host/engine/gaussian host/engine/run
    host/photo/file host/photo/colour host/photo/metadata host/photo/jpeg host/photo/tiff host/photo/formats host/photo
    host/catalogue host/lut host/exporting host/exporting/recipes host/exporting/batch
    host/drawer/stack host/drawer/render host/drawer host/drawer/previews host/drawer/view host/workspace
    host/edits
    plugin/api plugin/core
    plugin/panel/appearance plugin/panel/importing plugin/panel/commands plugin/panel/grid plugin/panel/widgets plugin/panel
    plugin/adjust/edit plugin/adjust/controls plugin/adjust/curve plugin/adjust/wheel plugin/adjust/looks
    plugin/adjust/sections plugin/adjust
    apps/cli/console apps/cli/manual apps/cli/output apps/cli/presets apps/cli/photos apps/cli/reports apps/cli/commands apps/cli
    apps/editor/settings apps/editor/edit apps/editor/plugins apps/editor/session apps/editor/canvas
    apps/editor/appearance apps/editor/histogram apps/editor/actions apps/editor/strip apps/editor/many apps/editor/layers apps/editor/export apps/editor/window apps/editor
)
declare -A floor_of
for i in "${!rooms[@]}"; do floor_of[${rooms[i]}]=$i; done

# The Adjust panel is built as a third party's panel: of this layer and the ones below it may include these alone.
third_party=plugin/adjust
third_party_may='^(plugin/adjust|plugin/api|library|platform)/'

# What of the world outside the platform and the library may know.
allowed_outside='^(Q[A-Za-z]*|Qt[A-Za-z]*/.*|boost/.*|[a-z_]+|cxxabi\.h|dlfcn\.h|unistd\.h)$'
foreign='opencv|opencolorio|nlohmann|exiv2|lcms2'

# Sets `target` to the file that `file` includes as "name"; to nothing for a generated header.
find_target() {
    local file=$1 name=$2 root
    target=""
    if [[ -e "${file%/*}/$name" ]]; then
        target=$(realpath --relative-to=. "${file%/*}/$name")
        return
    fi
    # plugin/core and apps/cli, for example, are include roots of their own.
    for root in "${layers[@]}" plugin/* apps/* host/*; do
        if [[ -e "$root/$name" ]]; then
            target=$root/$name
            return
        fi
    done
}

# Sets `room` to the room that a file lies in; to nothing in a layer without rooms.
find_room() {
    room=${1%/*}
    while [[ -z "${floor_of[$room]:-}" && "$room" == */* ]]; do
        room=${room%/*}
    done
    [[ -n "${floor_of[$room]:-}" ]] || room=""
}

# check_rooms FILE LINE NAME: rejects an include that goes up to a later room, or to a file in no room.
check_rooms() {
    find_room "$1"
    local from=$room
    find_room "$target"
    if [[ -z "$from" || -z "$room" ]]; then
        [[ "${1%%/*}" == platform || "${1%%/*}" == library ]] ||
            violation "$1:$2: \"$3\": one of the two files lies in no room; list its folder in includes.sh"
    elif (( floor_of[$room] > floor_of[$from] )); then
        violation "$1:$2: $from/ includes \"$3\" of $room/, a room above it"
    fi
}

looked_at=0
for layer in "${layers[@]}"; do
    [[ -d "$layer" ]] || continue
    while IFS=: read -r file line include; do
        looked_at=$((looked_at + 1))
        name=${include#*[\"<]}
        if [[ "$include" == *\"* ]]; then
            find_target "$file" "$name"
            owner=${target%%/*}
            if [[ -n "$target" && "$owner" != "$layer" && " ${may_include[$layer]} " != *" $owner "* ]]; then
                violation "$file:$line: $layer/ includes \"$name\" of $owner/"
            elif [[ -n "$target" && "$file" == "$third_party"/* && ! "$target" =~ $third_party_may ]]; then
                violation "$file:$line: $third_party/ includes \"$name\" of ${target%/*}/, which no third party has"
            elif [[ -n "$target" && "$owner" == "$layer" ]]; then
                check_rooms "$file" "$line" "$name"
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
