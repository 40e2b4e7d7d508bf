#pragma once
// A station table of any length: elevations from PVC to PVT at even stations of a
// given interval, with the PVC, PVT and turning point among them.

#include <cstddef>
#include <string>
#include <vector>

#include "core/curve_geometry.h"
#include "core/curve_sheet.h"

namespace gw {

struct StationRow {
    double station = 0;
    double distance = 0;    // from the PVC
    double grade = 0;       // percent
    std::string elevation;  // in the number format, with the stored offsets
    std::string point;      // "PVC", "TP", "PVT", "PVC/TP", ... or empty
};

struct StationTable {
    std::vector<StationRow> rows;
    // Why there is no table, when there is none: more rows than allowed, stations the
    // interval cannot tell apart, or a number that cannot be computed. A table is
    // given whole or not at all: a number that cannot be computed is never shown.
    std::string refused;
};

// Rows at the PVC, at every multiple of the interval strictly between PVC and PVT, at
// the turning point and at the PVT, in station order. The elevations carry the sheet's
// vertical offset and horizontal offset times cross slope, as the elevation run adds
// them. At most `mostRows` stations between the ends; interval > 0 and a curve of
// positive length.
StationTable StationRows(const CurveSheet& solved, double interval, std::size_t mostRows);

// Why the elevations of a solved curve cannot be computed at all (a length of curve too
// short for its change of grade), or the empty text when they can.
std::string WhyNoElevations(const CurveSheet& solved);

}  // namespace gw
