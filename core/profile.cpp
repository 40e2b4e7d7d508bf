#include "core/profile.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "core/station_steps.h"

namespace gw {

std::string PviLabel(size_t index, const std::string& source) {
    std::string label = "PVI " + std::to_string(index + 1);
    if (!source.empty()) label += " (" + source + ")";
    return label;
}

std::string Profile::PviName(size_t index) const { return PviLabel(index, m_pvis[index].source); }

size_t Profile::PieceAt(double station) const {
    auto it = std::upper_bound(m_pieces.begin(), m_pieces.end(), station,
                               [](double s, const ProfilePiece& p) { return s < p.end(); });
    if (it == m_pieces.end()) return m_pieces.size() - 1;
    return static_cast<size_t>(it - m_pieces.begin());
}

double Profile::ElevationAt(double station) const {
    const ProfilePiece& p = m_pieces[PieceAt(station)];
    return p.geometry.ElevationAt(station - p.begin());
}

double Profile::GradeAt(double station) const {
    const ProfilePiece& p = m_pieces[PieceAt(station)];
    return p.geometry.GradeAt(station - p.begin());
}

// Builds a Profile from its input, or says why it cannot.
struct ProfileBuilder {
    const ProfileInput& in;
    Profile out;
    std::string error;

    std::string Name(size_t i) const { return PviLabel(i, in.pvis[i].source); }
    std::string At(double station) const { return StationText(station, in.metric); }

    bool Fail(std::string message) {
        error = std::move(message);
        return false;
    }

    bool CheckPoints() {
        const auto& p = in.pvis;
        if (p.size() < 2) {
            return Fail("A profile needs a beginning and an end point; this one has " + std::to_string(p.size()) +
                        (p.size() == 1 ? " PVI, " + Name(0) + "." : " PVIs."));
        }
        for (size_t i = 0; i < p.size(); ++i) {
            if (!std::isfinite(p[i].station) || !std::isfinite(p[i].elevation)) {
                return Fail(Name(i) + ": the station and the elevation must be numbers.");
            }
        }
        const bool allAtOneStation =
            std::all_of(p.begin(), p.end(), [&](const PviInput& v) { return v.station == p.front().station; });
        if (allAtOneStation) {
            return Fail("The profile has no length: " + Name(0) + " and " + Name(p.size() - 1) + " are both at " +
                        At(p.front().station) + ".");
        }
        // Stations closer than the station tolerance are one station: they print alike
        // and no file keeps them apart.
        for (size_t i = 0; i + 1 < p.size(); ++i) {
            if (!(p[i + 1].station > p[i].station + StationTolerance(p[i].station))) {
                return Fail(Name(i + 1) + " at " + At(p[i + 1].station) + " is not past " + Name(i) + " at " +
                            At(p[i].station) + ": stations must increase along the profile.");
            }
        }
        if (p.front().curve.kind != CurveInput::Kind::None) {
            return Fail(Name(0) + " begins the profile and cannot carry a vertical curve.");
        }
        if (p.back().curve.kind != CurveInput::Kind::None) {
            return Fail(Name(p.size() - 1) + " ends the profile and cannot carry a vertical curve.");
        }
        return true;
    }

    // L1 and L2 of the curve at PVI i, both 0 for none.
    bool Lengths(size_t i, double A, double& lengthIn, double& lengthOut, bool& symmetric) {
        const CurveInput& c = in.pvis[i].curve;
        symmetric = c.kind != CurveInput::Kind::Unsymmetrical;
        double L = 0;
        switch (c.kind) {
            case CurveInput::Kind::None: break;
            case CurveInput::Kind::Length: L = c.length; break;
            case CurveInput::Kind::RateOfCurvature:
                if (!(c.k >= 0))
                    return Fail("The K of the curve at " + Name(i) + " must be 0 or more, not " + FormatNumber(c.k) +
                                ".");
                L = c.k * A;
                break;
            case CurveInput::Kind::Unsymmetrical:
                lengthIn = c.lengthIn;
                lengthOut = c.lengthOut;
                if (!(lengthIn >= 0 && lengthOut >= 0) || ((lengthIn == 0) != (lengthOut == 0))) {
                    return Fail("The unsymmetrical curve at " + Name(i) + " needs both lengths greater than 0, not " +
                                FormatNumber(lengthIn) + " and " + FormatNumber(lengthOut) + ".");
                }
                return true;
        }
        if (!(L >= 0) || !std::isfinite(L)) {
            return Fail("The length of the curve at " + Name(i) + " must be 0 or more, not " + FormatNumber(L) + ".");
        }
        lengthIn = lengthOut = L / 2;
        return true;
    }

