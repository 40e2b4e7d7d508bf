#pragma once
// A station table as aligned text or as CSV.

#include <string>
#include <vector>

#include "core/station_rows.h"

namespace gw::cli {

// Columns: station (WHOLE+PLUS), distance from the PVC, grade in percent, elevation,
// and which point the row is (PVC, TP, PVT). `caption`, when given, is a line above.
std::string StationTableText(const std::vector<StationRow>& rows, bool metric, const std::string& caption);

// The same columns with a header row, comma-separated, LF line ends.
std::string StationTableCsv(const std::vector<StationRow>& rows, bool metric);

}  // namespace gw::cli
