#pragma once
// A station table over a whole profile: tangents and curves at every even station
// of an interval, with the PVIs, PVCs, PVTs and high and low points among the rows.

#include <string>
#include <vector>

#include "core/profile.h"

namespace gw {

struct ProfilePointName {
    double station = 0;
    std::string name;  // "PVC 2", "PVI 2", "PVT 2/PVC 3", "Low point 2", "PVI 1"
};

// The named points of the profile in station order; points at one station share a
// row, their names joined by "/". Numbers are those of the PVIs.
std::vector<ProfilePointName> NamedPoints(const Profile& profile);

struct ProfileRow {
    double station = 0;
    double elevation = 0;
    double grade = 0;  // percent, ahead of the station (behind it at the end)
    std::string point;
};

// More rows than this is a mistake in the interval, not a table anyone reads.
inline constexpr double kMostProfileRows = 1000000;

struct ProfileRowsOutcome {
    std::vector<ProfileRow> rows;
    std::string error;  // an interval that is not greater than 0 or gives too many rows
};

// Rows at every multiple of the interval from the beginning to the end of the
// profile and at every named point, in station order.
ProfileRowsOutcome ProfileRows(const Profile& profile, double interval);

}  // namespace gw
