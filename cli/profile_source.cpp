#include "cli/profile_source.h"

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

std::string BaseName(const std::string& path) {
    std::string name = path.substr(path.find_last_of('/') + 1);
    const size_t dot = name.find_last_of('.');
    if (dot != std::string::npos && dot > 0) name.resize(dot);
    return name;
}

// The curve as opening the file in the program and pressing Calc gives it.
ProfileSource FromCurveFile(std::string_view bytes, const std::string& name) {
    ProfileSource out;
    CurveSheet sheet = OpenedCurve(bytes);
    if (Outcome refused = Calculate(sheet)) {
        out.error = refused->message;
        return out;
    }
    out.document = ProfileFromSheet(sheet, name);
    return out;
}

}  // namespace

CurveSheet OpenedCurve(std::string_view bytes) { return LoadStoredCurve(ParseCurveFile(bytes), kMetric); }

InputKind KindOf(const std::string& path, std::string_view bytes) {
    std::string extension;
    const size_t dot = path.find_last_of('.');
    if (dot != std::string::npos && path.find('/', dot) == std::string::npos) extension = path.substr(dot + 1);
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (extension == "xml") return InputKind::LandXml;
    if (extension == "csv") return InputKind::Csv;
    if (extension == "gwf") return InputKind::CurveFile;
    const auto first =
        std::find_if(bytes.begin(), bytes.end(), [](char c) { return !std::isspace(static_cast<unsigned char>(c)); });
    if (first != bytes.end() && *first == '<') return InputKind::LandXml;
    if (first != bytes.end() && *first == '"') return InputKind::CurveFile;
    return InputKind::Csv;
}

ProfileSource ReadProfileSource(const std::string& path, std::string_view bytes,
                                const std::optional<std::string>& profileName) {
    ProfileSource out;
    switch (KindOf(path, bytes)) {
        case InputKind::LandXml: {
            LandXmlRead read = ReadLandXml(bytes, profileName);
            if (!read.document) {
                out.error = read.error;
                return out;
            }
            out.document = std::move(*read.document);
            break;
        }
        case InputKind::Csv: {
            CsvRead read = ReadProfileCsv(bytes, BaseName(path));
            if (!read.document) {
                out.error = read.error;
                return out;
            }
            out.document = std::move(*read.document);
            break;
        }
        case InputKind::CurveFile:
            out = FromCurveFile(bytes, BaseName(path));
            if (!out.error.empty()) return out;
            break;
    }
    ProfileOutcome built = BuildProfile(out.document.input);
    out.profile = std::move(built.profile);
    out.error = built.error;
    return out;
}

int ReadInputFile(const std::string& path, InputFile& file, std::ostream& err) {
    std::string error;
    file.path = path;
    if (!ReadFileBytes(path, file.bytes, error, kLandXmlReadLimit)) {
        err << "gradewise-cli: cannot read '" << path << "': " << error << "\n";
        return kUsage;
    }
    file.kind = KindOf(path, file.bytes);
    const std::size_t limit = file.kind == InputKind::LandXml ? kLandXmlReadLimit : kCurveFileReadLimit;
    if (file.kind == InputKind::CurveFile) {
        if (file.bytes.size() > limit) file.bytes.resize(limit);
    } else if (file.bytes.size() >= limit) {
        err << "gradewise-cli: '" << path << "' is larger than " << limit / (1024 * 1024) << " MiB, "
            << (file.kind == InputKind::LandXml ? "the most read of a LandXML file (export the alignment without "
                                                  "its surfaces)"
                                                : "more than a profile holds")
            << "\n";
        return kUsage;
    }
    return kDone;
}

int LoadProfile(const InputFile& file, const std::optional<std::string>& profileName, ProfileSource& source,
                std::ostream& err) {
    source = ReadProfileSource(file.path, file.bytes, profileName);
    if (!source.profile) {
        err << "gradewise-cli: " << file.path << ": " << source.error << "\n";
        return kRefused;
    }
    return kDone;
}

}  // namespace gw::cli
