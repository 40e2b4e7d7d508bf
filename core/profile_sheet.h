#pragma once
// Between profiles and curve sheets: a solved curve as a one-curve profile, and any
// symmetric curve of a profile as a curve sheet the program solves.

#include <array>
#include <map>
#include <string>
#include <utility>

#include "core/curve_sheet.h"
#include "core/profile.h"
#include "core/stations.h"

namespace gw {

// What a curve file holds beyond the geometry of its curve, as typed: the mode it is
// solved in, the stations of its elevation rows and its offsets. Carried with a
// profile, it brings a curve back as the same curve file.
struct CurveFileExtras {
    bool endsMode = false;                                            // solved from its PVC and PVT
    std::array<std::pair<std::string, std::string>, kRowCount> rows;  // whole station and plus texts
    std::string verticalOffset, horizontalOffset, crossSlope;
};

// A profile as a file gives it: its PVIs, its name, and the curve-file extras of any
// of its curves, by PVI index.
struct ProfileDocument {
    std::string name;
    ProfileInput input;
    std::map<size_t, CurveFileExtras> extras;
};

// The curve of a solved sheet as a profile that begins at its PVC and ends at its PVT,
// with the curve the elevation run computes: the PVC elevation, grades and length as
// their fields hold them.
ProfileDocument ProfileFromSheet(const CurveSheet& solved, std::string name);

// The texts of a station in a whole-station and a plus field, split in the decimal
// text of its 15 significant digits so that no binary noise reaches the plus part:
// 1234.56 ft gives "12" and "34.56", -25 gives "0" and "-25".
StationTexts StationFieldTexts(double value, bool metric);

// The symmetric curve at PVI `index` as a new, unsolved sheet in the PVI mode or in
// the PVC/PVT mode. Every number is written with its 15 significant digits.
CurveSheet SheetFromProfileCurve(const Profile& profile, size_t index, bool endsMode);

// The rows' stations and the offsets of the extras into the sheet's elevations
// window; the first solve of a sheet empties its rows, so this comes after it.
void PutRowsAndOffsets(const CurveFileExtras& extras, CurveSheet& sheet);

}  // namespace gw
