#!/usr/bin/env bash
# Takes the README's pictures on a private Xvfb display under openbox, the way a
# user's desktop shows the program:
#   docs/screenshot.png             a metric crest and an English sag curve, solved
#                                   and tiled side by side in the main window
#   docs/screenshot-elevations.png  the elevations window of an English crest curve
#                                   laid out by auto-stationing with ten points
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" xvfb xauth openbox xdotool x11-utils imagemagick
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null
repo=$PWD
set -- build/release/app/gradewise build/release/cli/gradewise-cli
source tests/e2e/desktop.sh  # the display, the window manager and the helpers
start_desktop

# The frame of a window, decorations included, cut from the screen.
shoot() {
  read -r left top width height <<<"$(frame_of "$1")"
  import -window root "$WORK/screen.png"
  convert "$WORK/screen.png" -crop "${width}x${height}+${left}+${top}" +repage "$repo/$2"
  echo "wrote $2"
}

# The main window across the screen's width: 1280 x 520 pixels at the top left.
mkdir -p "$XDG_CONFIG_HOME/Gradewise"
printf '[Settings]\nMainLeft=0\nMainTop=0\nMainWidth=19200\nMainHeight=7800\n' >"$SETTINGS"
start_gradewise
new_curve Metric
type_and_solve 2 350 152.4 3.5 -2.25 180
new_curve English
type_and_solve 12 45.5 834.25 -3 2.5 400
keys alt+w
sleep 0.2
keys v  # Tile Vertical
sleep 0.5
shoot "$MAIN" docs/screenshot.png

# An English crest curve: PVC 10+00, PVT 14+00; Calculate Elevations is the third
# control after the last input, then AutoStationing and OK for ten points.
new_curve English
type_and_solve 12 0 104 2 -2 400
keys Tab Tab Tab space
elevations=$(wait_dialog '^Elevations$')
click_in "$elevations" 120 372  # AutoStationing
auto=$(wait_dialog '^Auto Stationing$')
click_in "$auto" 116 204  # OK
wait_gone "$auto" "the auto-stationing dialog"
sleep 0.5
shoot "$elevations" docs/screenshot-elevations.png
