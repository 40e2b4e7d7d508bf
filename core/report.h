#pragma once
// The lines of one copy of the printed curve report.

#include <string>
#include <string_view>
#include <vector>

#include "core/curve_sheet.h"

namespace gw {

// Every value is the field's text as it stands; nothing is computed or formatted.
// The date and time come in the platform's short formats.
std::vector<std::string> ReportLines(const CurveSheet& sheet, std::string_view date, std::string_view time);

}  // namespace gw
