#pragma once
// gradewise-cli: solve, auto-station and report curve files from scripts.

#include <ostream>

namespace gw::cli {

enum ExitCode {
    kDone = 0,
    kRefused = 1,       // a check refused the calculation
    kUsage = 2,         // bad arguments, an unreadable file or an output not written
    kStationOffCurve = 3,  // Calculate TOS stopped at a station outside the curve
    kTooShort = 4,         // check: the curve is shorter than the design speed needs
};

// Runs one command line. `out` takes the command's output; a caller writing it to
// the process's standard output goes through StandardOutput.
int Run(int argc, char** argv, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
