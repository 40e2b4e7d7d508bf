#include "cli/profile_commands.h"

#include "cli/arguments.h"
#include "cli/cli.h"
#include "cli/curve_views.h"
#include "cli/profile_check.h"
#include "cli/profile_design.h"
#include "cli/profile_exchange.h"
#include "cli/profile_listing.h"
#include "cli/profile_plot.h"
#include "cli/profile_source.h"
#include "cli/profile_table.h"
#include "cli/station_input.h"
#include "cli/text_output.h"
#include "core/curve_criteria.h"
#include "core/curve_file.h"
#include "core/numbers.h"
#include "core/profile_rows.h"

namespace gw::cli {
namespace {

// --profile NAME, which only a LandXML file can answer.
std::optional<std::string> ProfileName(const Arguments& a, const InputFile& file) {
    const std::optional<std::string> name = a.Value("--profile");
    if (name && file.kind != InputKind::LandXml) {
        throw UsageError{"--profile picks a ProfAlign of a LandXML file; '" + file.path + "' is " +
                         (file.kind == InputKind::Csv ? "a CSV profile" : "a curve file")};
    }
    return name;
}

// FILE read and its profile built; any status but kDone ends the command.
int Load(const Arguments& a, InputFile& file, ProfileSource& source, std::ostream& err) {
    if (int status = ReadInputFile(a.File(), file, err)) return status;
    return LoadProfile(file, ProfileName(a, file), source, err);
}

// --every as a length in ft or m over a stretch of `span`: a station greater than 0
// that gives at most the most rows any table has.
double Interval(const Arguments& a, bool metric, double span) {
    const std::string every = *a.Value("--every");
    const StationReading interval = ReadStation(every, metric);
    if (!interval.value || !(*interval.value > 0)) {
        throw UsageError{"--every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50" +
                         (interval.value ? std::string() : " (" + interval.problem + ")")};
    }
    if (span / *interval.value > kMostProfileRows) {
        throw UsageError{"--every " + every + " gives more than " + FormatWholeNumber(kMostProfileRows) +
                         " rows over " + FormatNumber(span) + (metric ? " m" : " ft") + "; choose a longer interval"};
    }
    return *interval.value;
}

// A curve file by itself: its table and drawing keep its offsets and elevation rows.
bool CurveFileAlone(const Arguments& a, const InputFile& file) {
    return file.kind == InputKind::CurveFile && !ProfileName(a, file);
}

std::string FileName(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

}  // namespace

int RunProfileListing(const Arguments& a, std::ostream& out, std::ostream& err) {
    InputFile file;
    ProfileSource s;
    if (int status = Load(a, file, s, err)) return status;
    out << (a.Has("--json") ? ProfileListingJson(s.document, *s.profile) : ProfileListingText(s.document, *s.profile));
    return kDone;
}

int RunTable(const Arguments& a, std::ostream& out, std::ostream& err) {
    InputFile file;
    if (int status = ReadInputFile(a.File(), file, err)) return status;
    if (CurveFileAlone(a, file)) {
        CurveSheet sheet = OpenedCurve(file.bytes);
        if (int status = SolveForDrawing(sheet, "table", err)) return status;
        return CurveTable(sheet, Interval(a, sheet.IsMetric(), ReadNumber(sheet.txtLC)), a.Has("--csv"), out, err);
    }
    ProfileSource s;
    if (int status = LoadProfile(file, ProfileName(a, file), s, err)) return status;
    const Profile& p = *s.profile;
    const ProfileRowsOutcome rows = ProfileRows(p, Interval(a, p.metric(), p.end() - p.begin()));
    if (!rows.error.empty()) throw UsageError{"--every " + *a.Value("--every") + ": " + rows.error};
    out << (a.Has("--csv") ? ProfileTableCsv(rows.rows, p.metric()) : ProfileTableText(rows.rows, p.metric()));
    return kDone;
}

int RunPlot(const Arguments& a, std::ostream& out, std::ostream& err) {
    InputFile file;
    if (int status = ReadInputFile(a.File(), file, err)) return status;
    if (CurveFileAlone(a, file)) {
        CurveSheet sheet = OpenedCurve(file.bytes);
        if (int status = SolveForDrawing(sheet, "plot", err)) return status;
        return CurvePlot(sheet, "Profile of " + ToUtf8(FileName(file.path)), out, err);
    }
    ProfileSource s;
    if (int status = LoadProfile(file, ProfileName(a, file), s, err)) return status;
    const SvgDrawing drawing = ProfilePlotSvg(*s.profile, "Profile of " + ToUtf8(s.document.name));
    if (!drawing.refused.empty()) {
        err << "gradewise-cli: " << drawing.refused << "\n";
        return kRefused;
    }
    out << drawing.svg;
    return kDone;
}

int RunCheck(const Arguments& a, std::ostream& out, std::ostream& err) {
    CheckSettings settings;
    settings.speed =
        *a.Number("--speed", "a design speed greater than 0 (mph for a profile in feet, km/h in metres)", Positive);
    settings.passing = a.Has("--passing");
    settings.clearance = a.Number("--clearance", "a vertical clearance greater than 0", Positive);
    SightHeights& h = settings.heights;
    const char* height = "a height greater than 0";
    h.eye = a.Number("--eye", height, Positive);
    h.object = a.Number("--object", height, Positive);
    h.oncomingVehicle = a.Number("--oncoming", height, Positive);
    h.headlight = a.Number("--headlight", height, Positive);
    h.truckEye = a.Number("--truck-eye", height, Positive);
    h.taillight = a.Number("--taillight", height, Positive);
    InputFile file;
    ProfileSource s;
    if (int status = Load(a, file, s, err)) return status;
    settings.metric = s.profile->metric();
    if (const std::string problem = CheckSettingsError(settings); !problem.empty()) {
        err << "gradewise-cli: " << problem << "\n";
        return kUsage;
    }
    return ProfileCheckReport(s.document, *s.profile, settings, out);
}

int RunDesign(const Arguments& a, std::ostream& out, std::ostream& err) {
    if (a.Has("--k") + a.Has("--through") + a.Has("--under") != 1) {
        throw UsageError{
            "design takes one of --k K, --through STA ELEV, or --under STA with --underside U and "
            "--clearance C"};
    }
    for (const char* offset : {"--voffset", "--hoffset", "--xslope"}) a.Needs(offset, "--through");
    a.Needs("--hoffset", "--xslope");
    a.Needs("--xslope", "--hoffset");
    for (const char* part : {"--underside", "--clearance"}) {
        a.Needs("--under", part);
        a.Needs(part, "--under");
    }
    DesignRequest request;
    request.pvi = *a.Ordinal("--pvi", "the number of a PVI as the profile command lists it, for example 2");
    request.k = a.Number("--k", "a K greater than 0", Positive);
    const char* elevation = "a station and an elevation, for example --through 42+50 1268.0";
    const std::optional<double> through = a.Number("--through", elevation, nullptr, 1);
    const std::optional<double> vertical = a.Number("--voffset", "a number");
    const std::optional<double> horizontal = a.Number("--hoffset", "a number");
    const std::optional<double> slope = a.Number("--xslope", "a cross slope in percent");
    const std::optional<double> underside = a.Number("--underside", "an elevation");
    const std::optional<double> clearance = a.Number("--clearance", "a clearance greater than 0", Positive);
    InputFile file;
    ProfileSource s;
    if (int status = Load(a, file, s, err)) return status;
    const bool metric = s.profile->metric();
    if (through) {
        request.through = DesignRequest::Point{*a.Station("--through", metric), *through, vertical.value_or(0),
                                               horizontal.value_or(0), slope.value_or(0)};
    }
    if (a.Has("--under"))
        request.structure = DesignRequest::Structure{*a.Station("--under", metric), *underside, *clearance};
    // A curve file's tangents run on past its PVC and PVT.
    request.openEnds = file.kind == InputKind::CurveFile;
    return ProfileDesignReport(s.document, *s.profile, request, out, err);
}

int RunExport(const Arguments& a, std::ostream& out, std::ostream& err) {
    InputFile file;
    ProfileSource s;
    if (int status = Load(a, file, s, err)) return status;
    out << ExportLandXml(s.document, *s.profile);
    return kDone;
}

int RunImport(const Arguments& a, std::ostream& out, std::ostream& err) {
    const size_t curve = *a.Ordinal("--curve",
                                    "the number of the PVI whose curve to take, as the profile command "
                                    "lists it, for example 2");
    InputFile file;
    ProfileSource s;
    if (int status = Load(a, file, s, err)) return status;
    std::string bytes;
    const int status = ImportCurve(s.document, *s.profile, curve, bytes, err);
    if (status == kDone || status == kStationOffCurve) out << bytes;
    return status;
}

}  // namespace gw::cli
