#pragma once
// Every length criterion of a vertical curve at a design speed, which one governs,
// and the fastest design speed the curve supports.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/design_check.h"
#include "core/vertical_curve.h"

namespace gw {

// Heights in ft or m; each one not given takes the value behind the published
// constants.
struct SightHeights {
    std::optional<double> eye;              // driver's eye, both crest criteria
    std::optional<double> object;           // object on the road, stopping sight distance
    std::optional<double> oncomingVehicle;  // passing sight distance
    std::optional<double> headlight;
    std::optional<double> truckEye;   // under a structure
    std::optional<double> taillight;  // under a structure
};

struct CheckSettings {
    double speed = 0;  // mph or km/h
    bool metric = false;
    bool passing = false;             // crests must give passing sight distance
    std::optional<double> clearance;  // vertical clearance of a structure over the sags
    SightHeights heights;
};

// Why the settings cannot be checked (a speed outside the table, a height not greater
// than 0, a clearance not above the mean of truck eye and taillight); empty when
// they can.
std::string CheckSettingsError(const CheckSettings& settings);

enum class Criterion { CrestStopping, CrestPassing, SagHeadlight, SagComfort, GeneralMinimum, StructureSight };

struct CriterionResult {
    Criterion criterion = Criterion::GeneralMinimum;
    double sightDistance = 0;  // S, for the sight-distance criteria
    // The criterion's constant: C of the crest forms, H of the headlight forms,
    // D = 800 (C - (h1 + h2) / 2) under a structure, the divisor of A V^2 for
    // comfort; 0 for the general minimum.
    double constant = 0;
    MinimumLength minimum;
    bool branches = false;  // a sight-distance criterion: minimum.withinCurve names the form
    bool counted = true;    // decides the verdict (passing sight distance only when asked)
    bool met = false;       // L is at least the minimum as printed in the number format
};

struct DrainageCheck {
    std::optional<std::array<double, 2>> flatZone;  // where |grade| <= 0.30 %
    bool levelPoint = false;                        // the curve has a high or low point
    double maximumK = 0;                            // for curbed roads
    bool warn = false;                              // a level point and K above the maximum
};

struct CurveCheck {
    DesignSpeedRow stopping;  // the speed as taken from the table, and its S
    std::vector<CriterionResult> criteria;
    std::optional<size_t> governing;  // the counted criterion with the longest minimum
    bool longEnough = true;
    DrainageCheck drainage;
    std::optional<double> highestSpeed;  // none: not even the slowest tabulated speed
};

// The settings must be valid. Equal grades need no curve: no criteria, long enough.
// A bare grade break is a curve of length 0: the sight distances and comfort say
// whether it needs a curve; the general minimum and drainage are for curves built.
CurveCheck CheckCurve(const VerticalCurve& curve, const CheckSettings& settings);

}  // namespace gw
