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

# close_window WINDOW SECONDS: closes it as its title bar does; returns when it is gone. A key that
# comes while the window manager is still busy with the window is lost, so it is pressed again; and a
# window that never becomes the active one must not be waited for for ever.
close_window() {
    local window=$1 deadline=$((SECONDS + $2))
    while [ "$SECONDS" -lt "$deadline" ]; do
        timeout 10 xdotool windowactivate --sync "$window" key alt+F4 || true
        for _ in {1..20}; do
            xprop -id "$window" WM_STATE >/dev/null 2>&1 || return 0
            sleep 0.1
        done
    done
    fail "the window was not closed within $2 seconds."
}

# wait_for_end PROCESS SECONDS: waits until a process of the calling shell has ended, whose status it
# returns.
wait_for_end() {
    timeout "$2" tail --pid="$1" -f /dev/null || fail "the program did not end within $2 seconds."
    wait "$1"
}
