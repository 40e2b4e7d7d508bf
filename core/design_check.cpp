#include "core/design_check.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gw {
namespace {

// Design stopping sight distance on a level roadway, rounded for design.
constexpr std::array<DesignSpeedRow, 14> kEnglishRows = {{
    {15, 80},
    {20, 115},
    {25, 155},
    {30, 200},
    {35, 250},
    {40, 305},
    {45, 360},
    {50, 425},
    {55, 495},
    {60, 570},
    {65, 645},
    {70, 730},
    {75, 820},
    {80, 910},
}};
constexpr std::array<DesignSpeedRow, 12> kMetricRows = {{
    {20, 20},
    {30, 35},
    {40, 50},
    {50, 65},
    {60, 85},
    {70, 105},
    {80, 130},
    {90, 160},
    {100, 185},
    {110, 220},
    {120, 250},
    {130, 285},
}};

// Passing sight distance for design of two-lane highways.
constexpr std::array<DesignSpeedRow, 13> kEnglishPassingRows = {{
    {20, 400},
    {25, 450},
    {30, 500},
    {35, 550},
    {40, 600},
    {45, 700},
    {50, 800},
    {55, 900},
    {60, 1000},
    {65, 1100},
    {70, 1200},
    {75, 1300},
    {80, 1400},
}};
constexpr std::array<DesignSpeedRow, 11> kMetricPassingRows = {{
    {30, 120},
    {40, 140},
    {50, 160},
    {60, 180},
    {70, 210},
    {80, 245},
    {90, 280},
    {100, 320},
    {110, 355},
    {120, 395},
    {130, 440},
}};

template <size_t N>
std::optional<DesignSpeedRow> Lookup(const std::array<DesignSpeedRow, N>& rows, double speed) {
    if (!(speed >= rows.front().speed)) return std::nullopt;  // also refuses NaN
    for (const DesignSpeedRow& row : rows) {
        if (speed <= row.speed) return row;
    }
    return std::nullopt;
}

double HeadlightReach(double S, double H) { return H + kHeadlightBeam * S; }

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

MinimumLength SagMinimumLength(double A, double S, bool metric) {
    return HeadlightMinimumLength(A, S, HeadlightConstant(metric));
}

MinimumLength HeadlightMinimumLength(double A, double S, double H) { return Either(A, S, HeadlightReach(S, H)); }

std::vector<DesignSpeedRow> DesignSpeedRows(bool metric) {
    return metric ? std::vector<DesignSpeedRow>(kMetricRows.begin(), kMetricRows.end())
                  : std::vector<DesignSpeedRow>(kEnglishRows.begin(), kEnglishRows.end());
}

std::optional<DesignSpeedRow> DesignPassingSightDistance(double speed, bool metric) {
    return metric ? Lookup(kMetricPassingRows, speed) : Lookup(kEnglishPassingRows, speed);
}

double CrestConstantForHeights(double eye, double object) {
    const double root = std::sqrt(eye) + std::sqrt(object);
    return 200 * root * root;
}

double PassingCrestConstant(bool metric) { return metric ? 864 : 2800; }
double DriverEyeHeight(bool metric) { return metric ? 1.08 : 3.5; }
double StoppingObjectHeight(bool metric) { return metric ? 0.60 : 2.0; }
double OncomingVehicleHeight(bool metric) { return metric ? 1.08 : 3.5; }
double HeadlightHeight(bool metric) { return metric ? 0.60 : 2.0; }
double HeadlightConstant(bool metric) { return metric ? 120 : 400; }
double HeadlightConstantForHeight(double headlight) { return 200 * headlight; }
double TruckEyeHeight(bool metric) { return metric ? 2.4 : 8; }
double TaillightHeight(bool metric) { return metric ? 0.6 : 2; }

MinimumLength StructureMinimumLength(double A, double S, double clearance, double eye, double object) {
    return Either(A, S, StructureConstant(clearance, eye, object));
}

double StructureConstant(double clearance, double eye, double object) { return 800 * (clearance - (eye + object) / 2); }

double ComfortMinimumLength(double A, double speed, bool metric) { return A * speed * speed / ComfortConstant(metric); }

double ComfortConstant(bool metric) { return metric ? 395 : 46.5; }

double GeneralMinimumLength(double speed, bool metric) { return (metric ? 0.6 : 3) * speed; }

double CurbedDrainageMaximumK(bool metric) { return metric ? 51 : 167; }

}  // namespace gw
