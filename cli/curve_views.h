#pragma once
// table and plot of a curve file: one curve from PVC to PVT with what the file holds
// beyond a profile, its offsets and its elevation rows.

#include <ostream>
#include <string>

#include "core/curve_sheet.h"

namespace gw::cli {

// The curve as Calc solves it, for a table or a plot. The exit status: 0, or 1 with
// the message when Calc refuses it or its length of curve is not greater than 0.
int SolveForDrawing(CurveSheet& sheet, const char* command, std::ostream& err);

// Station, distance from the PVC, grade, elevation with the offsets, and the named
// point at every even station of `interval`; as aligned text with the offsets said
// in a line above, or as CSV. 1 when an elevation cannot be computed.
int CurveTable(const CurveSheet& solved, double interval, bool csv, std::ostream& out, std::ostream& err);

// The drawing of the curve with the file's elevation rows as points. 1 when it cannot
// be drawn to scale; 3 when a row lies off the curve (drawn without it and the rows
// after it, as the elevations window stops).
int CurvePlot(CurveSheet& solved, const std::string& title, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
