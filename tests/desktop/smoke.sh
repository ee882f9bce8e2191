#!/bin/sh
# Runs the program on a virtual screen: a pointer presses an arrow, the keyboard saves at the question at the
# end. Usage: smoke.sh PROGRAM STUDY
set -eu
program=$1
original=$2
limit=20
began=$(date +%s%N)
scratch=$(mktemp -d)
server=
running=
cleanup() {
    for process in $running $server; do
        kill "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap cleanup EXIT

fail() {
    echo "smoke: $*" >&2
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
# Gives the keyboard to a window, as a window manager does.
isFocused() { xdotool windowfocus --sync "$(isShown "$1" | head -n 1)"; }
isOver() { ! kill -0 "$running"; }
# A box that has just come up may not take the first key yet.
isAnswered() {
    isOver || { isFocused "^Confirm" && xdotool key Return && sleep 0.2 && isOver; }
}

# The study is saved at the end.
study="$scratch/schools.Lorvane"
cp "$original" "$study"

# Same study, currency and colours on every machine, nothing of the user's; a display number that is free.
export LSAN_OPTIONS="suppressions=$(dirname "$0")/leaks.txt"
export XDG_CONFIG_HOME="$scratch/config" XDG_STATE_HOME="$scratch/state"
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR="$scratch"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$scratch/display" 2>"$scratch/server.log" &
server=$!
within 5 test -s "$scratch/display" || fail "no virtual screen"
DISPLAY=:$(cat "$scratch/display")
export DISPLAY

started=$(date +%s%N)
"$program" "$study" 2>"$scratch/program.log" &
running=$!
within 10 isShown "^Lorvane.*schools" || fail "no window"
shown=$(since "$started")
window=$(isShown "^Lorvane.*schools" | head -n 1)
within 5 isFocused "^Lorvane.*schools" || fail "the window takes no keyboard"
memory=$(awk '/VmRSS/ {print int($2 / 1024)}' "/proc/$running/status")

# The upper arrow of the ICC of the schools opens the picture of the ICC, which makes way for the question.
xdotool mousemove --window "$window" 531 302 click 1
within 5 isShown "^ICC and range" || fail "the arrow does nothing"
within 5 isFocused "^Lorvane.*schools" || fail "the window takes no keyboard"
xdotool key alt+f key x
within 5 isFocused "^Confirm" || fail "no question"
! isShown "^ICC and range" >/dev/null || fail "the picture stays before the question"
within 5 isAnswered || fail "the program goes on"
code=0
wait "$running" || code=$?
running=
[ "$code" -eq 0 ] || fail "exit code $code"
! cmp -s "$original" "$study" || fail "nothing was saved"
took=$(since "$began")
echo "smoke: window after $shown ms, $memory MB resident, $took ms in all"
[ "$took" -lt $((limit * 1000)) ] || fail "slower than $limit s"
