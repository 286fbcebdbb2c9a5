#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tests/cluster/run.sh [ssh|slurm]...: runs the recipes of docs/cluster.md on this machine, with two nodes each. A job
# is killed and a node taken down in the middle; afterwards every photo has to be there once, byte for byte as
# one machine makes it. Needs the packages of the section [cluster]: packaging/install-packages.sh cluster.
# Starts daemons of its own (sshd, munged, slurmctld, slurmd) as the user who calls it, with keys, ports and folders
# of their own, and ends them. LUMETRA_PRESETS names the program, else it is that of build/release or build/dev.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
root=$PWD
export LC_ALL=C.UTF-8 # the texts of reports are looked at
# shellcheck source=tests/cluster/support.sh
source tests/cluster/support.sh
# shellcheck source=tests/cluster/ssh.sh
source tests/cluster/ssh.sh
# shellcheck source=tests/cluster/slurm.sh
source tests/cluster/slurm.sh

recipes=("$@")
[[ $# -gt 0 ]] || recipes=(ssh slurm)
for recipe in "${recipes[@]}"; do
    [[ $recipe == ssh || $recipe == slurm ]] || give_up "expected ssh or slurm, found $recipe"
    "require_$recipe"
done

find_presets
make_folder
make_photos
for recipe in "${recipes[@]}"; do
    say "$recipe"
    "run_$recipe"
done
say "All recipes did what docs/cluster.md says"
