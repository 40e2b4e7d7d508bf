#pragma once
// report --pdf: the printed pages come from gradewise-pdf, a small Qt program of its
// own, so that no other command loads Qt.

#include <ostream>
#include <string>

namespace gw::cli {

// Runs gradewise-pdf beside this program (or where GRADEWISE_PDF says) on FILE to the
// end and gives its exit status; 2 with a message when it cannot be run or dies.
int RunPdfHelper(const std::string& file, const std::string& out, int copies, std::ostream& err);

}  // namespace gw::cli
