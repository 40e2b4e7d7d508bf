#!/usr/bin/env bash
# A curve typed into a new window in each mode, solved with Enter and saved with
# File > Save As through the file dialog, holds exactly what gradewise-cli solve
# makes of the same inputs; nothing but the program's own settings is kept per user.
# Usage: typed_curve_test.sh GRADEWISE GRADEWISE_CLI
source "$(dirname "$0")/desktop.sh"
start_desktop
start_gradewise

# An unsolved curve file: the first line's units and the inputs; every other value empty.
# Values in file order, as Save writes them (the order of the format, not the window).
unsolved_file() {
  local units=$1 pvi_plus=$2 pvi_elev=$3 pvi=$4 g2=$5 g1=$6 lc=$7 pvt_elev=$8 pvt_plus=$9
  local pvt=${10} pvc_elev=${11} pvc_plus=${12} pvc=${13} options=${14}
  local empties20 i
  empties20='""'
  for i in $(seq 19); do empties20+=',""'; done
  printf '"","%s",,,,"%s"\r\n"%s","%s","%s","%s","%s","%s","%s"\r\n"%s","%s","%s","%s","",""\r\n%s,"",""\r\n%s\r\n%s\r\n%s\r\n"","",""\r\n' \
    "$units" "$pvi_plus" "$pvi_elev" "$pvi" "$g2" "$g1" "$lc" "$pvt_elev" "$pvt_plus" \
    "$pvt" "$pvc_elev" "$pvc_plus" "$pvc" "$options" "$empties20" "$empties20" "$empties20"
}

save_as() {
  local dialogs
  dialogs=$(windows_named '.')
  keys alt+f
  sleep 0.2
  keys a
  local dialog
  dialog=$(wait_dialog '.' $dialogs)
  type_text "$1"
  keys Return
  poll 10 test -s "$1" || fail "Save As wrote no $1"
  wait_gone "$dialog" "the save dialog"
}

# PVI mode, English: PVI 12+00 at 104 ft, grades 2 % and -2 %, 400 ft of curve.
new_curve English
type_and_solve 12 0 104 2 -2 400
save_as "$WORK/pvi.gwf"
unsolved_file English 0 104 12 -2 2 400 "" "" "" "" "" "" '#TRUE#,#FALSE#' >"$WORK/pvi-in.gwf"
"$GRADEWISE_CLI" solve "$WORK/pvi-in.gwf" >"$WORK/pvi-cli.gwf"
cmp "$WORK/pvi.gwf" "$WORK/pvi-cli.gwf" || { diff "$WORK/pvi.gwf" "$WORK/pvi-cli.gwf"; fail "PVI curve saved differs from gradewise-cli solve"; }

# PVC/PVT mode, metric: G1 -2 %, PVC 1+900 at 250 m, PVT 2+100 at 251 m. The mode is
# chosen from the keyboard: back from the first input to the PVC/PVT option, Space.
new_curve Metric
keys shift+Tab space
sleep 0.2
type_and_solve -2 1 900 250 2 100 251
save_as "$WORK/pvcpvt.gwf"
unsolved_file Metric "" "" "" "" -2 "" 251 100 2 250 900 1 '#FALSE#,#TRUE#' >"$WORK/pvcpvt-in.gwf"
"$GRADEWISE_CLI" solve "$WORK/pvcpvt-in.gwf" >"$WORK/pvcpvt-cli.gwf"
cmp "$WORK/pvcpvt.gwf" "$WORK/pvcpvt-cli.gwf" ||
  { diff "$WORK/pvcpvt.gwf" "$WORK/pvcpvt-cli.gwf"; fail "PVC/PVT curve saved differs from gradewise-cli solve"; }

exit_gradewise
wait_ended "Exit with both curves saved"
kept=$(cd "$XDG_CONFIG_HOME" && find . -type f | sort | tr '\n' ' ')
[ "$kept" = "./Gradewise/settings.ini " ] || fail "kept per user: $kept"
echo "both typed curves saved as gradewise-cli solves them; only Gradewise/settings.ini kept"
