# The real programs on a private X display under a real window manager (openbox),
# driven with xdotool as a user would drive them. Sourced by each test; everything
# the programs keep per user goes to a folder of the test's own.
#
# A test that cannot run here (no Xvfb or openbox) exits 77, which CTest reports
# as skipped, after one line saying why.

set -euo pipefail

GRADEWISE=$(realpath "$1")
GRADEWISE_CLI=$(realpath "$2")

for tool in Xvfb openbox xdotool xprop xwininfo; do
  if ! command -v "$tool" >/dev/null; then
    echo "SKIP: $tool is not installed (scripts/test.sh installs it)"
    exit 77
  fi
done

WORK=$(mktemp -d)
export HOME=$WORK/home XDG_CONFIG_HOME=$WORK/config XDG_CACHE_HOME=$WORK/cache XDG_RUNTIME_DIR=$WORK/runtime
mkdir -p "$HOME" "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
SETTINGS=$XDG_CONFIG_HOME/Gradewise/settings.ini
# The desktop's own platform, not the headless one the other tests use.
export QT_QPA_PLATFORM=xcb
unset QT_QPA_PLATFORMTHEME WAYLAND_DISPLAY

XVFB_PID="" WM_PID="" APP_PID=""
stop_all() {
  for pid in $APP_PID $WM_PID $XVFB_PID; do kill "$pid" 2>/dev/null || true; done
  for pid in $APP_PID $WM_PID $XVFB_PID; do wait "$pid" 2>/dev/null || true; done
  rm -rf "$WORK"
}
trap stop_all EXIT
# Stopped from outside (a test time-out, Ctrl+C): leave nothing running.
trap 'exit 143' TERM INT HUP

# Also from inside $(...), whose output is taken.
fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# Polls `command` every 50 ms for up to `seconds`; true as soon as it succeeds.
poll() {
  local seconds=$1
  shift
  local tries=$((seconds * 20))
  while ((tries-- > 0)); do
    "$@" && return 0
    sleep 0.05
  done
  return 1
}

# One try at an X server of our own on a display picked at random: a display that
# another test has just let go of may still be shutting down, so the lowest free
# number is the one to avoid. True once the server is ours and takes connections.
try_display() {
  local number=$((100 + RANDOM % 800))
  [ -e "/tmp/.X$number-lock" ] && return 1
  # -noreset: a server resets when its last client leaves, and refuses connections
  # while it does; the probes below are such clients.
  Xvfb ":$number" -screen 0 1280x800x24 -nolisten tcp -noreset >"$WORK/xvfb.log" 2>&1 &
  XVFB_PID=$!
  export DISPLAY=:$number
  local tries=100
  while ((tries-- > 0)) && kill -0 "$XVFB_PID" 2>/dev/null; do
    if [ "$(cat "/tmp/.X$number-lock" 2>/dev/null | tr -d ' \n')" = "$XVFB_PID" ] && xprop -root >/dev/null 2>&1; then
      return 0
    fi
    sleep 0.05
  done
  kill "$XVFB_PID" 2>/dev/null || true
  wait "$XVFB_PID" 2>/dev/null || true
  XVFB_PID=""
  return 1
}

start_desktop() {
  local tries=5
  until try_display; do
    ((--tries > 0)) || fail "Xvfb did not start: $(cat "$WORK/xvfb.log")"
  done
  openbox --sm-disable >"$WORK/openbox.log" 2>&1 &
  WM_PID=$!
  poll 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "window id"' ||
    fail "openbox did not start on $DISPLAY: $(cat "$WORK/openbox.log")"
}

# Visible windows whose title matches the pattern, oldest first.
windows_named() { xdotool search --onlyvisible --name "$1" 2>/dev/null || true; }

# Waits for a visible window whose title matches and that is not among the ids
# given after the pattern; prints its id.
wait_window() {
  local pattern=$1
  shift
  local id tries=200
  while ((tries-- > 0)); do
    for id in $(windows_named "$pattern"); do
      case " $* " in *" $id "*) ;; *) echo "$id"; return 0 ;; esac
    done
    sleep 0.05
  done
  fail "no window \"$pattern\" appeared"
}

# Waits until the window has the keyboard, so that keys sent next reach it.
wait_active() {
  poll 10 sh -c "[ \"\$(xdotool getactivewindow 2>/dev/null)\" = $1 ]" || fail "$2 never became active"
}

