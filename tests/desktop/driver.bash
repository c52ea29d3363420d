# Drives the desktop program in a real window by keys alone. To be sourced by bash, first of all, by a
# script that gets PROGRAM_FOLDER as its first argument; starts it again on a screen of its own.
#
# Leaves: $work, a folder for the run, with the program in $work/bin as if never used, a home of its own
# and $work/lavori for projects; the functions below. What is left open ends with the script, which may
# define clean_up for what else it started.

# Without -noreset a screen begins anew when its last client leaves it, and throws out who is just coming:
# one that only asks whether the window manager is there could so keep it from ever coming.
if [ -z "${KORVEN_SCREEN-}" ]; then
    exec xvfb-run -a -s '-screen 0 1280x1024x24 -noreset' env KORVEN_SCREEN=1 "$0" "$@"
fi

work=$(mktemp -d /tmp/korven_desktop_XXXXXX)
program=
manager=

end() {
    local status=$?
    if [ $status -ne 0 ]; then
        command -v import >/dev/null && import -window root "$work.png" && echo "The screen is in $work.png" >&2
        echo "--- what the window manager and the program said" >&2
        cat "$work/openbox" "$work/said" >&2 || true
    fi
    # What still writes would keep its folder from being removed: it is waited for.
    [ -z "$program" ] || { kill "$program" && wait "$program"; } 2>/dev/null || true
    [ -z "$manager" ] || { kill "$manager" && wait "$manager"; } 2>/dev/null || true
    ! declare -F clean_up >/dev/null || clean_up
    rm -rf "$work"
    exit $status
}
trap end EXIT

# A user who has never started the program, and a program folder that was never used.
cp -r "$1" "$work/bin"
rm -f "$work/bin/language.cfg" "$work/bin/path" "$work/bin/recenti"
mkdir -m 700 "$work/home"
mkdir "$work/lavori"
export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data
export XDG_RUNTIME_DIR=$work/home QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
LSAN_OPTIONS=suppressions=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/leaks.txt:print_suppressions=0
export LSAN_OPTIONS
unset KORVEN32_HOME WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# until_true COMMAND...: waits up to a minute; what comes of itself needs no time of its own
until_true() {
    local tries
    for ((tries = 0; tries < 1200; ++tries)); do
        if "$@" >/dev/null 2>&1; then return; fi
        sleep 0.05
    done
    return 1
}

openbox >"$work/openbox" 2>&1 &
manager=$!
until_true xdotool get_num_desktops || fail "no window manager"

active() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
is_active() { [ "$(active)" = "$1" ]; }
is_other_window() { [ -n "$(active)" ] && ! is_active "$1"; }
is_active_or_ended() { is_active "$1" || ! kill -0 "$program"; }

# window TITLE: waits until the window with this title has the keyboard
window() {
    until_true is_active_or_ended "$1" || fail "no window \"$1\", but \"$(active)\""
    is_active "$1" || fail "the program ended while \"$1\" was due"
}

# key NAME...: presses keys one after the other
key() { xdotool key --delay 15 "$@"; }

# text WORDS: types them
text() { xdotool type --delay 8 -- "$1"; }

# start [ARGUMENT]: starts the program
start() {
    "$work/bin/korven32" "$@" >>"$work/said" 2>&1 &
    program=$!
}

# ended: waits for the program to end by itself, without an error
ended() {
    local status=0
    wait "$program" || status=$?
    program=
    [ $status -eq 0 ] || fail "the program ended with $status"
}
