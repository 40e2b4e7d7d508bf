#pragma once
// A station table over a whole profile, as aligned text or as CSV.

#include <string>
#include <vector>

#include "core/profile_rows.h"

namespace gw::cli {

// Columns: station (WHOLE+PLUS), elevation, grade in percent and the named point.
std::string ProfileTableText(const std::vector<ProfileRow>& rows, bool metric);

// The same columns with a header row, comma-separated, LF line ends. Written straight
// into one buffer: a long profile tabulated every foot has tens of thousands of rows.
std::string ProfileTableCsv(const std::vector<ProfileRow>& rows, bool metric);

}  // namespace gw::cli
