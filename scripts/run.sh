#!/usr/bin/env bash
# Builds Gradewise and starts the desktop program. Any arguments go to gradewise-cli
# instead (for example: ./scripts/run.sh solve examples/english-crest.gwf).
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}"
cmake --preset release >/dev/null
cmake --build --preset release
if [ $# -gt 0 ]; then
  exec build/release/cli/gradewise-cli "$@"
fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  # The virtual display suggested below must work as printed.
  scripts/ensure-packages.sh "${VIRTUAL_DISPLAY_PACKAGES[@]}"
  cat >&2 <<MSG
There is no display to show Gradewise on (\$DISPLAY and \$WAYLAND_DISPLAY are unset).
Run it from a desktop session, or on a virtual X display with xvfb-run:

    xvfb-run -a $PWD/build/release/app/gradewise

(gradewise-cli works without a display: $PWD/scripts/run.sh --help)
MSG
  exit 1
fi
exec build/release/app/gradewise
