#include "sight_distance.h"

#include <cmath>

#include "numbers.h"

namespace gw {
namespace {

struct Constants {
    double crest;      // C
    double halfCrest;  // C / 2
    double headlight;  // H
    double fourH;      // 4 H
};

constexpr Constants kEnglish{1329, 664.5, 400, 1600};
constexpr Constants kMetric{404, 202, 120, 480};
constexpr double kBeam = 3.5;
constexpr double kBeamSquared = 12.25;

}  // namespace

SightDistance ComputeSightDistance(double L, double G1, double G2, bool metric) {
    const double A = std::fabs(G1 - G2);
    const Constants& k = metric ? kMetric : kEnglish;

    SightDistance sd;
    sd.governing = SightCase::WithinCurve;
    double& S = sd.distance;
    if (G1 > G2) {
        sd.kind = "SSD";
        S = std::sqrt(L * k.crest / A);
        if (!(S <= L)) {
            S = k.halfCrest / A + L / 2;
            sd.governing = SightCase::BeyondCurve;
        }
    } else if (G2 > G1) {
        sd.kind = "HSD";
        S = (kBeam * L + std::sqrt(kBeamSquared * L * L + k.fourH * A * L)) / (2 * A);
        if (!(S <= L)) {
            const double divisor = 2 * A - kBeam;
            // With A of 1.75 % or less the headlight beam never meets the road beyond
            // the curve: the distance is unlimited, and we show no number for it.
            S = divisor > 0 ? (A * L + k.headlight) / divisor : NAN;
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
