# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# What the recipes of tests/cluster/run.sh share: photos, the result of one machine, daemons and their end.

photo_count=32
shards=4
look=(--preset "Soft Light")
daemons=()

say() {
    printf '\n== %s\n' "$*"
}

give_up() {
    echo "tests/cluster: $*" >&2
    exit 2
}

fail() {
    echo "tests/cluster: failed: $*" >&2
    exit 1
}

require() {
    local program
    for program in "$@"; do
        PATH=$PATH:/usr/sbin command -v "$program" >/dev/null ||
            give_up "$program is missing; packaging/install-packages.sh cluster installs it"
    done
}

# Sets LUMETRA_PRESETS, which the recipes read too.
find_presets() {
    local candidate
    for candidate in "${LUMETRA_PRESETS:-}" "$root"/build/{release,dev}/bin/lumetra-presets; do
        [[ -z $candidate || ! -x $candidate ]] || break
    done
    [[ -x $candidate ]] || give_up "the program is not built; cmake --build --preset release --target lumetra-presets"
    LUMETRA_PRESETS=$(realpath "$candidate")
    export LUMETRA_PRESETS
}

# A folder that goes at the end, with all daemons. The presets and the user's folder are the same on every node.
make_folder() {
    folder=$(mktemp -d /tmp/lumetra-cluster.XXXXXX)
    chmod 755 "$folder"
    trap end EXIT
    trap 'exit 130' INT TERM
}

end() {
    local code=$? pid
    trap - EXIT
    # The last one first: a controller goes before the daemon that it signs with.
    for ((i = ${#daemons[@]} - 1; i >= 0; i--)); do
        pid=${daemons[i]}
        kill_tree "$pid"
        wait "$pid" 2>/dev/null || true
    done
    [[ -z ${at_end:-} ]] || "$at_end"
    if [[ $code -eq 0 || -z ${KEEP:-} ]]; then
        rm -rf "$folder"
    else
        echo "tests/cluster: kept $folder" >&2
    fi
    exit "$code"
}

# kill_tree PID: ends a process and all that it has started, at once.
kill_tree() {
    local pid=$1 child
    for child in $(pgrep -P "$pid" || true); do
        kill_tree "$child"
    done
    kill -KILL "$pid" 2>/dev/null || true
}

# start NAME COMMAND...: a daemon in the foreground of its own process; sets `pid`.
start() {
    local name=$1
    shift
    "$@" </dev/null >"$folder/$name.log" 2>&1 &
    pid=$!
    daemons+=("$pid")
}

are_daemons_up() {
    local pid
    for pid in "${daemons[@]}"; do
        kill -0 "$pid" 2>/dev/null || return 1
    done
}

# wait_until WHAT COMMAND...: until the command succeeds; gives up when a daemon has ended meanwhile.
wait_until() {
    local what=$1
    shift
    until "$@" >/dev/null 2>&1; do
        are_daemons_up || "$@" >/dev/null 2>&1 || fail "$what: a daemon has ended; $(tail -n 3 "$folder"/*.log)"
        sleep 0.1
    done
}

count_outputs() {
    find "$1" -name '*.jpg' 2>/dev/null | wc -l
}

# is_in_the_middle FOLDER COUNT: so many outputs are there.
is_in_the_middle() {
    [[ $(count_outputs "$1") -ge $2 ]]
}

# forget PID: a daemon that was ended on purpose.
forget() {
    local pid kept=()
    wait "$1" 2>/dev/null || true
    for pid in "${daemons[@]}"; do
        [[ $pid == "$1" ]] || kept+=("$pid")
    done
    daemons=("${kept[@]}")
}

# Photos of about ten megapixels, of different sizes, in two folders, the last one unreadable; and what one machine
# makes of those that can be read.
make_photos() {
    say "$photo_count photos, and their pictures from one machine"
    perl "$root/tests/cluster/make_photo.pl" 4000 3000 >"$folder/large.tif"
    local i
    for ((i = 1; i < photo_count; i++)); do
        local name
        printf -v name '%s/photos/%d/p%02d.jpg' "$folder" $((i % 2)) "$i"
        "$LUMETRA_PRESETS" apply "$folder/large.tif" "${look[@]}" --intensity $((i * 3)) --metadata none \
            --size $((4000 - 20 * i)) --output "$name" >/dev/null
        echo "$name"
    done >"$folder/list.txt"
    cp "$folder/photos/1/p01.jpg" "$folder/whole.jpg"
    head -c 100000 "$folder/whole.jpg" >"$folder/photos/1/cut.jpg"
    echo "$folder/photos/1/cut.jpg" >>"$folder/list.txt"
    make_reference kept
    make_reference bare --metadata none
}

make_reference() {
    local name=$1
    shift
    local start=$SECONDS code=0
    "$LUMETRA_PRESETS" apply --files-from "$folder/list.txt" "${look[@]}" --skip "$@" \
        --output "$folder/one/$name/{name}.{ext}" >/dev/null 2>"$folder/one.log" || code=$?
    [[ $code -eq 1 ]] || fail "one machine: expected exit code 1 for the cut photo, found $code"
    echo "one machine, $name: $(count_outputs "$folder/one/$name") photos in $((SECONDS - start)) s"
}

# report NAME EXPECTED-CODE: the merged report of a recipe, with the list of photos to be done again.
report() {
    local code=0
    "$LUMETRA_PRESETS" report --files-from "$folder/list.txt" --failed-list "$folder/$1.again" --overwrite \
        "$folder/$1.reports"/shard-*.jsonl >"$folder/$1.report" || code=$?
    cat "$folder/$1.report"
    [[ $code -eq $2 ]] || fail "$1: expected exit code $2 of the report, found $code"
}

# expect_all NAME REFERENCE: every photo is there once, byte for byte; what a killed program has left is no photo.
expect_all() {
    local extra
    extra=$(find "$folder/$1" -type f ! -name '*.jpg' ! -path '*/.lumetra-journal/*' ! -name '*.jpg.??????')
    [[ -z $extra ]] || fail "$1: unexpected files: $extra"
    diff -rq --exclude=.lumetra-journal --exclude='*.jpg.??????' "$folder/one/$2" "$folder/$1" ||
        fail "$1: expected the files of one machine"
    echo "$1: $(count_outputs "$folder/$1") photos, byte for byte as from one machine"
}

# expect_cut_photo_alone NAME: the list of photos to be done again names that one and no other.
expect_cut_photo_alone() {
    [[ $(cat "$folder/$1.again") == "$folder/photos/1/cut.jpg" ]] ||
        fail "$1: expected the cut photo alone in the list, found: $(cat "$folder/$1.again")"
}

# mend_and_finish NAME APPLY-OPTION...: the photo that failed is mended, and just that one is done again.
mend_and_finish() {
    local name=$1
    shift
    cp "$folder/whole.jpg" "$folder/photos/1/cut.jpg"
    "$LUMETRA_PRESETS" apply --files-from "$folder/$name.again" "${look[@]}" --skip --json "$@" \
        --output "$folder/$name/{name}.{ext}" >"$folder/$name.reports/shard-mended.jsonl" ||
        fail "$name: the mended photo failed"
    report "$name" 0
    [[ $(count_outputs "$folder/$name") -eq $photo_count ]] || fail "$name: expected $photo_count photos"
    head -c 100000 "$folder/whole.jpg" >"$folder/photos/1/cut.jpg"
}
