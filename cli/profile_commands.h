#pragma once
// The profile desk's commands, each a Handler of the command table: profile, table,
// plot, check, design, export and import, over a LandXML, CSV or curve file.

#include <ostream>

namespace gw::cli {

class Arguments;

int RunProfileListing(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunTable(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunPlot(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunCheck(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunDesign(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunExport(const Arguments& arguments, std::ostream& out, std::ostream& err);
int RunImport(const Arguments& arguments, std::ostream& out, std::ostream& err);

}  // namespace gw::cli
