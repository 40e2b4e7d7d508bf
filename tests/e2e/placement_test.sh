#!/usr/bin/env bash
# The main window's place under a window manager: the first run opens its frame at
# the default place and size and stores exactly the defaults, and three runs in a
# row neither creep nor grow; a frame the user moved reopens where it was left.
# Usage: placement_test.sh GRADEWISE GRADEWISE_CLI
source "$(dirname "$0")/desktop.sh"
start_desktop

stored() { grep '^Main' "$SETTINGS" | tr '\n' ' ' | sed 's/ $//'; }

# One run: start, read the frame, end by Exit.
run_once() {
  start_gradewise
  FRAME=$(frame_of "$MAIN")
  exit_gradewise
  wait_ended "Exit"
}

defaults="MainLeft=105 MainTop=-108 MainWidth=10065 MainHeight=7305"
for run in 1 2 3; do
  run_once
  # 105, -108, 10065 and 7305 twips at 15 twips to the pixel.
  [ "$FRAME" = "7 -7 671 487" ] || fail "run $run: frame at $FRAME, not 7 -7 671 487"
  [ "$(stored)" = "$defaults" ] || fail "run $run stored $(stored)"
done

# Moved by the window manager, as a user drags it: the next run opens there.
start_gradewise
xdotool windowmove --sync "$MAIN" 200 150 2>/dev/null || true
poll 5 sh -c "[ \"\$(xwininfo -id $MAIN | awk '/Absolute upper-left X/ {print \$4}')\" != 8 ]" || fail "the frame did not move"
moved=$(frame_of "$MAIN")
exit_gradewise
wait_ended "Exit after the move"
read -r left top width height <<<"$moved"
[ "$(stored)" = "MainLeft=$((left * 15)) MainTop=$((top * 15)) MainWidth=$((width * 15)) MainHeight=$((height * 15))" ] ||
  fail "a frame moved to $moved stored $(stored)"
for run in 1 2; do
  run_once
  [ "$FRAME" = "$moved" ] || fail "reopened at $FRAME, left at $moved"
done
echo "three runs at the defaults and a moved frame reopened in place: $moved"
