#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sbatch --array=1-SHARDS slurm-array.sh LIST SHARDS REPORTS APPLY-OPTION...
# Applies a look to the photos of LIST as a Slurm job array, a shard for every task.
#   LIST     file with a photo a line; nobody may change it, or the photos, until all is done
#   SHARDS   number of parts, the same as in --array; stays what it is when only some tasks are run again
#   REPORTS  folder for the reports, which has to exist
# All of them, the photos and the outputs lie on a file system that every node has under the same path.
# LUMETRA_PRESETS names the program where it is not in the PATH of the nodes. Afterwards
#   lumetra-presets report --files-from LIST REPORTS/shard-*.jsonl
# tells whether every photo is done, and which tasks are to be run again.
#SBATCH --job-name=lumetra
#SBATCH --requeue
#SBATCH --open-mode=append
#SBATCH --cpus-per-task=1
set -euo pipefail

list=$1 shards=$2 reports=$3
shift 3

# Slurm runs a task again when its node has gone. The report is a new one: the node may still be writing.
report="$reports/shard-$SLURM_ARRAY_TASK_ID.$SLURM_JOB_ID-${SLURM_RESTART_COUNT:-0}.jsonl"
exec "${LUMETRA_PRESETS:-lumetra-presets}" apply --files-from "$list" --shard "$SLURM_ARRAY_TASK_ID/$shards" \
    --again --skip --json --jobs "${SLURM_CPUS_PER_TASK:-1}" "$@" >"$report"
