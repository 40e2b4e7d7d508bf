#!/usr/bin/env bash
# Builds Gradewise and solves the bundled example curve (any extra arguments go to
# gradewise-cli instead).
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}"
cmake --preset release >/dev/null
cmake --build --preset release
cli=build/release/cli/gradewise-cli
if [ $# -gt 0 ]; then
  exec "$cli" "$@"
fi
echo "== gradewise-cli solve --elevations examples/english-crest.gwf --json"
"$cli" solve --elevations --json examples/english-crest.gwf
echo "== gradewise-cli report (the same curve, solved)"
"$cli" solve --elevations examples/english-crest.gwf -o build/release/english-crest-solved.gwf
"$cli" report build/release/english-crest-solved.gwf
