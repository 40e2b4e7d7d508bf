#pragma once
// Profiles as comma-separated values: a header row that names the columns and says
// the units, then one row per PVI from the beginning to the end of the profile.
//
//   Station (ft),Elevation,Length,K,Length in,Length out
//   10+00,100.0,,,,
//   14+00,108.0,400,,,
//
// Station and Elevation are required; the unit, "(ft)" or "(m)", follows Station.
// A station is WHOLE+PLUS (10+00, 1+250.5) or a plain distance. A row's curve is a
// Length, or a K (L = K A), or a Length in with a Length out; none is a bare break.
// Blank lines and lines that begin with # are skipped.

#include <optional>
#include <string>
#include <string_view>

#include "core/profile_sheet.h"

namespace gw::cli {

struct CsvRead {
    std::optional<ProfileDocument> document;
    std::string error;  // names the line and the column at fault
};

CsvRead ReadProfileCsv(std::string_view bytes, const std::string& name);

}  // namespace gw::cli
