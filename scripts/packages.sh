# The Debian packages each set-up command needs; sourced by the scripts.
# shellcheck disable=SC2034
BUILD_PACKAGES=(build-essential cmake ninja-build qt6-base-dev)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev xvfb xauth fonts-liberation poppler-utils)
