#include "cli/profile_check.h"

#include <algorithm>
#include <array>
#include <vector>

#include "cli/cli.h"
#include "cli/profile_listing.h"
#include "cli/text_output.h"
#include "core/numbers.h"

namespace gw::cli {
namespace {

const char* Name(Criterion c) {
    switch (c) {
        case Criterion::CrestStopping: return "stopping sight distance";
        case Criterion::CrestPassing: return "passing sight distance";
        case Criterion::SagHeadlight: return "headlight sight distance";
        case Criterion::SagComfort: return "comfort";
        case Criterion::GeneralMinimum: return "general minimum";
        case Criterion::StructureSight: return "sight under the structure";
    }
    return "";
}

// The formula as used, with its constant: "L = 2 S - 2158 / A (S>L)".
std::string Formula(const CriterionResult& r, const CheckSettings& s) {
    const bool within = r.minimum.withinCurve;
    const std::string form = within ? " (S<L)" : " (S>L)";
    switch (r.criterion) {
        case Criterion::CrestStopping:
        case Criterion::CrestPassing: {
            const std::string C = ShortNumber(r.constant);
            return (within ? "L = A S^2 / " + C : "L = 2 S - " + C + " / A") + form;
        }
        case Criterion::SagHeadlight: {
            const std::string reach = "(" + ShortNumber(r.constant) + " + 3.5 S)";
            return (within ? "L = A S^2 / " + reach : "L = 2 S - " + reach + " / A") + form;
        }
        case Criterion::StructureSight: {
            const std::string D = ShortNumber(r.constant);
            const double eye = s.heights.truckEye ? *s.heights.truckEye : TruckEyeHeight(s.metric);
            const double light = s.heights.taillight ? *s.heights.taillight : TaillightHeight(s.metric);
            return (within ? "L = A S^2 / " + D : "L = 2 S - " + D + " / A") + form + ", 800 (" +
                   ShortNumber(*s.clearance) + " - (" + ShortNumber(eye) + " + " + ShortNumber(light) + ") / 2) = " + D;
        }
        case Criterion::SagComfort: return "L = A V^2 / " + ShortNumber(r.constant);
        case Criterion::GeneralMinimum: return s.metric ? "L = 0.6 V" : "L = 3 V";
    }
    return "";
}

std::string Aligned(const std::vector<std::array<std::string, 5>>& rows) {
    std::array<size_t, 5> width{};
    for (const auto& r : rows) {
        for (size_t c = 0; c < 5; ++c) width[c] = std::max(width[c], r[c].size());
    }
    std::string text;
    for (const auto& r : rows) {
        std::string line = " ";
        for (size_t c = 0; c < 5; ++c)
            line += " " + r[c] + std::string(c + 1 < 5 ? width[c] - r[c].size() + 1 : 0, ' ');
        while (!line.empty() && line.back() == ' ') line.pop_back();
        text += line + "\n";
    }
    return text;
}

}  // namespace

int ProfileCheckReport(const ProfileDocument& document, const Profile& profile, const CheckSettings& s,
                       std::ostream& out) {
    const bool metric = s.metric;
    const std::string unit = " " + LengthUnit(profile);
    const std::string speedUnit = metric ? " km/h" : " mph";
    const DesignSpeedRow row = *DesignStoppingSightDistance(s.speed, metric);
    out << "Check of " << ToUtf8(document.name) << " at " << ShortNumber(s.speed) << speedUnit;
    if (row.speed != s.speed) out << " (taken as " << ShortNumber(row.speed) << speedUnit << ")";
    out << ": stopping sight distance " << ShortNumber(row.sightDistance) << unit << " (AASHTO 2018, level roadway)\n";

    std::vector<std::string> tooShort;
    const auto& pvis = profile.pvis();
    for (size_t i = 1; i + 1 < pvis.size(); ++i) {
        const double g1 = profile.TangentGrade(i - 1), g2 = profile.TangentGrade(i);
        const VerticalCurve curve =
            pvis[i].curve ? *pvis[i].curve : VerticalCurve(pvis[i].station, pvis[i].elevation, g1, g2, 0, 0, true);
        out << "\n" << ToUtf8(profile.PviName(i)) << ": ";
        if (curve.gradeChange() == 0) {
            out << "no change of grade: no curve is needed\n";
            continue;
        }
        out << (curve.isCrest() ? "crest" : "sag") << ", A = " << FormatNumber(curve.gradeChange()) << " %, ";
        if (pvis[i].curve) {
            out << "L = " << FormatNumber(curve.length()) << unit << ", K = " << FormatNumber(*curve.RateOfCurvature())
                << (curve.symmetric() ? "" : " (unsymmetrical: its total length is checked)") << "\n";
        } else {
            out << "grade break without a curve (L = 0)\n";
        }
        const CurveCheck c = CheckCurve(curve, s);
        std::vector<std::array<std::string, 5>> rows;
        for (const CriterionResult& r : c.criteria) {
            const std::string sight = r.sightDistance > 0 ? "S = " + ShortNumber(r.sightDistance) + unit : "";
            const std::string status = r.met ? "met" : r.counted ? "NOT MET" : "not met, not required";
            rows.push_back({Name(r.criterion), sight, Formula(r, s), FormatNumber(r.minimum.length) + unit, status});
        }
        out << Aligned(rows);
        if (c.governing) {
            const CriterionResult& g = c.criteria[*c.governing];
            out << "  governs: " << Name(g.criterion) << ", " << FormatNumber(g.minimum.length) << unit << "\n";
            if (!c.longEnough) {
                tooShort.push_back(ToUtf8(profile.PviName(i)) + " needs " + FormatNumber(g.minimum.length) + unit +
                                   " for " + Name(g.criterion));
            }
        }
        if (pvis[i].curve) {
            const DrainageCheck& d = c.drainage;
            out << "  drainage: ";
            if (d.flatZone) {
                out << "the grade is within 0.30 % from " << StationText((*d.flatZone)[0], metric) << " to "
                    << StationText((*d.flatZone)[1], metric) << " ("
                    << FormatNumber((*d.flatZone)[1] - (*d.flatZone)[0]) << unit << ")";
            } else {
                out << "the grade is never within 0.30 %";
            }
            if (d.levelPoint) {
                out << "; K " << FormatNumber(*curve.RateOfCurvature())
                    << (d.warn ? " is above the " : " is within the ") << ShortNumber(d.maximumK)
                    << " that curbed roads allow" << (d.warn ? ": too flat to drain a curbed road" : "");
            }
            out << "\n";
        }
        out << "  supports design speeds up to "
            << (c.highestSpeed ? ShortNumber(*c.highestSpeed) + speedUnit : std::string("none in the table")) << "\n";
    }

    out << "\n";
    if (tooShort.empty()) {
        out << "Long enough: every curve meets every required criterion at " << ShortNumber(row.speed) << speedUnit
            << ".\n";
        return kDone;
    }
    out << "Too short: ";
    for (size_t k = 0; k < tooShort.size(); ++k) out << (k ? "; " : "") << tooShort[k];
    out << ".\n";
    return kTooShort;
}

}  // namespace gw::cli
