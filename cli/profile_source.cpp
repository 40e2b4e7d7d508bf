#include "profile_source.h"

#include <algorithm>
#include <cctype>

#include "cli/cli.h"
#include "cli/profile_csv.h"
#include "cli/profile_landxml.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "files/curve_file_io.h"

namespace gw::cli {
namespace {

enum class Kind { LandXml, Csv, CurveFile };

std::string BaseName(const std::string& path) {
    std::string name = path.substr(path.find_last_of('/') + 1);
    const size_t dot = name.find_last_of('.');
    if (dot != std::string::npos && dot > 0) name.resize(dot);
    return name;
}

Kind KindOf(const std::string& path, std::string_view bytes) {
    std::string extension;
    const size_t dot = path.find_last_of('.');
    if (dot != std::string::npos && path.find('/', dot) == std::string::npos) extension = path.substr(dot + 1);
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (extension == "xml") return Kind::LandXml;
    if (extension == "csv") return Kind::Csv;
    if (extension == "gwf") return Kind::CurveFile;
    const auto first =
        std::find_if(bytes.begin(), bytes.end(), [](char c) { return !std::isspace(static_cast<unsigned char>(c)); });
    if (first != bytes.end() && *first == '<') return Kind::LandXml;
    if (first != bytes.end() && *first == '"') return Kind::CurveFile;
    return Kind::Csv;
}

// The curve as opening the file in the program and pressing Calc gives it.
ProfileSource FromCurveFile(std::string_view bytes, const std::string& name) {
    ProfileSource out;
    CurveSheet sheet = LoadStoredCurve(ParseCurveFile(bytes), kMetric);
    if (Outcome refused = Calculate(sheet)) {
        out.error = refused->message;
        return out;
    }
    out.document = ProfileFromSheet(sheet, name);
    return out;
}

}  // namespace

ProfileSource ReadProfileSource(const std::string& path, std::string_view bytes,
                                const std::optional<std::string>& profileName) {
    ProfileSource out;
    switch (KindOf(path, bytes)) {
        case Kind::LandXml: {
            LandXmlRead read = ReadLandXml(bytes, profileName);
            if (!read.document) {
                out.error = read.error;
                return out;
            }
            out.document = std::move(*read.document);
            break;
        }
        case Kind::Csv: {
            CsvRead read = ReadProfileCsv(bytes, BaseName(path));
            if (!read.document) {
                out.error = read.error;
                return out;
            }
            out.document = std::move(*read.document);
            break;
        }
        case Kind::CurveFile:
            out = FromCurveFile(bytes, BaseName(path));
            if (!out.error.empty()) return out;
            break;
    }
    ProfileOutcome built = BuildProfile(out.document.input);
    out.profile = std::move(built.profile);
    out.error = built.error;
    return out;
}

int LoadProfile(const std::string& path, const std::optional<std::string>& profileName, ProfileSource& source,
                std::ostream& err) {
    std::string bytes, error;
    if (!ReadFileBytes(path, bytes, error)) {
        err << "gradewise-cli: cannot read '" << path << "': " << error << "\n";
        return kUsage;
    }
    if (bytes.size() >= kCurveFileReadLimit) {
        err << "gradewise-cli: '" << path << "' is larger than " << kCurveFileReadLimit / (1024 * 1024)
            << " MiB, more than a profile holds\n";
        return kUsage;
    }
    source = ReadProfileSource(path, bytes, profileName);
    if (!source.profile) {
        err << "gradewise-cli: " << path << ": " << source.error << "\n";
        return kRefused;
    }
    return kDone;
}

}  // namespace gw::cli
