#include "core/curve_design.h"

#include <cmath>

#include "core/curve_geometry.h"

namespace gw {
namespace {

// Points this close to the end of a curve are on it: L = 2 |d| is a double root.
bool Reaches(double length, double d) { return length >= 2 * std::fabs(d) * (1 - 1e-12) && length > 0; }

}  // namespace

double LengthForK(double K, const CurveFrame& frame) { return K * GradeChange(frame.g1, frame.g2); }

ControlPointDesign LengthThroughPoint(const CurveFrame& f, double station, double elevation) {
    ControlPointDesign out;
    const double a = (f.g2 - f.g1) / 100;
    if (a == 0) return out;
    const double d = station - f.pviStation;
    const double D = elevation - f.pviElevation - f.g1 / 100 * d;
    const double qa = a / 4, qb = a * d - 2 * D, qc = a * d * d;
    out.qa = qa;
    out.qb = qb;
    out.qc = qc;
    out.reach = 2 * std::fabs(d);
    const double discriminant = qb * qb - 4 * qa * qc;
    if (discriminant < 0) return out;
    // The form that does not subtract nearly equal numbers for the smaller root.
    const double q = -(qb + std::copysign(std::sqrt(discriminant), qb)) / 2;
    double r1 = q / qa, r2 = q != 0 ? qc / q : r1;
    if (r1 > r2) std::swap(r1, r2);
    out.roots = {{r1, Reaches(r1, d)}, {r2, Reaches(r2, d)}};
    for (const Root& r : out.roots) {
        if (r.valid) out.length = r.length;
    }
    return out;
}

double ProfileElevationBelow(double elevation, double verticalOffset, double horizontalOffset, double crossSlope) {
    return elevation - verticalOffset - crossSlope / 100 * horizontalOffset;
}

ClearanceDesign LengthUnderStructure(const CurveFrame& f, double station, double underside, double clearance) {
    ClearanceDesign out;
    out.roadLimit = underside - clearance;
    out.through = LengthThroughPoint(f, station, out.roadLimit);
    // Where no curve reaches, the road is on the tangent; the limit of every curve
    // as it shrinks to the point is that tangent too.
    const double d = station - f.pviStation;
    const double tangent = f.pviElevation + (d < 0 ? f.g1 : f.g2) / 100 * d;
    if (f.g2 > f.g1) {
        if (tangent > out.roadLimit || !out.through.length) return out;  // None
        out.bound = ClearanceDesign::Bound::AtMost;
    } else if (tangent <= out.roadLimit) {
        out.bound = ClearanceDesign::Bound::Any;
        return out;
    } else {
        if (!out.through.length) return out;  // None
        out.bound = ClearanceDesign::Bound::AtLeast;
    }
    out.length = *out.through.length;
    return out;
}

}  // namespace gw
