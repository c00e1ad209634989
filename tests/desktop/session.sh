# Sourced by the session scripts: a private home, runtime folder and message bus, and the end of every
# process that was started in them, however it was left behind.
#
# For the tests: NERLO_SESSION is the window system, NERLO_SESSION_DIR the session's folder; below it
# are log/, with the output of the servers, and free space. The exit status is the command's, or 125
# when the session itself could not be had.
set -u

begin_session() {
    NERLO_SESSION=$1
    NERLO_SESSION_DIR=$(mktemp -d "${TMPDIR:-/tmp}/nerlo-session.XXXXXX") || exit 125
    mkdir "$NERLO_SESSION_DIR"/{home,config,data,cache,state,log}
    mkdir -m 700 "$NERLO_SESSION_DIR/run"
    trap end_session EXIT
    trap 'exit 143' TERM HUP
    trap 'exit 130' INT
    export NERLO_SESSION NERLO_SESSION_DIR HOME="$NERLO_SESSION_DIR/home" \
        XDG_RUNTIME_DIR="$NERLO_SESSION_DIR/run" XDG_CONFIG_HOME="$NERLO_SESSION_DIR/config" \
        XDG_DATA_HOME="$NERLO_SESSION_DIR/data" XDG_CACHE_HOME="$NERLO_SESSION_DIR/cache" \
        XDG_STATE_HOME="$NERLO_SESSION_DIR/state" LC_ALL=C.UTF-8 LANGUAGE= NO_AT_BRIDGE=1 PYTHONDONTWRITEBYTECODE=1 \
        DBUS_SESSION_BUS_ADDRESS="unix:path=$NERLO_SESSION_DIR/run/bus"
    unset DISPLAY WAYLAND_DISPLAY WAYLAND_SOCKET XAUTHORITY SESSION_MANAGER SWAYSOCK \
        XDG_CURRENT_DESKTOP XDG_SESSION_TYPE XDG_SESSION_DESKTOP QT_QPA_PLATFORM
    start bus dbus-daemon --session --nofork --nopidfile --nosyslog \
        --address="$DBUS_SESSION_BUS_ADDRESS"
    wait_for bus test -S "$XDG_RUNTIME_DIR/bus"
}

# start NAME COMMAND...: in the background, output to log/NAME.
start() {
    local log=$NERLO_SESSION_DIR/log/$1
    shift
    "$@" >"$log" 2>&1 </dev/null &
}

# wait_for WHAT COMMAND...: until COMMAND succeeds, for a minute.
wait_for() {
    local what=$1 end=$((SECONDS + 60))
    shift
    until "$@" >/dev/null 2>&1; do
        if [ "$SECONDS" -ge "$end" ]; then
            echo "session: no $what" >&2
            tail -n 20 "$NERLO_SESSION_DIR"/log/* >&2
            exit 125
        fi
        sleep 0.02
    done
}

# The command's standard input and exit status are passed on, and signals reach this script at once.
run_in_session() {
    "$@" <&0 &
    wait $!
    exit $?
}

# Every process of the session has its folder in the environment.
session_processes() {
    local file
    for file in $(env -u NERLO_SESSION_DIR \
        grep -lszxF "NERLO_SESSION_DIR=$NERLO_SESSION_DIR" /proc/[0-9]*/environ); do
        file=${file#/proc/}
        [ "${file%/environ}" = $$ ] || echo "${file%/environ}"
    done
}

end_session() {
    local status=$? signal left
    trap - EXIT
    trap '' TERM INT HUP
    for signal in TERM KILL; do
        for _ in {1..100}; do
            left=$(session_processes)
            [ -n "$left" ] || break 2
            # shellcheck disable=SC2086
            kill -$signal $left 2>/dev/null
            sleep 0.02
        done
    done
    rm -rf --one-file-system "$NERLO_SESSION_DIR"
    exit "$status"
}
