#pragma once
// Copies of the curve report on a line printer: each copy in Arial 12 on a page of
// its own, and nothing after the last.

#include <string>
#include <vector>

#include "print/line_printer.h"

namespace gw {

// False when the printer reported a failure; a count of 0 prints nothing but still
// ends the job.
bool PrintReportCopies(LinePrinter& printer, const std::vector<std::string>& lines, int copies);

}  // namespace gw
