#!/usr/bin/env bash
# Help > About opened and closed by each of its ways: the OK button, Enter, Escape
# and the window manager's close command. The program lives on after each, and the
# box asks for no minimise or maximise button.
# Usage: about_box_test.sh GRADEWISE GRADEWISE_CLI
source "$(dirname "$0")/desktop.sh"
start_desktop
start_gradewise

for way in ok-button enter escape close-box; do
  keys alt+h
  sleep 0.2
  keys a
  about=$(wait_dialog '^About Gradewise$')
  expect_no_min_max "$about" "the about box"
  case $way in
    ok-button) click_in "$about" 298 227 ;;  # OK at 3840, 3240 twips, 1260 x 345
    enter) keys Return ;;
    escape) keys Escape ;;
    close-box) keys alt+F4 ;;  # the window manager's close command
  esac
  wait_gone "$about" "the about box closed by $way"
  alive "after the about box closed by $way"
  wait_active "$MAIN" "the main window after the about box"
done

exit_gradewise
wait_ended "Exit after the about box"
[ "$STATUS" -eq 0 ] || fail "gradewise ended with status $STATUS"
echo "about box closed by OK, Enter, Escape and its close box; gradewise lived on"
