#!/usr/bin/env bash
# Takes docs/screenshot-elevations.png: an English curve solved, its elevations
# window filled by auto-stationing, on a private Xvfb display.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" xvfb xauth xdotool imagemagick
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null
export DISPLAY=:57
Xvfb "$DISPLAY" -screen 0 1280x800x24 >/dev/null 2>&1 &
xvfb=$!
trap 'kill $app $xvfb 2>/dev/null || true' EXIT
sleep 1
XDG_CONFIG_HOME=$(mktemp -d) build/release/app/gradewise &
app=$!
win=$(xdotool search --sync --onlyvisible --classname gradewise | head -1)
xdotool windowfocus --sync "$win"
step() { sleep 0.4; }
xdotool key alt+o; step; xdotool key c; step; xdotool key v; step
xdotool key Down; step; xdotool key Return; step          # English
for value in 12 0 104 2 -2 400; do xdotool type --delay 20 -- "$value"; xdotool key Tab; step; done
xdotool key Return; step                                   # Calc
xdotool mousemove 136 381 click 1; sleep 1                 # Calculate Elevations
tos=$(xdotool search --sync --onlyvisible --name '^Elevations$' | head -1)
eval "$(xdotool getwindowgeometry --shell "$tos")"
xdotool mousemove $((X + 120)) $((Y + 372)) click 1; sleep 1   # AutoStationing
dlg=$(xdotool search --sync --onlyvisible --name '^Auto Stationing$' | head -1)
eval "$(xdotool getwindowgeometry --shell "$dlg")"
xdotool mousemove $((X + 116)) $((Y + 204)) click 1; sleep 1   # OK: ten points
import -window root /tmp/gradewise-elevations-full.png
eval "$(xdotool getwindowgeometry --shell "$tos")"
convert /tmp/gradewise-elevations-full.png -crop "$((WIDTH + 20))x$((HEIGHT + 20))+$((X - 10))+$((Y - 10))" +repage \
  docs/screenshot-elevations.png
echo "wrote docs/screenshot-elevations.png"
