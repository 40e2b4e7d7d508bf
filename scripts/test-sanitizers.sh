#!/usr/bin/env bash
# Builds everything under AddressSanitizer and UndefinedBehaviorSanitizer (leak
# checking on) and runs every test, headless.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/packages.sh
scripts/ensure-packages.sh "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan -j "$(nproc)"
