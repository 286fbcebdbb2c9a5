# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# The recipe with a Slurm job array: a controller and two nodes on this machine, one task at a time on each.

slurm_port=17000 # of the controller; the nodes have the next ones

require_slurm() {
    require munged slurmctld slurmd sbatch squeue scontrol perl pgrep
    # Two controllers on one machine would share nothing but confusion.
    ! pgrep -x slurmctld >/dev/null || give_up "a slurmctld runs on this machine already"
}

write_slurm_config() {
    local host
    host=$(hostname -s)
    mkdir -p "$folder/slurm.state" "$folder/slurm.spool"
    cat >"$folder/slurm.conf" <<END
ClusterName=lumetra
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=$slurm_port
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$folder/munge.socket,cred_expire=5
CredType=cred/munge
MpiDefault=none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SwitchType=switch/none
AccountingStorageType=accounting_storage/none
JobCompType=jobcomp/filetxt
JobCompLoc=$folder/slurm.jobs
JobAcctGatherType=jobacct_gather/none
StateSaveLocation=$folder/slurm.state
SlurmdSpoolDir=$folder/slurm.spool/%n
SlurmctldPidFile=$folder/slurmctld.pid
SlurmdPidFile=$folder/slurmd.%n.pid
SlurmctldTimeout=10
SlurmdTimeout=10
MessageTimeout=5
MinJobAge=300
ReturnToService=1
JobRequeue=1
NodeName=n1 NodeHostname=$host NodeAddr=127.0.0.1 Port=$((slurm_port + 1)) CPUs=1
NodeName=n2 NodeHostname=$host NodeAddr=127.0.0.1 Port=$((slurm_port + 2)) CPUs=1
PartitionName=all Nodes=n1,n2 Default=YES MaxTime=INFINITE State=UP
END
    export SLURM_CONF=$folder/slurm.conf
}

is_node_up() {
    [[ $(sinfo --noheader --nodes "$1" --format %t) == idle ]]
}

start_slurm_nodes() {
    write_slurm_config
    head -c 1024 /dev/urandom >"$folder/munge.key"
    chmod 600 "$folder/munge.key"
    start munged /usr/sbin/munged --foreground --key-file="$folder/munge.key" --socket="$folder/munge.socket" \
        --pid-file="$folder/munged.pid" --log-file="$folder/munge.log" --seed-file="$folder/munge.seed" --force
    wait_until munged munge --socket="$folder/munge.socket" --no-input
    start slurmctld /usr/sbin/slurmctld -D
    local node
    declare -gA slurmd_pids
    for node in n1 n2; do
        start "slurmd-$node" /usr/sbin/slurmd -D -N "$node"
        slurmd_pids[$node]=$pid
    done
    for node in n1 n2; do
        wait_until "node $node" is_node_up "$node"
    done
}

# submit ARRAY: hands the tasks in; sets `job`.
submit() {
    job=$(sbatch --parsable --array="$1" --chdir="$folder" --output="$folder/slurm-%a.out" \
        "$root/examples/cluster/slurm-array.sh" "$folder/list.txt" "$shards" "$folder/slurm.reports" "${look[@]}" \
        --metadata none --output "$folder/slurm/{name}.{ext}")
}

# find_step NODE: the daemon of the task that runs on a node; its child is the program.
find_step() {
    local task
    task=$(squeue --noheader --nodelist "$1" --states RUNNING --format %A | head -n 1)
    [[ -n $task ]] && pgrep -f "^slurmstepd: \[$task[.]"
}

has_step() {
    local step
    step=$(find_step "$1") && pgrep -P "$step"
}

has_no_task() {
    ! squeue --noheader --jobs "$job" --states all --format %T | grep -qvE '^(COMPLETED|FAILED|NODE_FAIL)$'
}

kill_program() {
    wait_until "a task on $1" has_step "$1"
    kill -KILL "$(pgrep -P "$(find_step "$1")" | head -n 1)"
}

# The node goes with all that runs on it, as in a power cut.
take_node_down() {
    wait_until "a task on $1" has_step "$1"
    local step
    step=$(find_step "$1")
    kill_tree "${slurmd_pids[$1]}"
    kill_tree "$step"
    forget "${slurmd_pids[$1]}"
}

run_slurm() {
    start_slurm_nodes
    mkdir "$folder/slurm.reports"
    submit "1-$shards"
    wait_until "the first photos" is_in_the_middle "$folder/slurm" 3
    echo "killing a program on n1 after $(count_outputs "$folder/slurm") photos"
    kill_program n1
    wait_until "the next photos" is_in_the_middle "$folder/slurm" $(($(count_outputs "$folder/slurm") + 2))
    echo "taking n2 down after $(count_outputs "$folder/slurm") photos"
    take_node_down n2
    wait_until "the rest of the tasks" has_no_task
    squeue --noheader --jobs "$job" --states all --format 'task %K: %T, %r'
    report slurm 1
    local again
    again=$(sed -n 's/^shards to run again, of [0-9]*: //p' "$folder/slurm.report")
    [[ -n $again ]] || fail "slurm: expected the killed task among the shards to run again"
    say "slurm: tasks $again again"
    submit "$again"
    wait_until "the tasks" has_no_task
    report slurm 1
    expect_cut_photo_alone slurm
    expect_all slurm bare
    mend_and_finish slurm --metadata none
}
