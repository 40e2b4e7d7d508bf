#pragma once
// Turning a curve into the texts the command-line tool prints.

#include <string>
#include <string_view>

#include "core/curve_sheet.h"

namespace gw::cli {

// Field texts are bytes in the platform's 8-bit code page: valid UTF-8 passes
// through, any other byte is taken as Latin-1.
std::string ToUtf8(std::string_view bytes);

// The number format without a trailing ".0": "100", "102.5", "0.25".
std::string ShortNumber(double value);

std::string CurveJson(const CurveSheet& sheet);

// The report of one copy, LF line ends, dated now in the user's locale.
std::string ReportText(const CurveSheet& sheet);

}  // namespace gw::cli
