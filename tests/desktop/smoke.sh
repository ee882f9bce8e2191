#!/bin/sh
# Runs the program on a virtual screen: a pointer presses an arrow, the keyboard saves at the question at the
# end. Usage: smoke.sh PROGRAM STUDY
set -eu
program=$1
original=$2
limit=20
began=$(date +%s%N)
. "$(dirname "$0")/virtual_screen.sh"

# Gives the keyboard to a window, as a window manager does.
isFocused() { xdotool windowfocus --sync "$(isShown "$1" | head -n 1)"; }
# A box that has just come up may not take the first key yet.
isAnswered() {
    isOver || { isFocused "^Confirm" && xdotool key Return && sleep 0.2 && isOver; }
}

# The study is saved at the end.
study="$scratch/schools.Lorvane"
cp "$original" "$study"

startScreen 1280 800

started=$(date +%s%N)
"$program" "$study" 2>"$scratch/program.log" &
running=$!
within 10 isShown "^Lorvane.*schools" || fail "no window"
shown=$(since "$started")
window=$(isShown "^Lorvane.*schools" | head -n 1)
within 5 isFocused "^Lorvane.*schools" || fail "the window takes no keyboard"
memory=$(awk '/VmRSS/ {print int($2 / 1024)}' "/proc/$running/status")

# The upper arrow of the ICC of the schools opens the picture of the ICC, which makes way for the question.
xdotool mousemove --window "$window" 522 319 click 1
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
