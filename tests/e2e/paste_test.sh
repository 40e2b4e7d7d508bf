#!/usr/bin/env bash
# A paste is an edit: in a curve opened from its file, the PVI station is copied and
# pasted over the plus part with the keyboard alone; File > Exit then asks whether
# to save, and Yes (Enter) writes the pasted value to the file.
# Usage: paste_test.sh GRADEWISE GRADEWISE_CLI EXAMPLE.gwf
source "$(dirname "$0")/desktop.sh"
example=$3
start_desktop
cp "$example" "$WORK/crest.gwf"
# The plus part of the PVI station is the last value of the first line.
plus_part() { head -1 "$1" | tr -d '\r' | awk -F, '{print $6}'; }
[ "$(plus_part "$WORK/crest.gwf")" = '"0"' ] || fail "the example's PVI plus part is $(plus_part "$WORK/crest.gwf")"

start_gradewise "$WORK/crest.gwf"
wait_opened "$WORK/crest.gwf"
# The opened window has the focus in its first input, the PVI station (12).
keys ctrl+a ctrl+c Tab ctrl+a ctrl+v
sleep 0.2
exit_gradewise
question=$(wait_dialog '^Gradewise$' "$MAIN")
keys Return  # Yes
wait_gone "$question" "the close question"
wait_ended "Exit after Yes"
[ "$(plus_part "$WORK/crest.gwf")" = '"12"' ] || fail "the file's PVI plus part is $(plus_part "$WORK/crest.gwf") after the paste"
echo "the pasted plus part was asked about and saved"
