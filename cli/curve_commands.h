#pragma once
// The commands on curve files that do what the desktop program does: solve,
// autostation and report. Each is a Handler of the command table.

#include <ostream>

namespace gw::cli {

class Arguments;

int RunSolve(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunAutostation(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunReport(const Arguments& arguments, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
