#pragma once
// The files gradewise-cli's profile commands read: LandXML, CSV or a curve file, and
// the profile each one gives.

#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "core/profile_sheet.h"

namespace gw::cli {

enum class InputKind { LandXml, Csv, CurveFile };

// By the file's extension: .xml LandXML, .csv a CSV profile, .gwf a curve file; any
// other name is told by its first character ('<' LandXML, '"' a curve file, else CSV).
InputKind KindOf(const std::string& path, std::string_view bytes);

struct InputFile {
    std::string path;
    std::string bytes;
    InputKind kind = InputKind::Csv;
};

// A LandXML file may carry surfaces and alignments besides its profile: up to this
// much is read. pugixml's tree takes at most a few times the file's size.
inline constexpr std::size_t kLandXmlReadLimit = 16 * 1024 * 1024;

// Reads FILE whole and tells its kind. A curve file is read as the program opens one
// (its first 4 MiB); a CSV file over 4 MiB and a LandXML file over 16 MiB are
// refused. The exit status: 0, or 2 with the message.
int ReadInputFile(const std::string& path, InputFile& file, std::ostream& err);

// The curve in a curve file's bytes as opening it in the program gives it, unsolved.
CurveSheet OpenedCurve(std::string_view bytes);

struct ProfileSource {
    ProfileDocument document;
    std::optional<Profile> profile;
    std::string error;  // the reader's or the profile's refusal
};

// The profile of a file's bytes: a curve file is solved as Calc solves it and gives a
// profile of its one curve. `profileName` picks a ProfAlign of a LandXML file.
ProfileSource ReadProfileSource(const std::string& path, std::string_view bytes,
                                const std::optional<std::string>& profileName);

// The profile of a file read. The exit status: 0 done; 1 its content is refused, with
// a message naming FILE and the line or element.
int LoadProfile(const InputFile& file, const std::optional<std::string>& profileName, ProfileSource& source,
                std::ostream& err);

}  // namespace gw::cli
