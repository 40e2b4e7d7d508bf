#!/usr/bin/env bash
# The fixed dialogs under a window manager that draws its own buttons: they ask for
# no minimise or maximise button (the units dialog for no close box either); one
# that is minimised all the same comes back at once, so its owner never waits for a
# window out of sight; and the manager's close command answers the units dialog as
# Cancel does.
# Usage: dialogs_test.sh GRADEWISE GRADEWISE_CLI
source "$(dirname "$0")/desktop.sh"
start_desktop
start_gradewise

minimise_comes_back() {
  xdotool windowminimize "$1"
  sleep 0.5
  poll 5 is_viewable "$1" || fail "$2 stayed minimised"
}

# The units dialog: no close box, and closing it all the same opens no curve.
keys alt+o
sleep 0.2
keys c v
units=$(wait_dialog '^Measurement Info$')
expect_no_min_max "$units" "the units dialog"
((MWM_FUNCTIONS & 0x20)) && fail "the units dialog offers a close command"
minimise_comes_back "$units" "the units dialog"
keys alt+F4
wait_gone "$units" "the units dialog closed by the window manager"
# With no curve open Save As shows no dialog.
before=$(windows_named '.')
keys alt+f
sleep 0.2
keys a
sleep 1
[ "$(windows_named '.')" = "$before" ] || fail "closing the units dialog opened a curve"

# A message box: Enter on an empty sheet reports its first missing input.
new_curve Metric
keys Return
box=$(wait_dialog '^Gradewise$' "$MAIN")
expect_no_min_max "$box" "a message box"
minimise_comes_back "$box" "a message box"
keys Return
wait_gone "$box" "the message box"
alive "after the message box"
echo "fixed dialogs ask for no minimise or maximise, come back when minimised, and the units dialog's close cancels"
