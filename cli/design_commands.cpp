#include "design_commands.h"

#include "cli/arguments.h"
#include "cli/check_command.h"
#include "cli/cli.h"
#include "cli/profile_svg.h"
#include "cli/table_output.h"
#include "cli/text_output.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/numbers.h"
#include "core/station_rows.h"
#include "core/stations.h"

namespace gw::cli {
namespace {

constexpr const char* kTableHelp =
    "Usage: gradewise-cli table FILE --every WHOLE+PLUS [--csv] [-o OUT]\n"
    "\n"
    "Solves the curve in FILE and lists its elevations from PVC to PVT at every even\n"
    "station of the interval (--every 0+50: every 50 ft on an English curve, every\n"
    "50 m on a metric one), with the PVC, the PVT and the turning point among them.\n"
    "The elevations carry the file's vertical offset and horizontal offset times\n"
    "cross slope, as the elevations window adds them.\n"
    "\n"
    "Columns: station (WHOLE+PLUS), distance from the PVC, grade in percent at the\n"
    "station, elevation, and the point the row stands for (PVC, TP, PVT).\n"
    "\n"
    "  --every WHOLE+PLUS   the interval, for example 0+25\n"
    "  --csv                comma-separated values with a header row\n"
    "  -o OUT               write to OUT instead of standard output\n"
    "\n"
    "Exit status: 0 done; 1 the curve could not be solved, or an elevation cannot be\n"
    "computed (the message on stderr); 2 bad arguments, an unreadable file or an\n"
    "output that could not be written.\n";

constexpr const char* kPlotHelp =
    "Usage: gradewise-cli plot FILE [-o OUT.svg]\n"
    "\n"
    "Solves the curve in FILE and draws its profile as SVG: the tangents and the\n"
    "parabola to scale, with the vertical exaggeration stated; PVC, PVI, PVT and the\n"
    "turning point labelled with station and elevation; the file's elevation rows as\n"
    "points; grades and length of curve annotated.\n"
    "\n"
    "  -o OUT.svg    write to OUT.svg instead of standard output\n"
    "\n"
    "Exit status: 0 done; 1 the curve could not be solved or cannot be drawn to scale\n"
    "(the message on stderr); 2 bad arguments, an unreadable file or an output that\n"
    "could not be written; 3 an elevation row lies outside the curve (the profile is\n"
    "still drawn, without that row and the rows after it).\n";

// Beyond this a table is a mistake in --every, not a table anyone reads.
constexpr std::size_t kMostRows = 100000;

struct DesignOptions {
    std::string command;
    std::string file;
    std::optional<std::string> every;
    std::optional<std::string> speed;
    std::optional<std::string> output;
    bool csv = false;
};

DesignOptions Parse(const std::vector<std::string>& args) {
    const std::string& command = args[0];
    const CommandArguments a =
        command == "table"  ? CommandArguments(args, {"--every", "-o"}, {"--csv"})
        : command == "plot" ? CommandArguments(args, {"-o"}, {})
                            : CommandArguments(args, {"--speed"}, {});
    DesignOptions o;
    o.command = command;
    o.file = a.File();
    o.every = a.Value("--every");
    o.output = a.Value("-o");
    o.speed = a.Value("--speed");
    o.csv = a.Flag("--csv");
    if (o.command == "table" && !o.every) throw UsageError{"table needs --every WHOLE+PLUS, for example --every 0+50"};
    if (o.command == "check" && !o.speed) throw UsageError{"check needs --speed V, the design speed"};
    if (o.speed && !(IsNumericText(*o.speed) && ReadNumber(*o.speed) > 0)) {
        throw UsageError{"--speed takes a design speed greater than 0 (mph on an English curve, km/h on a metric one)"};
    }
    return o;
}

// "0+50" as a length in the curve's units; a leading sign belongs to the whole part.
double Interval(const std::string& text, const CurveSheet& sheet) {
    const size_t at = text.find('+', 1);
    const std::string whole = at == std::string::npos ? "" : text.substr(0, at);
    const std::string plus = at == std::string::npos ? "" : text.substr(at + 1);
    const double interval = JoinStation(whole, plus, sheet.lblMorF);
    if (!IsNumericText(whole) || !IsNumericText(plus) || !(interval > 0)) {
        throw UsageError{"--every takes an interval greater than 0 as WHOLE+PLUS, for example 0+50"};
    }
    if (ReadNumber(sheet.txtLC) / interval > static_cast<double>(kMostRows)) {
        throw UsageError{"--every " + text + " gives more than 100000 rows; choose a longer interval"};
    }
    return interval;
}

// The curve as solve leaves it; any status but kDone ends the command.
int LoadSolvedCurve(const DesignOptions& o, CurveSheet& sheet, std::ostream& err) {
    if (!LoadCurve(o.file, sheet, err)) return kUsage;
    if (Outcome refused = Calculate(sheet)) {
        err << refused->message << "\n";
        return kRefused;
    }
    if (!(ReadNumber(sheet.txtLC) > 0)) {
        err << "gradewise-cli: " << o.command << " needs a length of curve greater than 0\n";
        return kRefused;
    }
    return kDone;
}

int Emit(const DesignOptions& o, const std::string& text, std::ostream& out, std::ostream& err) {
    return cli::Emit(o.output, text, out, err);
}

std::string OffsetCaption(const CurveSheet& s) {
    const ElevationTable& t = s.elevations;
    const bool vertical = IsNumericText(t.txtVOffset);
    const bool cross = IsNumericText(t.txtHOffset) && IsNumericText(t.txtXSlope);
    if (!vertical && !cross) return {};
    std::string caption = "Elevations include";
    if (vertical) caption += " a vertical offset of " + FormatNumber(ReadNumber(t.txtVOffset));
    if (vertical && cross) caption += " and";
    if (cross) {
        caption += " a horizontal offset of " + FormatNumber(ReadNumber(t.txtHOffset)) + " at " +
                   FormatNumber(ReadNumber(t.txtXSlope)) + " % cross slope";
    }
    return caption + ".";
}

int Table(const DesignOptions& o, const CurveSheet& sheet, std::ostream& out, std::ostream& err) {
    const StationTable table = StationRows(sheet, Interval(*o.every, sheet), kMostRows);
    if (!table.refused.empty()) {
        err << "gradewise-cli: " << table.refused << "\n";
        return kRefused;
    }
    const bool metric = sheet.IsMetric();
    return Emit(o,
                o.csv ? StationTableCsv(table.rows, metric)
                      : StationTableText(table.rows, metric, OffsetCaption(sheet)),
                out, err);
}

int Plot(const DesignOptions& o, CurveSheet& sheet, std::ostream& out, std::ostream& err) {
    int status = kDone;
    CopyCurveStations(sheet);
    int computed = kRowCount;
    if (Outcome stopped = CalculateTOS(sheet)) {
        err << stopped->message << "\n";
        status = kStationOffCurve;
        computed = stopped->row;
    }
    std::vector<ProfilePoint> points;
    const double K = StationLength(sheet.lblMorF);
    for (int i = 0; i < computed; ++i) {
        const ElevationRow& row = sheet.elevations.rows[i];
        if (row.txtTotalTopSlab1.empty()) continue;
        points.push_back({ReadNumber(row.txtTOTSTA1) * K + ReadNumber(row.txtTOTSTAM1), ReadNumber(row.txtTotalTopSlab1)});
    }
    const std::string title = o.file.substr(o.file.find_last_of('/') + 1);
    const Profile profile = ProfileSvg(sheet, points, "Profile of " + ToUtf8(title));
    if (!profile.refused.empty()) {
        err << "gradewise-cli: " << profile.refused << "\n";
        return kRefused;
    }
    const int written = Emit(o, profile.svg, out, err);
    return written == kDone ? status : written;
}

}  // namespace

std::optional<int> RunDesignCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (args.empty()) return std::nullopt;
    const std::string& command = args[0];
    const char* help = command == "table" ? kTableHelp : command == "plot" ? kPlotHelp
                       : command == "check"  ? kCheckHelp
                                             : nullptr;
    if (!help) return std::nullopt;
    if (AsksForHelp(args, {"--every", "-o", "--speed"})) {
        out << help;
        return kDone;
    }
    try {
        const DesignOptions o = Parse(args);
        CurveSheet sheet;
        if (int loaded = LoadSolvedCurve(o, sheet, err); loaded != kDone) return loaded;
        if (command == "table") return Table(o, sheet, out, err);
        if (command == "plot") return Plot(o, sheet, out, err);
        return RunCheck(sheet, ReadNumber(*o.speed), out, err);
    } catch (const UsageError& e) {
        err << "gradewise-cli: " << e.message << "\nTry 'gradewise-cli " << command << " --help'.\n";
        return kUsage;
    }
}

}  // namespace gw::cli
