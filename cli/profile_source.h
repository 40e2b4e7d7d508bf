#pragma once
// Reading a profile from any file gradewise-cli takes: LandXML, CSV or a curve file.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "core/profile_sheet.h"

namespace gw::cli {

struct ProfileSource {
    ProfileDocument document;
    std::optional<Profile> profile;
    std::string error;  // the reader's or the profile's refusal
};

// By the file's extension: .xml LandXML, .csv a CSV profile, .gwf a curve file solved
// as Calc solves it, as a profile of its one curve; any other name is told by its
// first character ('<' LandXML, '"' a curve file, else CSV). `profileName` picks a
// ProfAlign of a LandXML file.
ProfileSource ReadProfileSource(const std::string& path, std::string_view bytes,
                                const std::optional<std::string>& profileName);

// Reads and builds the profile of FILE. The exit status: 0 done; 2 the file cannot be
// read; 1 its content is refused, with a message naming FILE and the line or element.
int LoadProfile(const std::string& path, const std::optional<std::string>& profileName, ProfileSource& source,
                std::ostream& err);

}  // namespace gw::cli
