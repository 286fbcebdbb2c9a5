# shellcheck shell=bash
# SPDX-License-Identifier: MIT
# What run, test, bench and .ci/run share. Source it after `set -euo pipefail`.

project_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$project_root" || exit 1

# Programs with windows draw into memory, in a language and a place that do not depend on the user.
use_headless_qt() {
    export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
    if [[ -z "${XDG_RUNTIME_DIR:-}" || ! -d "${XDG_RUNTIME_DIR:-}" ]]; then
        XDG_RUNTIME_DIR="$project_root/build/runtime"
        mkdir -p "$XDG_RUNTIME_DIR"
        chmod 700 "$XDG_RUNTIME_DIR"
        export XDG_RUNTIME_DIR
    fi
}

say() {
    printf '\n== %s\n' "$*"
}

# install_packages SECTION...: sections of packaging/apt-packages.txt
install_packages() {
    "$project_root/packaging/install-packages.sh" "$@"
}

# build_preset PRESET [TARGET...]: configures where needed and builds; the log of configuring is shown
# only when it failed.
build_preset() {
    local preset=$1
    shift
    local folder="build/$preset"
    if [[ ! "$folder/build.ninja" -nt CMakePresets.json ]]; then
        mkdir -p "$folder"
        if ! cmake --preset "$preset" </dev/null >"$folder/configure.log" 2>&1; then
            cat "$folder/configure.log" >&2
            echo "configuring the preset $preset failed" >&2
            return 1
        fi
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"} </dev/null
}

# test_preset PRESET [CTEST-OPTION...]: fails when a test fails and when none ran.
test_preset() {
    local preset=$1
    shift
    ctest --preset "$preset" --parallel "$(nproc)" "$@" </dev/null
}
