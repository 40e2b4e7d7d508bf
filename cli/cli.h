#pragma once
// gradewise-cli: curve files solved, auto-stationed and reported as the desktop
// program does, and whole profiles tabulated, drawn, checked, designed and exchanged.

#include <ostream>

namespace gw::cli {

enum ExitCode {
    kDone = 0,
    kRefused = 1,          // the input is refused: a check of the calculation, a file's content
    kUsage = 2,            // bad arguments, an unreadable file or an output not written
    kStationOffCurve = 3,  // Calculate TOS stopped at a station outside the curve
    kTooShort = 4,         // check: a curve is shorter than the design speed needs
    kNoSolution = 5,       // design: no length meets the condition; the answer says why
};

// Runs one command line. `out` takes the command's output; a caller writing it to
// the process's standard output goes through StandardOutput.
int Run(int argc, char** argv, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
