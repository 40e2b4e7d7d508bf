#!/usr/bin/env bash
# Builds everything and runs every test, headless.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev -j "$(nproc)"
