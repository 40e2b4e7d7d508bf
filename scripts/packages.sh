# The Debian packages each set-up command needs; sourced by the scripts.
# shellcheck disable=SC2034
# fonts-liberation makes "Arial", the report's font, resolve to its metric twin.
# libpugixml-dev reads and writes the LandXML profiles of gradewise-cli.
BUILD_PACKAGES=(build-essential cmake ninja-build qt6-base-dev fonts-liberation libpugixml-dev)
# desktop-file-utils, libxml2-utils and shared-mime-info check the installed desktop entry,
# icon and curve-file type; xmllint (libxml2-utils) also checks every LandXML export
# against the schema.
TEST_PACKAGES=(libgtest-dev libbenchmark-dev xvfb xauth fonts-liberation poppler-utils
  desktop-file-utils libxml2-utils shared-mime-info)
FUZZ_PACKAGES=(clang libclang-rt-14-dev)
