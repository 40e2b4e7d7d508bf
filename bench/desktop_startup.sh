#!/usr/bin/env bash
# Start-up time (process start to main window shown and idle) and peak memory of
# gradewise, side by side with a bare Qt main window with an MDI area, on one Xvfb display.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ -z "${GW_STARTUP_IN_XVFB:-}" ]; then
  source scripts/packages.sh
  scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" libbenchmark-dev hyperfine xvfb xauth time
  cmake --preset bench >/dev/null
  cmake --build --preset bench --target gradewise gw_bare_mdi_window
  exec env GW_STARTUP_IN_XVFB=1 xvfb-run -a -s "-screen 0 1280x800x24" "$0" "$@"
fi

export GRADEWISE_QUIT_WHEN_IDLE=1
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
bare=build/bench/bench/gw_bare_mdi_window
app=build/bench/app/gradewise

echo "== Start-up time"
hyperfine -N --warmup 5 --runs 50 "$bare" "$bare --menu" "$app"

echo "== Peak memory (maximum resident set size, median of 15 runs)"
for program in "$bare" "$bare --menu" "$app"; do
  # shellcheck disable=SC2086  # the program's own arguments
  for _ in $(seq 15); do /usr/bin/time -f %M $program 2>&1 >/dev/null | tail -1; done |
    sort -n | awk -v p="$program" '{v[NR]=$1} END {printf "%-40s %6.1f MiB\n", p, v[int((NR+1)/2)]/1024}'
done
