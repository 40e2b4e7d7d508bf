#!/usr/bin/env bash
# The real program started on two curve files named relative to the folder it was
# started in, as a shell user would: both open, under their absolute paths (the
# recent-file list records what was opened), the second with a name that is not
# valid UTF-8 kept byte for byte. Only existing files are named: a missing one
# would wait on a message box that nobody answers.
# Usage: open_at_start_test.sh GRADEWISE EXAMPLE.gwf
set -euo pipefail
program=$(realpath "$1")
example=$2

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root/config" "$root/road"
second=$'sec\xf6nd.gwf'  # Latin-1
cp "$example" "$root/road/first.gwf"
cp "$example" "$root/road/$second"

cd "$root/road"
status=0
XDG_CONFIG_HOME=$root/config GRADEWISE_QUIT_WHEN_IDLE=1 QT_QPA_PLATFORM=offscreen \
  timeout 30 "$program" first.gwf "$second" || status=$?
if [ "$status" -ne 0 ]; then
  echo "FAIL: gradewise ended with status $status (124: it waited for an answer)"
  exit 1
fi

settings=$root/config/Gradewise/settings.ini
expected=$(printf 'RecentFile1=%s\nRecentFile2=%s' "$root/road/$second" "$root/road/first.gwf")
listed=$(grep -a '^RecentFile' "$settings" || true)
if [ "$listed" != "$expected" ]; then
  echo "FAIL: recent files after start-up:"
  echo "$listed"
  echo "expected:"
  echo "$expected"
  exit 1
fi
echo "both files opened from the start folder"
