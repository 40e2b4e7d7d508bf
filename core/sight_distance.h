#pragma once

#include <string_view>

#include "core/curve_sheet.h"

namespace gw {

// Which of the two sight-distance formulas held: the sight distance within the
// curve ("S<L", equality included) or reaching past it ("S>L").
enum class SightCase { None, WithinCurve, BeyondCurve };

struct SightDistance {
    std::string_view kind;  // "SSD" on a crest, "HSD" on a sag, empty for equal grades
    double distance = 0;    // not finite when there is no number to show
    SightCase governing = SightCase::None;
};

// The sight distance a curve of length L (ft or m) between grades G1 and G2 (percent)
// allows, with the program's own eye, object and headlight constants.
SightDistance ComputeSightDistance(double L, double G1, double G2, bool metric);

// The last step of both solvers: the kind of sight distance into lblSDL and the
// distance into txtSD, from txtLC, txtG1 and txtG2 as they stand. Equal grades
// write nothing.
void ApplySightDistance(CurveSheet& sheet);

}  // namespace gw
