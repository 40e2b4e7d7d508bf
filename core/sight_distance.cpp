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

void ApplySightDistance(CurveSheet& sheet) {
    const double L = ReadNumber(sheet.txtLC);
    const double G1 = ReadNumber(sheet.txtG1);
    const double G2 = ReadNumber(sheet.txtG2);
    const double A = std::fabs(G1 - G2);
    const Constants& k = sheet.IsMetric() ? kMetric : kEnglish;

    double S = 0;
    if (G1 > G2) {
        sheet.lblSDL = "SSD";
        S = std::sqrt(L * k.crest / A);
        if (!(S <= L)) S = k.halfCrest / A + L / 2;
    } else if (G2 > G1) {
        sheet.lblSDL = "HSD";
        S = (kBeam * L + std::sqrt(kBeamSquared * L * L + k.fourH * A * L)) / (2 * A);
        if (!(S <= L)) {
            const double divisor = 2 * A - kBeam;
            // With A of 1.75 % or less the headlight beam never meets the road beyond
            // the curve: the distance is unlimited, and we show no number for it.
            S = divisor > 0 ? (A * L + k.headlight) / divisor : NAN;
        }
    } else {
        return;
    }
    // A negative length of curve has no sight distance; show none rather than a
    // number from the wrong formula.
    if (L < 0) S = NAN;
    sheet.txtSD = FormatNumber(S);  // empty when S is not finite
}

}  // namespace gw
