#!/usr/bin/env bash
# A bad station typed in the elevations window and left at once by a click on OK or
# AutoStationing (press and release with no pause, the quickest a mouse can be):
# the field's messages come, once each, the click does nothing (the window stays,
# no dialog opens) and the program lives on. Each case runs three times.
# Usage: quick_click_test.sh GRADEWISE GRADEWISE_CLI EXAMPLE.gwf
source "$(dirname "$0")/desktop.sh"
example=$3
start_desktop
cp "$example" "$WORK/crest.gwf"  # English, PVC 10+00, PVT 14+00, five rows from 10+50
start_gradewise "$WORK/crest.gwf"
wait_opened "$WORK/crest.gwf"

# Calculate Elevations: from the first input past the other five and Calc, Clear All.
keys Tab Tab Tab Tab Tab Tab Tab Tab space
ELEVATIONS=$(wait_dialog '^Elevations$')
OK_BUTTON="432 360" AUTO_BUTTON="80 360"  # their top left corners; a click lands 10 px in

# Replaces the focused field's text with $1 and clicks the button at once; then
# expects $3 message boxes, one after another, each answered with Enter.
type_then_click() {
  local text=$1 button=$2 boxes=$3 box
  read -r bx by <<<"$button"
  origin "$ELEVATIONS"
  xdotool mousemove $((OX + bx + 10)) $((OY + by + 10))
  keys ctrl+a
  type_text "$text"
  xdotool click 1
  for ((i = 1; i <= boxes; i++)); do
    box=$(wait_dialog '^Gradewise$' "$MAIN")
    is_viewable "$ELEVATIONS" || fail "the click on $button hid the elevations window (\"$text\")"
    [ -z "$(windows_named '^Auto Stationing$')" ] || fail "AutoStationing opened over \"$text\""
    keys Return
    wait_gone "$box" "message $i of \"$text\""
  done
  sleep 0.3
  [ -z "$(windows_named '^Gradewise$' | grep -v "^$MAIN\$")" ] || fail "more than $boxes message(s) for \"$text\""
  is_viewable "$ELEVATIONS" || fail "the elevations window closed after \"$text\""
  alive "after \"$text\""
}

for round in 1 2 3; do
  # Row 0's whole station: "Must be numeric." and "Must be >= to PVCSTA.".
  type_then_click x "$OK_BUTTON" 2
  type_then_click x "$AUTO_BUTTON" 2
  keys ctrl+a
  type_text 10
  keys Tab
  # Row 0's plus part: "Measurement must be less than 100 feet.".
  type_then_click 100 "$OK_BUTTON" 1
  keys ctrl+a
  type_text 50
  keys shift+Tab
done

# Put right, OK takes the rows and hides the window.
click_in "$ELEVATIONS" $((432 + 10)) $((360 + 10))
wait_gone "$ELEVATIONS" "the elevations window after OK"
echo "every quick click out of a bad field brought its messages and did nothing else"
