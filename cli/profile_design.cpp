#include "cli/profile_design.h"

#include <charconv>
#include <cmath>

#include "cli/cli.h"
#include "cli/profile_listing.h"
#include "cli/text_output.h"
#include "core/curve_design.h"
#include "core/numbers.h"

namespace gw::cli {
namespace {

std::string Place(double station, double elevation, bool metric) {
    return StationText(station, metric) + " at " + FormatNumber(elevation);
}

// A coefficient of the quadratic to ten significant digits, enough to follow the
// working without the last digits' binary noise (8.12, not 8.12000000000005).
std::string Coefficient(double value) {
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 10).ptr;
    double rounded = value;
    std::from_chars(text, end, rounded);
    return PlainNumberText(rounded);
}

void Roots(const ControlPointDesign& d, const std::string& unit, bool metric, double station, std::ostream& out) {
    out << "  as a quadratic in L: " << Coefficient(d.qa) << " L^2 " << (d.qb < 0 ? "- " : "+ ")
        << Coefficient(std::fabs(d.qb)) << " L " << (d.qc < 0 ? "- " : "+ ") << Coefficient(std::fabs(d.qc))
        << " = 0\n";
    if (d.roots.empty()) {
        out << "  roots: none real\n";
        return;
    }
    out << "  roots:";
    for (size_t i = 0; i < d.roots.size(); ++i) {
        const Root& r = d.roots[i];
        out << (i ? "," : "") << " " << FormatNumber(r.length) << unit;
        if (!(r.length > 0)) {
            out << " (no curve)";
        } else {
            out << (r.valid ? " (reaches " : " (does not reach ") << StationText(station, metric)
                << (r.valid ? ")" : ": a curve must be at least " + FormatNumber(d.reach) + unit + " long)");
        }
    }
    out << "\n";
}

// Whether the profile takes a curve of this length at the PVI: 0, or 5 with the
// refusal: a length that cannot be built is no solution. With open ends, a first or last PVI in the curve's way moves
// out along its tangent, as the tangents of a single curve run on.
int Fits(const ProfileDocument& document, size_t index, double length, bool openEnds, std::ostream& out) {
    ProfileInput input = document.input;
    PviInput& pvi = input.pvis[index];
    pvi.curve = CurveInput{};
    pvi.curve.kind = CurveInput::Kind::Length;
    pvi.curve.length = length;
    if (openEnds) {
        const auto moveOut = [&](PviInput& end, double station) {
            end.elevation += (end.elevation - pvi.elevation) / (end.station - pvi.station) * (station - end.station);
            end.station = station;
        };
        if (index == 1 && pvi.station - length / 2 < input.pvis.front().station) {
            moveOut(input.pvis.front(), pvi.station - length / 2);
        }
        if (index + 2 == input.pvis.size() && pvi.station + length / 2 > input.pvis.back().station) {
            moveOut(input.pvis.back(), pvi.station + length / 2);
        }
    }
    const ProfileOutcome built = BuildProfile(input);
    if (!built.profile) {
        out << "The profile refuses this length: " << ToUtf8(built.error) << "\n";
        return kNoSolution;
    }
    const VerticalCurve& c = *built.profile->pvis()[index].curve;
    out << (openEnds ? "The curve: PVC " : "It fits between its neighbours: PVC ")
        << Place(c.pvc(), c.pvcElevation(), input.metric) << ", PVT " << Place(c.pvt(), c.pvtElevation(), input.metric)
        << ".\n";
    return kDone;
}

}  // namespace

int ProfileDesignReport(const ProfileDocument& document, const Profile& profile, const DesignRequest& request,
                        std::ostream& out, std::ostream& err) {
    const auto& pvis = profile.pvis();
    if (request.pvi < 2 || request.pvi + 1 > pvis.size()) {
        err << "gradewise-cli: a curve goes at a PVI between the ends of the profile: PVI 2 to PVI " << pvis.size() - 1
            << "\n";
        return kUsage;
    }
    const size_t i = request.pvi - 1;
    const bool metric = profile.metric();
    const std::string unit = " " + LengthUnit(profile);
    const CurveFrame frame{pvis[i].station, pvis[i].elevation, profile.TangentGrade(i - 1), profile.TangentGrade(i)};
    out << "Curve at " << ToUtf8(profile.PviName(i)) << ": PVI " << Place(frame.pviStation, frame.pviElevation, metric)
        << ", G1 " << GradeText(frame.g1) << ", G2 " << GradeText(frame.g2) << ", A "
        << FormatNumber(std::fabs(frame.g2 - frame.g1)) << " %\n";

    if (request.k) {
        const double L = LengthForK(*request.k, frame);
        out << "Length by K = " << FormatNumber(*request.k) << ": L = K A = " << FormatNumber(L) << unit << "\n";
        return Fits(document, i, L, request.openEnds, out);
    }
    if (request.through) {
        const DesignRequest::Point& p = *request.through;
        const double y = ProfileElevationBelow(p.elevation, p.verticalOffset, p.horizontalOffset, p.crossSlope);
        out << "Through " << Place(p.station, p.elevation, metric);
        if (y != p.elevation) {
            out << ", on the profile " << FormatNumber(y) << " (less the vertical offset "
                << FormatNumber(p.verticalOffset) << " and the horizontal offset " << FormatNumber(p.horizontalOffset)
                << " times the cross slope " << FormatNumber(p.crossSlope) << " %)";
        }
        out << "\n";
        const ControlPointDesign d = LengthThroughPoint(frame, p.station, y);
        Roots(d, unit, metric, p.station, out);
        if (!d.length) {
            out << "No solution: no symmetric curve at this PVI passes through " << Place(p.station, y, metric)
                << ".\n";
            return kNoSolution;
        }
        out << "Length: " << FormatNumber(*d.length) << unit << "\n";
        return Fits(document, i, *d.length, request.openEnds, out);
    }
    if (!request.structure) {
        err << "gradewise-cli: design needs a K, a point to pass through or a structure to pass under\n";
        return kUsage;
    }
    const DesignRequest::Structure& st = *request.structure;
    const ClearanceDesign d = LengthUnderStructure(frame, st.station, st.underside, st.clearance);
    out << "Under a structure at " << StationText(st.station, metric) << ", underside " << FormatNumber(st.underside)
        << ", clearance " << FormatNumber(st.clearance) << ": the road there at most " << FormatNumber(d.roadLimit)
        << "\n";
    Roots(d.through, unit, metric, st.station, out);
    switch (d.bound) {
        case ClearanceDesign::Bound::None:
            out << "No solution: the tangent at " << StationText(st.station, metric)
                << " is already above it, and a sag curve only rises as it grows.\n";
            return kNoSolution;
        case ClearanceDesign::Bound::Any:
            out << "Any length keeps the clearance: the tangent there is low enough, and a crest curve only sinks "
                   "as it grows.\n";
            return kDone;
        case ClearanceDesign::Bound::AtMost:
            out << "Length: at most " << FormatNumber(d.length) << unit << " (a sag curve rises as it grows)\n";
            return Fits(document, i, d.length, request.openEnds, out);
        case ClearanceDesign::Bound::AtLeast:
            out << "Length: at least " << FormatNumber(d.length) << unit << " (a crest curve sinks as it grows)\n";
            return Fits(document, i, d.length, request.openEnds, out);
    }
    return kDone;
}

}  // namespace gw::cli
