# Watches for Tarvix's window on the display that is set. Sourced by bash, never run.
# shellcheck shell=bash

# Prints the main window's number once it is on the screen. The splash before it has the same title,
# but is another kind of window; so is a message box.
find_main_window() {
    local window
    for window in $(xdotool search --onlyvisible --name '^Brindle Tarvix$' 2>/dev/null); do
        if ! xprop -id "$window" _NET_WM_WINDOW_TYPE | grep -qE 'TYPE_(SPLASH|DIALOG)'; then
            say "$window"
            return 0
        fi
    done
    return 1
}

# wait_for_main_window PROCESS SECONDS: the same, as soon as it is there and while PROCESS runs.
wait_for_main_window() {
    local process=$1 deadline=$((SECONDS + $2))
    until find_main_window; do
        [ -d "/proc/$process" ] || fail "the program ended before its main window appeared."
        [ "$SECONDS" -lt "$deadline" ] ||
            fail "the main window did not appear within $2 seconds."
        sleep 0.1
    done
}
