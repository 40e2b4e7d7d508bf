#include "curve_geometry.h"

#include <cmath>

#include "numbers.h"
#include "stations.h"

namespace gw {

double CurveGeometry::gradeChange() const { return std::fabs(g1 - g2); }

double CurveGeometry::GradeAt(double x) const { return g1 + (g2 - g1) * x / length; }

// The elevation run's own order of operations, so a station gives the digits the
// elevations window shows for it.
double CurveGeometry::HalfRateOfChange() const { return (g2 / 100 - g1 / 100) / length / 2; }

double CurveGeometry::ElevationAt(double x) const {
    return pvcElevation + g1 / 100 * x + HalfRateOfChange() * (x * x);
}

std::optional<double> CurveGeometry::TurningPoint() const {
    if ((g1 > 0 && g2 > 0) || (g1 < 0 && g2 < 0) || g1 == g2 || !(length > 0)) return std::nullopt;
    return -g1 * length / (g2 - g1);
}

std::optional<double> CurveGeometry::RateOfCurvature() const {
    if (gradeChange() == 0) return std::nullopt;
    return length / gradeChange();
}

SightDistance CurveGeometry::Sight() const { return ComputeSightDistance(length, g1, g2, metric); }

CurveGeometry ReadCurveGeometry(const CurveSheet& s) {
    CurveGeometry c;
    c.metric = s.IsMetric();
    c.pvc = JoinStation(s.txtPVCSTA, s.txtPVCSTAM, s.lblMorF);
    c.pvcElevation = ReadNumber(s.txtPVCEval);
    c.length = ReadNumber(s.txtLC);
    c.g1 = ReadNumber(s.txtG1);
    c.g2 = ReadNumber(s.txtG2);
    return c;
}

std::string StationText(double value, bool metric) {
    // Before station zero the whole station keeps the sign: -0+10, not 0+-10.
    if (value < 0) return "-" + StationText(-value, metric);
    const StationTexts t = SplitStation(value, metric ? kMetric : kEnglish);
    if (t.whole.empty()) return {};
    std::string plus = t.plus;
    const size_t width = metric ? 3 : 2;
    const size_t digits = plus.find('.');
    if (digits < width) plus.insert(0, width - digits, '0');
    return t.whole + "+" + plus;
}

}  // namespace gw