# wait_window, then wait_active: a dialog ready for keys.
wait_dialog() {
  local id
  id=$(wait_window "$@")
  wait_active "$id" "the window \"$1\""
  echo "$id"
}

is_viewable() { xwininfo -id "$1" 2>/dev/null | grep -q 'Map State: IsViewable'; }
wait_gone() { poll 10 sh -c "! xwininfo -id $1 2>/dev/null | grep -q 'Map State: IsViewable'" || fail "$2 stayed open"; }

# The client area's top left corner on the screen, as OX and OY.
origin() {
  eval "$(xwininfo -id "$1" | awk '/Absolute upper-left X/ {print "OX=" $4} /Absolute upper-left Y/ {print "OY=" $4}')"
}

# The frame (decorations included) as "left top width height" in pixels.
frame_of() {
  local extents
  extents=$(xprop -id "$1" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')
  read -r fl fr ft fb <<<"$extents"
  eval "$(xwininfo -id "$1" | awk '/Absolute upper-left X/ {print "x=" $4} /Absolute upper-left Y/ {print "y=" $4}
                                    /Width:/ {print "w=" $2} /Height:/ {print "h=" $2}')"
  echo "$((x - fl)) $((y - ft)) $((w + fl + fr)) $((h + ft + fb))"
}

# A click at a point of the window's client area, as the mouse would give it.
click_in() { origin "$1"; xdotool mousemove $((OX + $2)) $((OY + $3)) click 1; }

# The window's _MOTIF_WM_HINTS as MWM_FLAGS, MWM_FUNCTIONS and MWM_DECORATIONS:
# minimise and maximise are 0x8 and 0x10 among the functions, 0x20 and 0x40 among the
# decorations; close is the function 0x20.
motif_hints() {
  local hints
  hints=$(xprop -id "$1" _MOTIF_WM_HINTS | sed 's/.*= //; s/,//g')
  read -r MWM_FLAGS MWM_FUNCTIONS MWM_DECORATIONS _ <<<"$hints"
}

# A fixed dialog states its decorations and asks for no minimise or maximise.
expect_no_min_max() {
  motif_hints "$1"
  ((MWM_FLAGS & 3)) || fail "$2 leaves its buttons to the window manager"
  ((MWM_FUNCTIONS & 0x18)) && fail "$2 offers minimise or maximise"
  ((MWM_DECORATIONS & 0x60)) && fail "$2 asks for minimise or maximise buttons"
  return 0
}

keys() { xdotool key --delay 30 "$@"; }
type_text() { xdotool type --delay 20 -- "$1"; }

alive() { kill -0 "$APP_PID" 2>/dev/null || fail "gradewise is gone ($*)"; }

# Starts gradewise with the given arguments and waits for its main window (MAIN).
start_gradewise() {
  "$GRADEWISE" "$@" >"$WORK/gradewise.log" 2>&1 &
  APP_PID=$!
  MAIN=$(wait_window '^Gradewise$')
  xdotool windowactivate --sync "$MAIN" 2>/dev/null || true
  wait_active "$MAIN" "the main window"
}

# Waits until a curve file named on the command line has been opened: opening lists
# it among the recent files in the settings.
wait_opened() { poll 10 grep -q "^RecentFile1=$1\$" "$SETTINGS" || fail "$1 was not opened"; }

# Waits for gradewise to end; its exit status as STATUS.
wait_ended() {
  poll 10 sh -c "! kill -0 $APP_PID 2>/dev/null" || fail "gradewise did not end ($1)"
  STATUS=0
  wait "$APP_PID" || STATUS=$?
  APP_PID=""
}

# File > Exit.
exit_gradewise() {
  keys alt+f
  sleep 0.2
  keys x
}

# Types the values into a curve window's inputs from the focused one on, Tab between
# them, and solves with Enter in the last.
type_and_solve() {
  local value first=1
  for value in "$@"; do
    [ $first = 1 ] || keys Tab
    first=0
    type_text "$value"
  done
  keys Return
}

# Options > Curves > Vertical, answered with the units given (Metric or English;
# none keeps the dialog's choice).
new_curve() {
  local before
  before=$(windows_named '^Measurement Info$')
  keys alt+o
  sleep 0.2
  keys c v
  UNITS=$(wait_dialog '^Measurement Info$' $before)
  case ${1:-} in
    English) keys Down ;;
    Metric) keys Up ;;
  esac
  keys Return
  wait_gone "$UNITS" "the units dialog"
}
