#pragma once

#include "curve_sheet.h"

namespace gw {

// The last step of both solvers: the kind of sight distance into lblSDL and the
// distance into txtSD, from txtLC, txtG1 and txtG2 as they stand. Equal grades
// write nothing.
void ApplySightDistance(CurveSheet& sheet);

}  // namespace gw
