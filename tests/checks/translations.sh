#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# translations.sh LUPDATE: every text of the sources is translated in the .ts files, and none of these is
# marked as unfinished. Works on copies.
set -euo pipefail

lupdate=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

# check TS_FILE OPTION_OR_FOLDER...: what an update of the file would leave to be translated.
check() {
    local ts=$1
    shift
    local copy
    copy="$folder/$(basename "$ts")"
    cp "$ts" "$copy"
    "$lupdate" -silent -no-obsolete -locations none "$@" -ts "$copy" >"$folder/log" 2>&1 ||
        { cat "$folder/log" >&2; exit 2; }
    if ! grep -q '<source>' "$copy"; then
        echo "$ts: expected texts, found none: the check looks in the wrong place" >&2
        exit 2
    fi
    local left
    left=$(grep -B1 'type="unfinished"' "$copy" | grep -E '<source>|unfinished' || true)
    if [[ -n $left ]]; then
        echo "$ts: expected a translation of every text, none of them unfinished; found:"
        echo "$left"
        failures=1
    fi
    if ! diff <(grep -c '<source>' "$ts") <(grep -c '<source>' "$copy") >/dev/null; then
        echo "$ts: expected the texts of the sources; run its update target"
        failures=1
    fi
}

check library/translations/lumetrapresetsutil_de.ts library
check apps/cli/translations/lumetra-presets_de.ts -I apps/cli apps/cli host/engine
check apps/editor/translations/lumetra-editor_de.ts apps/editor host/engine
check plugin/adjust/translations/lumetraadjust_de.ts -I plugin plugin/adjust
check plugin/panel/translations/lumetrapanel_de.ts -I plugin plugin/panel plugin/core host/engine
exit $failures
