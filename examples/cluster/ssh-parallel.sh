#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# ssh-parallel.sh NODES LIST SHARDS REPORTS APPLY-OPTION...
# Applies a look to the photos of LIST on several machines, with GNU parallel over ssh.
#   NODES    file with a machine a line, as for parallel --sshloginfile; "2/node7" runs two shards there
#   LIST     file with a photo a line; nobody may change it, or the photos, until all is done
#   SHARDS   number of parts, a few times that of the machines
#   REPORTS  folder for the reports; made when it is missing
# All of them, the photos and the outputs lie on a file system that every machine has under the same path.
# Exit code 0: every photo is done. Else REPORTS/again.txt lists the photos that are not, and a second run with the
# same arguments does just those. LUMETRA_PRESETS names the program where it is not in the PATH of the machines.
set -euo pipefail

if [[ $# -lt 5 ]]; then
    sed -n '3,12s/^# //p' "$0" >&2
    exit 2
fi
nodes=$1 list=$(realpath "$2") shards=$3
mkdir -p "$4"
reports=$(realpath "$4")
shift 4
presets=${LUMETRA_PRESETS:-lumetra-presets}

# Every attempt writes a report of its own: one that is believed dead may still be writing.
printf -v apply '%q ' "$presets" apply --files-from "$list" --again --skip --json "$@"
# Photos that fail do so on every machine; the report names them, and the shard is done (exit code 1).
shard="$apply --shard {}/$shards >$(printf %q "$reports")/shard-{}.\$(hostname)-\$\$.jsonl || [ \$? -eq 1 ]"

# A shard whose machine went down, or whose program was killed, is tried again on another machine. One that is down
# takes and fails shard after shard until the next round, which begins with those machines that answer.
rm -f "$reports/jobs.log"
for _ in 1 2 3; do
    seq "$shards" | parallel --will-cite --filter-hosts --sshloginfile "$nodes" --wd "$PWD" --retries 3 \
        --resume-failed --joblog "$reports/jobs.log" "$shard" && break
done

exec "$presets" report --files-from "$list" --failed-list "$reports/again.txt" --overwrite "$reports"/shard-*.jsonl
