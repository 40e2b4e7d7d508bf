# The Debian packages each set-up command needs; sourced by the scripts.
# shellcheck disable=SC2034
# fonts-liberation makes "Arial", the report's and the windows' font, resolve to its
# metric twin; libxcb1-dev writes the window-manager hints of fixed dialogs.
# libpugixml-dev reads and writes the LandXML profiles of gradewise-cli.
BUILD_PACKAGES=(build-essential cmake ninja-build qt6-base-dev fonts-liberation libxcb1-dev libpugixml-dev)
# desktop-file-utils, libxml2-utils and shared-mime-info check the installed desktop entry,
# icon and curve-file type; xmllint (libxml2-utils) also checks every LandXML export
# against the schema. openbox, xdotool and x11-utils run the desktop program under a
# window manager on Xvfb and drive it as a user would (tests/e2e). clang-format checks
# that every source is formatted as .clang-format says.
TEST_PACKAGES=(libgtest-dev libbenchmark-dev xvfb xauth fonts-liberation poppler-utils
  desktop-file-utils libxml2-utils shared-mime-info openbox xdotool x11-utils clang-format)
FUZZ_PACKAGES=(clang libclang-rt-14-dev)
# xvfb-run, which run.sh suggests when there is no display.
VIRTUAL_DISPLAY_PACKAGES=(xvfb xauth)
