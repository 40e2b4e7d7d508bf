#pragma once
// The printed report as a PDF file: the same pages the desktop program prints.

#include <string>

#include "core/curve_sheet.h"

namespace gw::cli {

// False with a description in `error` when the file cannot be written.
bool WriteReportPdf(const CurveSheet& sheet, const std::string& path, int copies, std::string& error);

}  // namespace gw::cli
