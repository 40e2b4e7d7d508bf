#pragma once
// The solved curve as geometry: the parabola between PVC and PVT and the numbers an
// engineer reads off it (grade and elevation anywhere, turning point, K).

#include <optional>
#include <string>

#include "core/curve_sheet.h"
#include "core/sight_distance.h"

namespace gw {

// A, the algebraic difference of two grades in percent.
double GradeChange(double g1, double g2);
// K = L / A; none when A is 0.
std::optional<double> RateOfCurvature(double length, double gradeChange);
// Grades of one strict sign, both rising or both falling: the curve between them has
// no high or low point.
bool GradesShareSign(double g1, double g2);

struct CurveGeometry {
    double pvc = 0;  // station value of the PVC (ft or m)
    double pvcElevation = 0;
    double length = 0;      // L
    double g1 = 0, g2 = 0;  // grades in percent
    bool metric = false;

    double pvt() const { return pvc + length; }
    double pvi() const { return pvc + length / 2; }
    double pviElevation() const { return pvcElevation + g1 / 100 * length / 2; }
    double gradeChange() const { return GradeChange(g1, g2); }
    bool isCrest() const { return g1 > g2; }

    // (g2 - g1) / L / 2 with the grades as fractions: the parabola's x^2 term. Not
    // finite when the length is too short for the change of grade.
    double HalfRateOfChange() const;
    // x is the distance from the PVC along the curve, 0 <= x <= L.
    double GradeAt(double x) const;
    double ElevationAt(double x) const;

    // Distance from the PVC to the high or low point, as the solver places the turning
    // point: none when both grades share a strict sign, the grades are equal or L <= 0.
    std::optional<double> TurningPoint() const;
    std::optional<double> RateOfCurvature() const { return gw::RateOfCurvature(length, gradeChange()); }

    SightDistance Sight() const;
};

// The geometry of a solved sheet, read from its fields as the elevation run reads them.
CurveGeometry ReadCurveGeometry(const CurveSheet& solved);

// A station value as WHOLE+PLUS with the plus part padded to the station's width
// ("10+00.0", "2+050.0", "-0+25.0"), in the number format.
std::string StationText(double value, bool metric);
// The same text appended to `out`, for long tables.
void AppendStationText(std::string& out, double value, bool metric);

}  // namespace gw
