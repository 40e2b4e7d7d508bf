#include "design_check.h"

#include <algorithm>
#include <array>

namespace gw {
namespace {

// Design stopping sight distance on a level roadway, rounded for design.
constexpr std::array<DesignSpeedRow, 14> kEnglishRows = {{
    {15, 80}, {20, 115}, {25, 155}, {30, 200}, {35, 250}, {40, 305}, {45, 360},
    {50, 425}, {55, 495}, {60, 570}, {65, 645}, {70, 730}, {75, 820}, {80, 910},
}};
constexpr std::array<DesignSpeedRow, 12> kMetricRows = {{
    {20, 20}, {30, 35}, {40, 50}, {50, 65}, {60, 85}, {70, 105},
    {80, 130}, {90, 160}, {100, 185}, {110, 220}, {120, 250}, {130, 285},
}};

template <size_t N>
std::optional<DesignSpeedRow> Lookup(const std::array<DesignSpeedRow, N>& rows, double speed) {
    if (!(speed >= rows.front().speed)) return std::nullopt;  // also refuses NaN
    for (const DesignSpeedRow& row : rows) {
        if (speed <= row.speed) return row;
    }
    return std::nullopt;
}

// Headlight height plus the beam's rise per unit of distance (tan 1 degree, as 3.5 / 100).
double HeadlightReach(double S, bool metric) { return (metric ? 120.0 : 400.0) + 3.5 * S; }

// The S < L form holds when the length it gives is at least S; otherwise the S > L
// form, which goes below zero for a small change of grade: no curve is needed then.
MinimumLength Either(double A, double S, double divisor) {
    const double within = A * S * S / divisor;
    if (within >= S) return {within, true};
    return {std::max(0.0, 2 * S - divisor / A), false};
}

}  // namespace

std::optional<DesignSpeedRow> DesignStoppingSightDistance(double speed, bool metric) {
    return metric ? Lookup(kMetricRows, speed) : Lookup(kEnglishRows, speed);
}

DesignSpeedRow SlowestDesignSpeed(bool metric) { return metric ? kMetricRows.front() : kEnglishRows.front(); }
DesignSpeedRow FastestDesignSpeed(bool metric) { return metric ? kMetricRows.back() : kEnglishRows.back(); }

double CrestConstant(CrestConstants which, bool metric) {
    if (which == CrestConstants::Older) return metric ? 404 : 1329;
    return metric ? 658 : 2158;
}

MinimumLength CrestMinimumLength(double A, double S, double C) { return Either(A, S, C); }

MinimumLength SagMinimumLength(double A, double S, bool metric) { return Either(A, S, HeadlightReach(S, metric)); }

}  // namespace gw
