#include "core/curve_criteria.h"

#include <algorithm>

#include "core/numbers.h"

namespace gw {
namespace {

double Or(const std::optional<double>& given, double published) { return given ? *given : published; }

// A minimum as the output prints it decides, so the verdict never contradicts the digits.
bool Meets(double length, const MinimumLength& m) { return length >= ReadNumber(FormatNumber(m.length)); }

std::vector<CriterionResult> Criteria(const VerticalCurve& curve, const CheckSettings& s, const DesignSpeedRow& row) {
    const bool metric = s.metric;
    const SightHeights& h = s.heights;
    const double A = curve.gradeChange();
    const double S = row.sightDistance;
    std::vector<CriterionResult> out;
    const auto add = [&](Criterion c, double sight, double constant, MinimumLength m, bool branches, bool counted) {
        CriterionResult r;
        r.criterion = c;
        r.sightDistance = sight;
        r.constant = constant;
        r.minimum = m;
        r.branches = branches;
        r.counted = counted;
        r.met = Meets(curve.length(), m);
        out.push_back(r);
    };
    if (curve.isCrest()) {
        const double C = h.eye || h.object ? CrestConstantForHeights(Or(h.eye, DriverEyeHeight(metric)),
                                                                     Or(h.object, StoppingObjectHeight(metric)))
                                           : CrestConstant(CrestConstants::Current, metric);
        add(Criterion::CrestStopping, S, C, CrestMinimumLength(A, S, C), true, true);
        if (auto passing = DesignPassingSightDistance(row.speed, metric)) {
            const double P = h.eye || h.oncomingVehicle
                                 ? CrestConstantForHeights(Or(h.eye, DriverEyeHeight(metric)),
                                                           Or(h.oncomingVehicle, OncomingVehicleHeight(metric)))
                                 : PassingCrestConstant(metric);
            add(Criterion::CrestPassing, passing->sightDistance, P, CrestMinimumLength(A, passing->sightDistance, P),
                true, s.passing);
        }
    } else {
        const double H = h.headlight ? HeadlightConstantForHeight(*h.headlight) : HeadlightConstant(metric);
        add(Criterion::SagHeadlight, S, H, HeadlightMinimumLength(A, S, H), true, true);
        add(Criterion::SagComfort, 0, ComfortConstant(metric), {ComfortMinimumLength(A, row.speed, metric), true},
            false, true);
        if (s.clearance) {
            const double eye = Or(h.truckEye, TruckEyeHeight(metric));
            const double light = Or(h.taillight, TaillightHeight(metric));
            add(Criterion::StructureSight, S, StructureConstant(*s.clearance, eye, light),
                StructureMinimumLength(A, S, *s.clearance, eye, light), true, true);
        }
    }
    // A bare grade break has no curve to be worth building; the sight distances
    // still say whether it needs one.
    if (curve.length() > 0) {
        add(Criterion::GeneralMinimum, 0, 0, {GeneralMinimumLength(row.speed, metric), true}, false, true);
    }
    return out;
}

bool AllCountedMet(const std::vector<CriterionResult>& criteria) {
    return std::all_of(criteria.begin(), criteria.end(), [](const CriterionResult& r) { return !r.counted || r.met; });
}

}  // namespace

std::string CheckSettingsError(const CheckSettings& s) {
    const std::string unit = s.metric ? "km/h" : "mph";
    if (!DesignStoppingSightDistance(s.speed, s.metric)) {
        return "A design speed of " + FormatNumber(s.speed) + " " + unit + " is outside the design table (" +
               FormatNumber(SlowestDesignSpeed(s.metric).speed) + " to " +
               FormatNumber(FastestDesignSpeed(s.metric).speed) + " " + unit + ").";
    }
    const SightHeights& h = s.heights;
    for (const auto& height : {h.eye, h.object, h.oncomingVehicle, h.headlight, h.truckEye, h.taillight}) {
        if (height && !(*height > 0)) return "Every height must be greater than 0.";
    }
    if (s.clearance) {
        const double mean = (Or(h.truckEye, TruckEyeHeight(s.metric)) + Or(h.taillight, TaillightHeight(s.metric))) / 2;
        if (!(*s.clearance > mean)) {
            return "The clearance must be more than " + FormatNumber(mean) +
                   ", the mean height of the truck driver's eye and the taillight.";
        }
    }
    return {};
}

CurveCheck CheckCurve(const VerticalCurve& curve, const CheckSettings& settings) {
    CurveCheck out;
    out.stopping = *DesignStoppingSightDistance(settings.speed, settings.metric);
    if (curve.gradeChange() == 0) return out;
    out.criteria = Criteria(curve, settings, out.stopping);
    for (size_t i = 0; i < out.criteria.size(); ++i) {
        const CriterionResult& r = out.criteria[i];
        if (r.counted && (!out.governing || r.minimum.length > out.criteria[*out.governing].minimum.length)) {
            out.governing = i;
        }
    }
    out.longEnough = AllCountedMet(out.criteria);

    out.drainage.maximumK = CurbedDrainageMaximumK(settings.metric);
    if (curve.length() > 0) {
        out.drainage.flatZone = curve.FlatZone(kFlatGrade);
        out.drainage.levelPoint = curve.TurningPoint().has_value();
        out.drainage.warn = out.drainage.levelPoint && *curve.RateOfCurvature() > out.drainage.maximumK;
    }

    // Every minimum grows with the speed, so the speeds a curve supports run from
    // the slowest up to the first it does not.
    for (const DesignSpeedRow& row : DesignSpeedRows(settings.metric)) {
        if (!AllCountedMet(Criteria(curve, settings, row))) break;
        out.highestSpeed = row.speed;
    }
    return out;
}

}  // namespace gw