    bool PlaceCurves() {
        const auto& p = in.pvis;
        out.m_metric = in.metric;
        out.m_pvis.resize(p.size());
        for (size_t i = 0; i < p.size(); ++i) {
            out.m_pvis[i].station = p[i].station;
            out.m_pvis[i].elevation = p[i].elevation;
            out.m_pvis[i].source = p[i].source;
        }
        for (size_t i = 0; i + 1 < p.size(); ++i) {
            out.m_grades.push_back((p[i + 1].elevation - p[i].elevation) / (p[i + 1].station - p[i].station) * 100);
        }
        // How far along the profile is taken by what came before: a PVI or a PVT.
        double reach = p[0].station;
        size_t reachPvi = 0;
        bool reachIsCurve = false;
        for (size_t i = 1; i < p.size(); ++i) {
            double lengthIn = 0, lengthOut = 0;
            bool symmetric = true;
            const bool interior = i + 1 < p.size();
            if (interior &&
                !Lengths(i, std::fabs(out.m_grades[i] - out.m_grades[i - 1]), lengthIn, lengthOut, symmetric)) {
                return false;
            }
            const double from = p[i].station - lengthIn;
            if (from < reach - StationTolerance(reach)) {
                if (reachIsCurve && lengthIn > 0) {
                    return Fail("The curves at " + Name(reachPvi) + " and " + Name(i) + " overlap: the first ends at " +
                                At(reach) + ", after the second begins at " + At(from) + ".");
                }
                if (reachIsCurve) {
                    return Fail("The curve at " + Name(reachPvi) + " ends at " + At(reach) + ", past " + Name(i) +
                                " at " + At(p[i].station) + ".");
                }
                return Fail("The curve at " + Name(i) + " begins at " + At(from) + ", before " + Name(reachPvi) +
                            " at " + At(reach) + ".");
            }
            if (lengthIn > 0) {
                out.m_pvis[i].curve.emplace(p[i].station, p[i].elevation, out.m_grades[i - 1], out.m_grades[i],
                                            lengthIn, lengthOut, symmetric);
            }
            reach = p[i].station + lengthOut;
            reachPvi = i;
            reachIsCurve = lengthIn > 0;
        }
        return true;
    }

    void AddPiece(double begin, double elevation, double length, double g1, double g2, int pvi) {
        out.m_pieces.push_back({CurveGeometry{begin, elevation, length, g1, g2, in.metric}, pvi});
    }

    void CutPieces() {
        const auto& v = out.m_pvis;
        for (size_t j = 0; j + 1 < v.size(); ++j) {
            // The tangent of grade j, between the curves at its two PVIs.
            const double from = v[j].curve ? v[j].curve->pvt() : v[j].station;
            const double to = v[j + 1].curve ? v[j + 1].curve->pvc() : v[j + 1].station;
            const double g = out.m_grades[j];
            if (to > from) AddPiece(from, v[j].elevation + g / 100 * (from - v[j].station), to - from, g, g, -1);
            if (const auto& c = v[j + 1].curve) {
                for (int k = 0; k < c->partCount(); ++k) {
                    const CurveGeometry& part = c->part(k);
                    AddPiece(part.pvc, part.pvcElevation, part.length, part.g1, part.g2, static_cast<int>(j + 1));
                }
            }
        }
    }
};

ProfileOutcome BuildProfile(const ProfileInput& input) {
    ProfileBuilder b{input, Profile{}, {}};
    if (!b.CheckPoints() || !b.PlaceCurves()) return {std::nullopt, b.error};
    b.CutPieces();
    return {std::move(b.out), {}};
}

}  // namespace gw
