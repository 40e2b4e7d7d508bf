#include "cli/command_table.h"

#include <algorithm>

#include "cli/arguments.h"
#include "cli/curve_commands.h"
#include "cli/profile_commands.h"

namespace gw::cli {
namespace {

const OptionRow kOutput{"-o", "OUT", "write to OUT instead of standard output"};
const OptionRow kJson{"--json", nullptr, "one JSON object instead of text"};
const OptionRow kProfileName{"--profile", "NAME", "the ProfAlign of that name, in a LandXML file holding several"};

constexpr const char* kCurveFile = "a curve FILE";
constexpr const char* kAnyFile = "a FILE: a LandXML, CSV or curve file";

constexpr const char* kProfileFiles =
    "FILE is a LandXML 1.2 file (.xml), a CSV profile (.csv) or a curve file (.gwf),\n"
    "which is a profile from its PVC to its PVT; docs/cli.md describes each.";

std::vector<CommandRow> Rows() {
    return {
        {"solve",
         "solve FILE [--elevations] [--json] [-o OUT]",
         kCurveFile,
         "solve the curve; --elevations also recomputes the elevation rows",
         "Solves the curve in FILE in the mode it was saved in, exactly as the Calc button\n"
         "does, and writes it as the desktop program saves it, or as one JSON object that\n"
         "ends with K, the turning point's elevation and the sight-distance case.",
         {{"--elevations", nullptr, "also recompute the elevation rows, as Calculate TOS does"}, kJson, kOutput},
         "Exit status: 0 done; 1 Calc refused the curve (its message on stderr); 2 bad\n"
         "arguments, an unreadable file or an output that could not be written; 3 an\n"
         "elevation station lies outside the curve (the curve as far as it was computed\n"
         "is still written).",
         "-o",
         RunSolve},
        {"autostation",
         "autostation FILE (--points N | --begin WHOLE+PLUS --increment WHOLE+PLUS)\n"
         "            [--json] [-o OUT]",
         kCurveFile,
         "solve, then lay out the elevation rows by a number of points from\n"
         "PVC to PVT (--points, at most 20) or from a beginning station in\n"
         "steps of an increment (--begin 10+0 --increment 0+50)",
         "Solves the curve in FILE as solve does, then fills its elevation rows as the\n"
         "auto-stationing dialog does, answered with these options: the dialog's checks\n"
         "and messages apply. --begin and --increment go into the dialog's whole-station\n"
         "and plus fields as typed.",
         {{"--points", "N", "that many points from PVC to PVT, at most 20"},
          {"--begin", "WHOLE+PLUS", "the first station, for example 10+0"},
          {"--increment", "WHOLE+PLUS", "the step between stations, for example 0+50"},
          kJson,
          kOutput},
         "Exit status: 0 done; 1 Calc or the dialog refused (the message on stderr); 2 bad\n"
         "arguments, an unreadable file or an output that could not be written.",
         "-o",
         RunAutostation},
        {"report",
         "report FILE [--pdf OUT.pdf [--copies N]]",
         kCurveFile,
         "print the lines of the curve report; with --pdf, write the\n"
         "printed pages (N copies, one page each, default 1) to a PDF file",
         "Prints the lines of the curve report of FILE, dated now, or writes the pages\n"
         "File > Print prints to a PDF file.",
         {{"--pdf", "OUT.pdf", "write the printed pages to OUT.pdf"},
          {"--copies", "N", "that many copies, from 1 to 99, one page each (default 1)"}},
         "Exit status: 0 done; 2 bad arguments, an unreadable file or a PDF that could not\n"
         "be written (an existing one is then left as it was).",
         nullptr,
         RunReport},
        {"profile",
         "profile FILE [--json] [--profile NAME] [-o OUT]",
         kAnyFile,
         "list every PVI with its curve: G1, G2, A, L, K, PVC, PVT, crest or\n"
         "sag, high or low point; grade breaks without a curve flagged",
         "Lists the profile in FILE: every PVI with its station and elevation, and per\n"
         "curve G1, G2, A, L (L1 and L2 for an unsymmetrical curve), K = L / A, PVC and\n"
         "PVT with their elevations, crest or sag, the middle ordinate and the high or low\n"
         "point (or none on the curve). A PVI between the ends without a curve is flagged\n"
         "as a grade break. design --pvi and import --curve take the numbers listed here.\n\n" +
             std::string(kProfileFiles),
         {kJson, kProfileName, kOutput},
         "Exit status: 0 done; 1 the file's content is refused (the message names its line\n"
         "or element); 2 bad arguments, an unreadable file or an output that could not be\n"
         "written.",
         "-o",
         RunProfileListing},
        {"table",
         "table FILE --every WHOLE+PLUS [--csv] [--profile NAME] [-o OUT]",
         kAnyFile,
         "elevation and grade at every even station of an interval, with\n"
         "every PVC, PVI, PVT and high or low point among the rows",
         "Tabulates the profile in FILE from its beginning to its end at every even\n"
         "station of the interval (--every 0+50: every 50 ft in feet, 50 m in metres),\n"
         "with every PVC, PVI, PVT and high or low point among the rows. Columns: station\n"
         "(WHOLE+PLUS), elevation, grade in percent ahead of the station (behind it at\n"
         "the end), and the points the row stands for (PVC 2, Low point 2, PVT 2/PVC 3).\n\n"
         "A curve file is tabulated from PVC to PVT as the elevations window computes it:\n"
         "station, distance from the PVC, grade, elevation with the file's vertical offset\n"
         "and horizontal offset times cross slope (said in a line above), and PVC, TP or\n"
         "PVT.\n\n" +
             std::string(kProfileFiles),
         {{"--every", "WHOLE+PLUS", "the interval, for example 0+25", true, "0+50"},
          {"--csv", nullptr, "comma-separated values with a header row"},
          kProfileName,
          kOutput},
         "Exit status: 0 done; 1 the file's content is refused or an elevation cannot be\n"
         "computed (the message on stderr); 2 bad arguments (an interval giving more than\n"
         "1000000 rows among them), an unreadable file or an output that could not be\n"
         "written.",
         "-o",
         RunTable},
        {"plot",
         "plot FILE [--profile NAME] [-o OUT.svg]",
         kAnyFile,
         "draw the profile as SVG with every point labelled",
         "Draws the profile in FILE as SVG: tangents and curves to scale with the vertical\n"
         "exaggeration stated, the tangents produced to each PVI dashed, and every PVC,\n"
         "PVI, PVT and high or low point marked and labelled with station and elevation.\n\n"
         "A curve file is drawn as one curve: PVC, PVI, PVT and turning point labelled,\n"
         "its elevation rows as points (offsets included), grades and length annotated.\n\n" +
             std::string(kProfileFiles),
         {kProfileName, {"-o", "OUT.svg", "write to OUT.svg instead of standard output"}},
         "Exit status: 0 done; 1 the file's content is refused or cannot be drawn to scale\n"
         "(the message on stderr); 2 bad arguments, an unreadable file or an output that\n"
         "could not be written; 3 an elevation row of a curve file lies outside the curve\n"
         "(it is drawn without that row and the rows after it).",
         "-o",
         RunPlot},
        {"check",
         "check FILE --speed V [--passing] [--clearance C] [--eye H]\n"
         "      [--object H] [--oncoming H] [--headlight H] [--truck-eye H]\n"
         "      [--taillight H] [--profile NAME] [-o OUT]",
         kAnyFile,
         "check every curve against every length criterion at a design\n"
         "speed (exit status 4 when one is too short)",
         "Checks every curve of the profile in FILE, and every grade break without one,\n"
         "against the criteria of AASHTO, A Policy on Geometric Design of Highways and\n"
         "Streets, 7th edition (2018), at the design speed V: mph for a profile in feet,\n"
         "km/h in metres. S is the design stopping sight distance of its Table 3-1 (level\n"
         "roadway); a speed between two rows takes the higher row. A is the change of\n"
         "grade in percent; a length below zero is shown as 0.\n\n"
         "  crest  stopping sight distance   L = A S^2 / C (S<L), L = 2 S - C / A (S>L),\n"
         "         C = 2158 ft, 658 m\n"
         "         passing sight distance    the same with the passing sight distance\n"
         "                                   and C = 2800 ft, 864 m\n"
         "  sag    headlight sight distance  L = A S^2 / (H + 3.5 S) (S<L),\n"
         "                                   L = 2 S - (H + 3.5 S) / A (S>L), H = 400 ft, 120 m\n"
         "         comfort                   L = A V^2 / 46.5 (ft, mph), A V^2 / 395 (m, km/h)\n"
         "         sight under a structure   L = A S^2 / D (S<L), L = 2 S - D / A (S>L),\n"
         "                                   D = 800 (C - (h1 + h2) / 2), C the clearance\n"
         "  both   general minimum           L = 3 V ft, 0.6 V m\n\n"
         "The longest minimum required governs; the passing sight distance is required\n"
         "only with --passing. Each curve also gets its drainage flat zone (the grade\n"
         "within 0.30 %, flagged on curbed roads above K 167, metric 51) and the highest\n"
         "design speed it supports. The last line is the verdict.\n\n" +
             std::string(kProfileFiles),
         {{"--speed", "V", "the design speed", true, "50"},
          {"--passing", nullptr, "crests must also give the passing sight distance"},
          {"--clearance", "C", "sags pass under a structure with this vertical clearance"},
          {"--eye", "H", "driver's eye height (3.5 ft, 1.08 m)"},
          {"--object", "H", "object height for stopping (2.0 ft, 0.60 m)"},
          {"--oncoming", "H", "oncoming vehicle height for passing (3.5 ft, 1.08 m)"},
          {"--headlight", "H", "headlight height (2.0 ft, 0.60 m)"},
          {"--truck-eye", "H", "truck driver's eye height under a structure (8 ft, 2.4 m)"},
          {"--taillight", "H", "taillight height under a structure (2 ft, 0.6 m)"},
          kProfileName,
          kOutput},
         "Exit status: 0 every curve is long enough; 4 one is too short (the last line\n"
         "says which); 1 the file's content is refused (the message on stderr); 2 bad\n"
         "arguments, a speed outside the table, an unreadable file or an output that\n"
         "could not be written.",
         "-o",
         RunCheck},
        {"design",
         "design FILE --pvi N (--k K | --through STA ELEV [--voffset V]\n"
         "       [--hoffset H --xslope X] | --under STA --underside U --clearance C)\n"
         "       [--profile NAME] [-o OUT]",
         kAnyFile,
         "the length of the curve at a PVI: by K, through a point, or under a\n"
         "structure with a clearance (exit status 5 when there is none)",
         "Works out the length of a symmetric curve at PVI N of the profile in FILE and\n"
         "whether it fits between the neighbouring curves.\n\n"
         "  --k K          L = K A\n"
         "  --through      the curve through a point: with d its distance from the PVI, D\n"
         "                 its height above the entering tangent and a = A / 100, the\n"
         "                 roots of (a / 4) L^2 + (a d - 2 D) L + a d^2 = 0; a root is\n"
         "                 valid when L >= 2 |d|, and at most one is\n"
         "  --under        the road at the structure at most underside less clearance:\n"
         "                 a sag at most, a crest at least the length through that point\n\n"
         "A point on the finished surface is brought down to the profile by the vertical\n"
         "offset and the horizontal offset times the cross slope (percent), as the\n"
         "elevations window adds them. Stations are WHOLE+PLUS.\n\n" +
             std::string(kProfileFiles),
         {{"--pvi", "N", "the PVI, as the profile command numbers it", true, "2"},
          {"--k", "K", "the rate of vertical curvature"},
          {"--through", "STA ELEV", "a point the curve passes through"},
          {"--voffset", "V", "the point is V above the profile"},
          {"--hoffset", "H", "the point is H beside the profile ..."},
          {"--xslope", "X", "... on a cross slope of X percent"},
          {"--under", "STA", "the station of a structure over the road"},
          {"--underside", "U", "the elevation of its underside"},
          {"--clearance", "C", "the vertical clearance the road needs under it"},
          kProfileName,
          kOutput},
         "Exit status: 0 a length found; 5 none meets the condition, or the one found does\n"
         "not fit between the neighbouring curves (the working says why); 1 the file's\n"
         "content is refused (the message on stderr); 2 bad arguments, a PVI at an end, an\n"
         "unreadable file or an output that could not be written.",
         "-o",
         RunDesign},
        {"export",
         "export FILE --landxml OUT.xml [--profile NAME]",
         kAnyFile,
         "write the profile as LandXML 1.2",
         "Writes the profile in FILE as LandXML 1.2, valid against its schema: dated now,\n"
         "with every unit attribute the schema requires and the elevation unit stated. A\n"
         "curve file's mode, elevation rows and offsets travel in a Feature named\n"
         "gradewise-curve-file, so import gives the same curve file back.\n\n" +
             std::string(kProfileFiles),
         {{"--landxml", "OUT.xml", "the file to write", true, "profile.xml"}, kProfileName},
         "Exit status: 0 done; 1 the file's content is refused (the message on stderr); 2\n"
         "bad arguments, an unreadable file or an output that could not be written.",
         "--landxml",
         RunExport},
        {"import",
         "import FILE --curve N [--profile NAME] [-o CURVE.gwf]",
         kAnyFile,
         "write the curve at one PVI as a solved curve file",
         "Writes the symmetric curve at PVI N of the profile in FILE as a curve file the\n"
         "desktop program opens, solved as Calc solves it, with the elevation rows and\n"
         "offsets it carried out of Gradewise (see export) computed as Calculate TOS\n"
         "computes them.\n\n" +
             std::string(kProfileFiles),
         {{"--curve", "N", "the PVI whose curve to write, as the profile command numbers it", true, "2"},
          kProfileName,
          {"-o", "CURVE.gwf", "write to CURVE.gwf instead of standard output"}},
         "Exit status: 0 done; 1 the file's content is refused, or the curve is\n"
         "unsymmetrical; 2 bad arguments, no curve at that PVI, an unreadable file or an\n"
         "output that could not be written; 3 an elevation row lies outside the curve (the\n"
         "curve as far as it was computed is still written).",
         "-o",
         RunImport},
    };
}

// Lines after the first are indented by `indent` spaces more.
std::string Indented(const std::string& text, size_t indent) {
    std::string out;
    for (char c : text) {
        out += c;
        if (c == '\n') out.append(indent, ' ');
    }
    return out;
}

}  // namespace

const OptionRow* CommandRow::Option(std::string_view name) const {
    const auto it = std::find_if(options.begin(), options.end(), [&](const OptionRow& o) { return o.name == name; });
    return it == options.end() ? nullptr : &*it;
}

const std::vector<CommandRow>& Commands() {
    static const std::vector<CommandRow> rows = Rows();
    return rows;
}

const CommandRow* FindCommand(std::string_view name) {
    const auto& rows = Commands();
    const auto it = std::find_if(rows.begin(), rows.end(), [&](const CommandRow& c) { return c.name == name; });
    return it == rows.end() ? nullptr : &*it;
}

std::string GeneralHelp() {
    std::string text = "Usage:\n";
    for (const CommandRow& c : Commands()) text += "  gradewise-cli " + Indented(c.usage, 16) + "\n";
    text +=
        "  gradewise-cli --version\n"
        "  gradewise-cli --help\n\n"
        "A curve file (.gwf) holds one curve of the desktop program, solved here in the\n"
        "mode it was saved in, exactly as the Calc button does. A profile (LandXML, CSV or\n"
        "a curve file) is a chain of PVIs with a vertical curve at any PVI between its ends.\n\n";
    for (const CommandRow& c : Commands()) {
        const std::string name = c.name;
        text +=
            "  " + name + std::string(name.size() < 13 ? 13 - name.size() : 1, ' ') + Indented(c.summary, 15) + "\n";
    }
    text +=
        "  COMMAND --help tells more about each command\n\n"
        "Exit status: 0 done; 1 the input is refused: a check refused the calculation or\n"
        "a file's content cannot be read (its message on stderr; nothing is written); 2\n"
        "bad arguments, an unreadable file or an output that could not be written (an\n"
        "output file is then left as it was); 3 an elevation station lies outside the\n"
        "curve (the curve as far as it was computed is still written); 4 check found a\n"
        "curve too short for the design speed; 5 design found no length.\n";
    return text;
}

std::string CommandHelp(const CommandRow& c) {
    std::string text = "Usage: gradewise-cli " + Indented(c.usage, 21) + "\n\n" + c.about + "\n\n";
    size_t width = 0;
    std::vector<std::string> names;
    for (const OptionRow& o : c.options) {
        names.push_back(std::string(o.name) + (o.value ? std::string(" ") + o.value : ""));
        width = std::max(width, names.back().size());
    }
    for (size_t i = 0; i < names.size(); ++i) {
        text += "  " + names[i] + std::string(width + 3 - names[i].size(), ' ') + c.options[i].help + "\n";
    }
    return text + (c.options.empty() ? "" : "\n") + c.exitStatus + "\n";
}

}  // namespace gw::cli
