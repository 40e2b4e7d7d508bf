# The Debian packages each set-up command needs; sourced by the scripts.
# shellcheck disable=SC2034
# fonts-liberation makes "Arial", the report's font, resolve to its metric twin.
BUILD_PACKAGES=(build-essential cmake ninja-build qt6-base-dev fonts-liberation)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev xvfb xauth fonts-liberation poppler-utils)
FUZZ_PACKAGES=(clang libclang-rt-14-dev)
