#include "core/curve_geometry.h"

#include <charconv>
#include <cmath>

#include "core/numbers.h"
#include "core/stations.h"

namespace gw {

double GradeChange(double g1, double g2) { return std::fabs(g1 - g2); }

std::optional<double> RateOfCurvature(double length, double gradeChange) {
    if (gradeChange == 0) return std::nullopt;
    return length / gradeChange;
}

bool GradesShareSign(double g1, double g2) { return (g1 > 0 && g2 > 0) || (g1 < 0 && g2 < 0); }

double CurveGeometry::GradeAt(double x) const { return g1 + (g2 - g1) * x / length; }

// The elevation run's own order of operations, so a station gives the digits the
// elevations window shows for it.
double CurveGeometry::HalfRateOfChange() const { return (g2 / 100 - g1 / 100) / length / 2; }

double CurveGeometry::ElevationAt(double x) const { return pvcElevation + g1 / 100 * x + HalfRateOfChange() * (x * x); }

std::optional<double> CurveGeometry::TurningPoint() const {
    if (GradesShareSign(g1, g2) || g1 == g2 || !(length > 0)) return std::nullopt;
    return -g1 * length / (g2 - g1);
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
    std::string text;
    AppendStationText(text, value, metric);
    return text;
}

void AppendStationText(std::string& out, double value, bool metric) {
    if (!std::isfinite(value)) return;
    // Before station zero the whole station keeps the sign: -0+10, not 0+-10.
    if (value < 0) {
        out += '-';
        value = -value;
    }
    const double k = StationLength(UnitSystemName(metric));
    const double whole = std::trunc(value / k);
    const size_t plusAt = [&] {
        if (whole >= 1e15) {  // past fifteen digits the whole part is rounded: SplitStation's text
            const StationTexts t = SplitStation(value, UnitSystemName(metric));
            out += t.whole + "+";
            const size_t at = out.size();
            out += t.plus;
            return at;
        }
        // A whole number of fewer than sixteen digits is its own text, and its value
        // read back is exact, so this is SplitStation without the texts in between.
        std::string plus;
        AppendNumber(plus, value - whole * k);
        // A plus part that the number format rounds up to a whole station is the next
        // station's zero: 18+000.0, not 17+1000.0.
        const bool carry = plus.find('.') > (metric ? 3u : 2u);
        if (carry) plus = "0.0";
        char digits[24];
        out.append(digits, std::to_chars(digits, digits + sizeof digits,
                                         static_cast<unsigned long long>(carry ? whole + 1 : whole))
                               .ptr);
        out += '+';
        const size_t at = out.size();
        out += plus;
        return at;
    }();
    const size_t width = PlusPartWidth(metric);
    const size_t digits = out.find('.', plusAt) - plusAt;
    if (digits < width) out.insert(plusAt, width - digits, '0');
}

}  // namespace gw
