#pragma once
// The commands of the profile desk, each run from its parsed options. Results go to
// `out` (text to print or the bytes of the file to write), messages to `err`; the
// result is the exit status. Nothing reaches `out` when the input is refused.

#include <optional>
#include <ostream>
#include <string>

#include "cli/profile_design.h"
#include "core/curve_criteria.h"

namespace gw::cli {

// Where a command's profile comes from: a LandXML, CSV or curve file, and for a
// LandXML file with several profiles the name of one.
struct ProfileFileOptions {
    std::string file;
    std::optional<std::string> profileName;
};

// profile FILE [--json]
int RunProfileListing(const ProfileFileOptions& source, bool json, std::ostream& out, std::ostream& err);

// table FILE --every WHOLE+PLUS [--csv]: `every` as the user typed it.
int RunProfileTable(const ProfileFileOptions& source, const std::string& every, bool csv, std::ostream& out,
                    std::ostream& err);

// plot FILE: the SVG, titled with the file's name.
int RunProfilePlot(const ProfileFileOptions& source, std::ostream& out, std::ostream& err);

// check FILE --speed V [...]: the settings without their units, which the profile gives.
int RunProfileCheck(const ProfileFileOptions& source, CheckSettings settings, std::ostream& out, std::ostream& err);

// design FILE --pvi N (--k K | --through ... | --under ...)
int RunProfileDesign(const ProfileFileOptions& source, const DesignRequest& request, std::ostream& out,
                     std::ostream& err);

// export FILE --landxml OUT.xml: the LandXML text.
int RunExport(const ProfileFileOptions& source, std::ostream& out, std::ostream& err);

// import PROFILE.xml --curve N: the bytes of the curve file.
int RunImport(const ProfileFileOptions& source, size_t curve, std::ostream& out, std::ostream& err);

// "0+50" as a length in the profile's units; none unless it is WHOLE+PLUS greater than 0.
std::optional<double> IntervalOf(const std::string& every, bool metric);

}  // namespace gw::cli
