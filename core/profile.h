#pragma once
// A whole profile: a chain of PVIs from a beginning point to an end point, joined by
// tangent grades, with a parabolic vertical curve at any PVI between the two ends.
// PVIs are numbered from 1 (the beginning) in station order.

#include <optional>
#include <string>
#include <vector>

#include "core/curve_geometry.h"
#include "core/vertical_curve.h"

namespace gw {

// How the curve at a PVI is given.
struct CurveInput {
    enum class Kind { None, Length, RateOfCurvature, Unsymmetrical };
    Kind kind = Kind::None;
    double length = 0;                   // Length: L
    double k = 0;                        // RateOfCurvature: L = K A
    double lengthIn = 0, lengthOut = 0;  // Unsymmetrical: L1 before the PVI, L2 after
};

struct PviInput {
    double station = 0;  // ft or m
    double elevation = 0;
    CurveInput curve;
    std::string source;  // where it was read, for messages: "line 4"
};

struct ProfileInput {
    bool metric = false;
    std::vector<PviInput> pvis;  // the beginning, the PVIs between, the end
};

struct ProfilePvi {
    double station = 0;
    double elevation = 0;
    std::string source;
    std::optional<VerticalCurve> curve;  // none at the ends and at a bare grade break
};

// One stretch of the profile between two stations: a tangent (equal grades) or a
// parabola, as the single curve's geometry so that it is evaluated the same way.
struct ProfilePiece {
    CurveGeometry geometry;
    int pvi = -1;  // index of the PVI whose curve this is; -1 for a tangent
    double begin() const { return geometry.pvc; }
    double end() const { return geometry.pvt(); }
};

class Profile {
public:
    bool metric() const { return m_metric; }
    const std::vector<ProfilePvi>& pvis() const { return m_pvis; }
    double begin() const { return m_pvis.front().station; }
    double end() const { return m_pvis.back().station; }
    // Grade in percent of the tangent from PVI i to PVI i + 1 (indexes from 0).
    double TangentGrade(size_t i) const { return m_grades[i]; }
    const std::vector<ProfilePiece>& pieces() const { return m_pieces; }

    // The piece a station from begin to end lies on: the one that starts there when
    // two meet.
    size_t PieceAt(double station) const;
    double ElevationAt(double station) const;
    // The grade ahead, except at the end where it is the grade behind.
    double GradeAt(double station) const;

    // "PVI 3 (line 6)"; `index` from 0.
    std::string PviName(size_t index) const;

private:
    friend struct ProfileBuilder;
    bool m_metric = false;
    std::vector<ProfilePvi> m_pvis;
    std::vector<double> m_grades;
    std::vector<ProfilePiece> m_pieces;
};

struct ProfileOutcome {
    std::optional<Profile> profile;
    std::string error;  // why the profile was refused, naming the PVIs concerned
};

// Checks the input and works out grades, curves and pieces. Refused: fewer than two
// PVIs, a profile of no length, stations that do not increase, a curve at either
// end, a negative length or K, an unsymmetrical curve with a length of 0, and curves
// that overlap each other or reach past a neighbouring PVI. Curves that meet
// (PVT of one = PVC of the next) are allowed.
ProfileOutcome BuildProfile(const ProfileInput& input);

// "PVI 3 (line 6)": PVIs are numbered from 1.
std::string PviLabel(size_t index, const std::string& source);

}  // namespace gw
