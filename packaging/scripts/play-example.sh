#!/usr/bin/env bash
# Plays packaging/example_run.script in a virtual screen, prints its inputs and the solved value and
# leaves a picture of the window in build/. Usage: play-example.sh PLAYER
set -euo pipefail
player=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# shellcheck source=packaging/scripts/common.sh
source packaging/scripts/common.sh

script=packaging/example_run.script
picture=build/example-run.png
runtime_folder=$(mktemp -d)
clean_up() {
    stop_virtual_screen
    rm -rf "$runtime_folder"
}
trap clean_up EXIT
start_virtual_screen
# The virtual screen is no desktop: there is no message bus, and none is to be started.
export DBUS_SESSION_BUS_ADDRESS=disabled: XDG_RUNTIME_DIR=$runtime_folder
rm -f "$picture"
answer=$(QT_QPA_PLATFORM=xcb "$player" <"$script") || fail "the example run was not played."
if grep -q '"refused"' <<<"$answer"; then
    fail "the window refused a step of the example run: $(grep -m 1 '"refused"' <<<"$answer")"
fi

# The text that a control shows, from the player's answer. A quotation mark in it is the inch's.
shown() {
    local control
    control=$(grep -oE "\"$1\": ?\{[^}]*\}" <<<"$answer" | tail -n 1)
    grep -oE '"text": ?"([^"\]|\\.)*"' <<<"$control" | head -n 1 |
        sed -E 's/^"text": ?"(.*)"$/\1/; s/\\(.)/\1/g'
}

printf '\n%s\n' "Liquid, Calculate Flow Rate"
printf '    %-26s %s\n' \
    "Nominal Size" "$(shown cboNomSize)" \
    "Pipe ID" "$(shown cboPipeID)" \
    "Specific Gravity, Flowing" "$(shown txtSGf)" \
    "Specific Gravity, Base" "$(shown txtSGb)" \
    "Differential Pressure" "$(shown txtDeltaP) $(shown cboDeltaPunit)" \
    "Beta Ratio" "$(shown txtBeta)" \
    "Orifice Bore Diameter" "$(shown txtOriBoreDia) $(shown cboOriBoreUnit)"
flow=$(shown txtFlow)
[ -n "$flow" ] || fail "the example run gave no flow rate."
say "  solved:"
printf '    %-26s %s\n' "Flow Rate" "$flow $(shown cboFlowUnit) per $(shown cboTimeUnit)"
[ -s "$picture" ] || fail "no picture of the window was made."
printf '\n%s\n' "A picture of the window: $picture"
