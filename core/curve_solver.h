#pragma once
// Calc: solves the curve from its PVI or from its two ends.

#include "core/curve_sheet.h"
#include "core/refusal.h"

namespace gw {

// cmdCalcP_Click: the solver of the sheet's mode (PVI when optPVI is on, else PVC/PVT).
// A refusal leaves the sheet exactly as it was. When a station field moved, the
// elevation rows are emptied and the sheet is marked changed.
Outcome Calculate(CurveSheet& sheet);

Outcome SolveFromPVI(CurveSheet& sheet);
Outcome SolveFromPVCPVT(CurveSheet& sheet);

}  // namespace gw
