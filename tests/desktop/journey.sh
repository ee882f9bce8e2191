#!/bin/sh
# A whole study by keyboard alone, under a window manager: new, four levels, ICCs, wizard, paste, scenario, save, open
# again, quit. What the files hold at the end proves it. Usage: journey.sh PROGRAM COMMAND_LINE_PROGRAM
set -eu
program=$1
cli=$2
. "$(dirname "$0")/virtual_screen.sh"

# The window in front has a title, and takes the keys.
isInFront() { xdotool getactivewindow getwindowname 2>/dev/null | grep -q "$1"; }
# A window that has just come up may not take the first key yet.
inFront() {
    within 8 isInFront "$1" ||
        fail "no window \"$1\" in front, but \"$(xdotool getactivewindow getwindowname)\""
    sleep 0.3
}
keys() {
    for key in "$@"; do
        xdotool key --clearmodifiers "$key"
        sleep 0.12
    done
}
# enter TEXT: types the value of the item with the keyboard; its first character opens the dialog.
enter() {
    xdotool key "$(printf %.1s "$1" | sed 's/\./period/')"
    inFront "^Enter a value"
    xdotool type --delay 40 "$(printf %s "$1" | cut -c2-)"
    keys Return
    inFront "^Lorvane"
}
# name TITLE TEXT: answers a dialog that asks for a name or a path.
name() {
    inFront "$1"
    keys ctrl+a
    xdotool type --delay 20 "$2"
    keys Return
}
onward() { keys $(yes Tab | head -n "$1"); }

startScreen 1280 800
openbox >/dev/null 2>"$scratch/manager.log" &
manager=$!
# A window that is there before the manager never gets the keyboard.
within 8 xdotool get_desktop || fail "no window manager"
"$program" 2>"$scratch/program.log" &
running=$!

# The start screen has the keyboard; Enter begins a new study, and its first value takes what is typed.
inFront "^Lorvane$"
keys Return
inFront "^Lorvane, "
enter .3
keys alt+l a alt+l a alt+i i

# Over to the table; then in each row the ICC and the cost.
onward 4
keys Right
enter .1
onward 3
enter 900
for icc in .05 .03; do
    onward 4
    enter $icc
    onward 4
    enter 90
done
onward 6
enter 9

# The cheapest design, looked for and pasted with Enter alone.
keys alt+m o
inFront "^Optimal design wizard"
keys Return
sleep 1
keys Return Escape
inFront "^Lorvane, "

# A scenario, and a file for both.
keys alt+s a
study="$scratch/journey.Lorvane"
keys ctrl+s
name "Save" "$study"
within 5 test -s "$study" || fail "nothing was saved"
inFront "journey.Lorvane"

# Opened again it is as it was, so the program ends without a question.
keys ctrl+o
name "Open" "$study"
inFront "journey.Lorvane"
sleep 0.5
keys ctrl+q
within 5 isOver || fail "the program goes on"
code=0
wait "$running" || code=$?
running=
[ "$code" -eq 0 ] || fail "exit code $code"

wanted="4 0.3 0.1 0.05 0.03 900 9"
got=$(printf 'open %s\nget NumLevels txtd txtICC(4) txtICC(3) txtICC(2) txtCostT(4) txtCostT(1)\n' "$study" |
    "$cli" drive | tail -n 1 | tr -d '{} ' | tr ',' '\n' | awk -F: '{ printf "%s%g", sep, $2; sep = " " }')
[ "$got" = "$wanted" ] || fail "the file holds $got, not $wanted"
power=$(printf 'open %s\nget txtPower\n' "$study" | "$cli" drive | tail -n 1 | sed 's/.*://; s/}//')
awk "BEGIN { exit !($power >= 0.8) }" || fail "the pasted design has a power of $power"
"$cli" scenarios "$study" | grep -q "Scenario 0001" || fail "the scenario is gone"
echo "journey: a study with a power of $power by keyboard alone"
