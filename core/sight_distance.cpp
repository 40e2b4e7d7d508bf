#include "core/sight_distance.h"

#include <cmath>

#include "core/curve_geometry.h"
#include "core/design_check.h"
#include "core/numbers.h"

namespace gw {

// The constants are the older crest constant C and the headlight constant H of the
// design formulas; the solvers have always used these.
SightDistance ComputeSightDistance(double L, double G1, double G2, bool metric) {
    const double A = GradeChange(G1, G2);
    const double C = CrestConstant(CrestConstants::Older, metric);
    const double H = HeadlightConstant(metric);
    const double beam = kHeadlightBeam;

    SightDistance sd;
    sd.governing = SightCase::WithinCurve;
    double& S = sd.distance;
    if (G1 > G2) {
        sd.kind = "SSD";
        S = std::sqrt(L * C / A);
        if (!(S <= L)) {
            S = C / 2 / A + L / 2;
            sd.governing = SightCase::BeyondCurve;
        }
    } else if (G2 > G1) {
        sd.kind = "HSD";
        S = (beam * L + std::sqrt(beam * beam * L * L + 4 * H * A * L)) / (2 * A);
        if (!(S <= L)) {
            const double divisor = 2 * A - beam;
            // With A of 1.75 % or less the headlight beam never meets the road beyond
            // the curve: the distance is unlimited, and we show no number for it.
            S = divisor > 0 ? (A * L + H) / divisor : NAN;
            sd.governing = SightCase::BeyondCurve;
        }
    } else {
        return SightDistance{};
    }
    // A negative length of curve has no sight distance; show none rather than a
    // number from the wrong formula.
    if (L < 0) {
        S = NAN;
        sd.governing = SightCase::None;
    }
    return sd;
}

void ApplySightDistance(CurveSheet& sheet) {
    const SightDistance sd = ComputeSightDistance(ReadNumber(sheet.txtLC), ReadNumber(sheet.txtG1),
                                                  ReadNumber(sheet.txtG2), sheet.IsMetric());
    if (sd.kind.empty()) return;
    sheet.lblSDL = std::string(sd.kind);
    sheet.txtSD = FormatNumber(sd.distance);  // empty when S is not finite
}

}  // namespace gw
