#pragma once
// Elevations at stations along a solved curve, and the rules of the elevations window.

#include <string>
#include <string_view>
#include <vector>

#include "core/curve_sheet.h"
#include "core/refusal.h"

namespace gw {

// The vertical offset and the horizontal offset times the cross slope, as the
// elevations window's fields give them; an offset whose text is not a number is left
// out (both the horizontal offset and the cross slope must be numbers).
struct Offsets {
    bool withV = false;
    double V = 0;
    bool withCross = false;
    double cross = 0;
};
Offsets ReadOffsets(const ElevationTable& table);

// An elevation's text with the offsets added, as its field takes them: each stage
// reads the field's text back, adds its offset and writes the sum in the number
// format, so the final elevation is FormatNumber(FormatNumber(FormatNumber(E) + V) +
// X/100 H). False when the sum of a stage is not a number.
bool AddOffsets(std::string& elevationText, const Offsets& offsets);

// Calculate TOS: the elevation of every row with the offsets and cross slope.
// Stops at the first station outside the PVC-PVT range with a refusal that focuses
// that row's plus part; bCalcOK is true only after a run that passed row 19.
Outcome CalculateTOS(CurveSheet& sheet);

// Copies the curve's four PVC/PVT station texts into the elevations window;
// true when any of them differed from the copy it replaced.
bool CopyCurveStations(CurveSheet& sheet);

// Showing the elevations window: copy the stations and recompute every row when
// they moved.
Outcome ActivateElevations(CurveSheet& sheet);

// OK: recompute; the window may hide only when the result is empty.
Outcome ConfirmElevations(CurveSheet& sheet);

// Clear All of the elevations window: rows and offsets emptied, curve marked changed.
void ClearElevations(CurveSheet& sheet);

// Messages on leaving the whole-station or plus field of a row, in the order shown.
// A text like "x" can draw two messages.
std::vector<std::string_view> CheckRowWholeStation(const CurveSheet& sheet, int row);
std::vector<std::string_view> CheckRowPlus(const CurveSheet& sheet, int row);

}  // namespace gw
