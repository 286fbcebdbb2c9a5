#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# install-packages.sh SECTION...: installs what those sections of apt-packages.txt name and what is
# not there yet. Does nothing, and needs no network, when nothing is missing.
set -euo pipefail

list="$(dirname "${BASH_SOURCE[0]}")/apt-packages.txt"

packages_of() {
    awk -v wanted="[$1]" '
        /^\[/ { inside = ($1 == wanted); found = found || inside; next }
        inside && NF && $1 !~ /^#/ { print $1 }
        END { exit !found }' "$list"
}

declare -A installed=()
read_installed() {
    local name status
    while read -r name status; do
        [[ "$status" != installed ]] || installed[$name]=1
    done < <(dpkg-query -W -f='${Package} ${db:Status-Status}\n')
}

# apt-get as root, through sudo where we are not.
apt() {
    local as_root=(env DEBIAN_FRONTEND=noninteractive)
    if [[ "$(id -u)" -ne 0 ]]; then
        as_root=(sudo -n "${as_root[@]}")
    fi
    "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 -qq "$@" </dev/null
}

give_up() {
    echo "packaging: these packages are missing: $*" >&2
    echo "packaging: $reason" >&2
    echo "packaging: please install them yourself: apt-get install --no-install-recommends $*" >&2
    exit 1
}

if [[ $# -eq 0 ]]; then
    echo "usage: $0 SECTION...   (sections: $(grep -oP '^\[\K[a-z]+' "$list" | paste -sd ' '))" >&2
    exit 2
fi
if ! command -v dpkg-query >/dev/null; then
    echo "packaging: not a Debian system; the packages needed are listed in $list" >&2
    exit 0
fi

read_installed
missing=()
missing_optional=()
for section in "$@"; do
    names=$(packages_of "$section") || { echo "packaging: no section [$section] in $list" >&2; exit 2; }
    for name in $names; do
        if [[ -n "${installed[$name]:-}" ]]; then
            continue
        elif [[ "$section" == optional ]]; then
            missing_optional+=("$name")
        else
            missing+=("$name")
        fi
    done
done
if [[ ${#missing[@]} -eq 0 && ${#missing_optional[@]} -eq 0 ]]; then
    exit 0
fi

reason=""
if [[ "$(id -u)" -ne 0 ]] && ! sudo -n true 2>/dev/null; then
    reason="installing needs root, or sudo without a password"
elif ! apt update; then
    reason="apt-get update failed: no package source can be reached"
fi
if [[ ${#missing[@]} -gt 0 ]]; then
    [[ -z "$reason" ]] || give_up "${missing[@]}"
    echo "packaging: installing ${missing[*]}"
    reason="apt-get install failed"
    apt install -y --no-install-recommends "${missing[@]}" >/dev/null || give_up "${missing[@]}"
    reason=""
fi
for name in "${missing_optional[@]}"; do
    if [[ -n "$reason" ]] || ! apt install -y --no-install-recommends "$name" >/dev/null; then
        echo "packaging: going on without the optional package $name" >&2
    fi
done
