#pragma once
// Designing the length of one symmetric vertical curve at a PVI: by K, through a
// control point, or under a structure with a clearance.

#include <optional>
#include <vector>

namespace gw {

// The PVI and its two grades (percent) that a design works with.
struct CurveFrame {
    double pviStation = 0;
    double pviElevation = 0;
    double g1 = 0, g2 = 0;
};

// L = K A, A the change of grade in percent.
double LengthForK(double K, const CurveFrame& frame);

struct Root {
    double length = 0;
    bool valid = false;  // the curve reaches the point: L >= 2 |station - PVI|
};

struct ControlPointDesign {
    // Roots of (a / 4) L^2 + (a d - 2 D) L + a d^2 = 0, smallest first, where a is the
    // change of grade as a fraction, d the distance of the point from the PVI and D its
    // height above the entering tangent produced. Empty when none is real.
    std::vector<Root> roots;
    std::optional<double> length;   // the valid root; none: no curve passes the point
    double qa = 0, qb = 0, qc = 0;  // the quadratic's coefficients, for showing it
    double reach = 0;               // 2 |d|: the shortest curve that reaches the point
};

// The length of the symmetric curve that passes through a point. Its product of
// roots is 4 d^2, so at most one root reaches the point; equal grades have no
// curve at all.
ControlPointDesign LengthThroughPoint(const CurveFrame& frame, double station, double elevation);

// The elevation the profile must have below a point given on the finished surface:
// the point less the vertical offset and the horizontal offset times the cross slope
// (percent), the offsets the elevations window adds.
double ProfileElevationBelow(double elevation, double verticalOffset, double horizontalOffset, double crossSlope);

struct ClearanceDesign {
    // AtMost: a sag rises with its length, so only curves up to `length` keep the
    // clearance. AtLeast: a crest sinks with its length. Any: every curve keeps it.
    // None: the tangent there is already too high, so no curve can.
    enum class Bound { AtMost, AtLeast, Any, None };
    Bound bound = Bound::None;
    double length = 0;
    double roadLimit = 0;        // underside less clearance: the road may be at most this high
    ControlPointDesign through;  // the curve through (station, roadLimit)
};

// A structure over the road at a station: the road there must be at most the
// underside less the clearance.
ClearanceDesign LengthUnderStructure(const CurveFrame& frame, double station, double underside, double clearance);

}  // namespace gw
