# What the scripts that run the program on a virtual screen share. They source it and call startScreen first.
scratch=$(mktemp -d)
server=
manager=
running=
cleanup() {
    for process in $running $manager $server; do
        kill "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap cleanup EXIT

fail() {
    echo "$(basename "$0"): $*" >&2
    cat "$scratch"/*.log >&2
    exit 1
}

since() { echo $((($(date +%s%N) - $1) / 1000000)); }

# within SECONDS COMMAND...: waits until the command succeeds.
within() {
    left=$(($1 * 20))
    shift
    until "$@" >/dev/null 2>&1; do
        left=$((left - 1))
        [ "$left" -gt 0 ] || return 1
        sleep 0.05
    done
}

isShown() { xdotool search --onlyvisible --name "$1"; }
isOver() { ! kill -0 "$running"; }

# startScreen WIDTH HEIGHT: a display number that is free; the same currency and colours on every machine, nothing of
# the user's.
startScreen() {
    export LSAN_OPTIONS="suppressions=$(dirname "$0")/leaks.txt"
    export HOME="$scratch" XDG_CONFIG_HOME="$scratch/config" XDG_STATE_HOME="$scratch/state"
    export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR="$scratch"
    Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp 3>"$scratch/display" 2>"$scratch/server.log" &
    server=$!
    within 5 test -s "$scratch/display" || fail "no virtual screen"
    DISPLAY=:$(cat "$scratch/display")
    export DISPLAY
}
