#pragma once
// check: is the curve long enough for a design speed?

#include <ostream>
#include <string>

#include "core/curve_sheet.h"

namespace gw::cli {

extern const char* const kCheckHelp;

// Writes the findings and a closing one-line verdict for a design speed in mph or
// km/h; gives kDone, kTooShort, or kUsage for a speed outside the design table.
int RunCheck(const CurveSheet& solved, double speed, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
