# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# The recipe with GNU parallel: two nodes, each an sshd of its own.

require_ssh() {
    require parallel sshd ssh ssh-keygen perl pgrep
}

ssh_ports=(2301 2302)

# sshd_config NODE: nobody but the caller gets in, with a key that is made for this run.
write_sshd_config() {
    local node=$1
    cat >"$folder/sshd$node.conf" <<END
Port ${ssh_ports[node - 1]}
ListenAddress 127.0.0.1
HostKey $folder/host_key
AuthorizedKeysFile $folder/key.pub
PidFile $folder/sshd$node.pid
StrictModes no
PasswordAuthentication no
PermitRootLogin prohibit-password
UsePAM no
AcceptEnv LUMETRA_PRESETS
END
}

start_sshd() {
    local node=$1
    start "sshd$node" /usr/sbin/sshd -D -e -f "$folder/sshd$node.conf"
    sshd_pids[$node]=$pid
    wait_until "node$node" ssh -F "$folder/ssh_config" "node$node" true
}

# Two nodes, "node1" and "node2" of a configuration of their own.
start_ssh_nodes() {
    # sshd of root asks for this folder, which it does not make.
    if [[ $(id -u) -eq 0 && ! -d /run/sshd ]]; then
        mkdir /run/sshd
        at_end=remove_run_sshd
    fi
    ssh-keygen -q -t ed25519 -N '' -f "$folder/host_key"
    ssh-keygen -q -t ed25519 -N '' -f "$folder/key"
    local node
    for node in 1 2; do
        write_sshd_config "$node"
        cat >>"$folder/ssh_config" <<END
Host node$node
    HostName 127.0.0.1
    Port ${ssh_ports[node - 1]}
END
    done
    cat >>"$folder/ssh_config" <<END
Host *
    User $(id -un)
    IdentityFile $folder/key
    IdentitiesOnly yes
    UserKnownHostsFile $folder/known_hosts
    StrictHostKeyChecking no
    LogLevel ERROR
END
    declare -gA sshd_pids
    for node in 1 2; do
        start_sshd "$node"
    done
    printf '1/node%d\n' 1 2 >"$folder/nodes"
}

remove_run_sshd() {
    rmdir /run/sshd
}

# Runs the recipe in the background; sets `recipe_pid`.
start_recipe() {
    PARALLEL_SSH="ssh -F $folder/ssh_config" PARALLEL_HOME=$folder/parallel "$root/examples/cluster/ssh-parallel.sh" \
        "$folder/nodes" "$folder/list.txt" "$shards" "$folder/ssh.reports" "${look[@]}" --jobs 1 \
        --output "$folder/ssh/{name}.{ext}" >"$folder/ssh.log" 2>&1 &
    recipe_pid=$!
    daemons+=("$recipe_pid")
}

# The program that runs below one of the nodes.
find_apply() {
    pgrep -f "^$LUMETRA_PRESETS apply .*$folder/ssh/" | head -n 1
}

run_ssh() {
    start_ssh_nodes
    mkdir -p "$folder/parallel"
    start_recipe
    wait_until "the first photos" is_in_the_middle "$folder/ssh" 3
    echo "killing a program after $(count_outputs "$folder/ssh") photos"
    wait_until "a program" find_apply
    kill -KILL "$(find_apply)"
    wait_until "the next photos" is_in_the_middle "$folder/ssh" $(($(count_outputs "$folder/ssh") + 2))
    echo "taking node2 down after $(count_outputs "$folder/ssh") photos"
    kill_tree "${sshd_pids[2]}"
    forget "${sshd_pids[2]}"
    local code=0
    wait "$recipe_pid" || code=$?
    forget "$recipe_pid"
    cat "$folder/ssh.log"
    [[ $code -eq 1 ]] || fail "ssh: expected exit code 1 for the cut photo, found $code"
    cut -f 1-2,7-8 "$folder/ssh.reports/jobs.log"
    report ssh 1
    expect_cut_photo_alone ssh
    expect_all ssh kept
    mend_and_finish ssh
}
