#pragma once
// A station table of any length: elevations from PVC to PVT at even stations of a
// given interval, with the PVC, PVT and turning point among them.

#include <string>
#include <vector>

#include "curve_geometry.h"
#include "curve_sheet.h"

namespace gw {

struct StationRow {
    double station = 0;
    double distance = 0;    // from the PVC
    double grade = 0;       // percent
    std::string elevation;  // in the number format, with the stored offsets
    std::string point;      // "PVC", "TP", "PVT", "PVC/TP", ... or empty
};

// Rows at the PVC, at every multiple of the interval strictly between PVC and PVT, at
// the turning point and at the PVT, in station order. The elevations carry the sheet's
// vertical offset and horizontal offset times cross slope, as the elevation run adds
// them. interval > 0 and a curve of positive length.
std::vector<StationRow> StationRows(const CurveSheet& solved, double interval);

}  // namespace gw
