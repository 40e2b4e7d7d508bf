#include "check_command.h"

#include "cli/cli.h"
#include "cli/text_output.h"
#include "core/curve_geometry.h"
#include "core/design_check.h"
#include "core/numbers.h"

namespace gw::cli {

const char* const kCheckHelp =
    "Usage: gradewise-cli check FILE --speed V\n"
    "\n"
    "Solves the curve in FILE and checks its length against the shortest curve that\n"
    "gives the design stopping sight distance S for the design speed V (mph on an\n"
    "English curve, km/h on a metric one). S is from AASHTO, A Policy on Geometric\n"
    "Design of Highways and Streets, 7th edition (2018), Table 3-1: level roadway,\n"
    "rounded for design. A speed between two rows of the table takes the higher row;\n"
    "a speed outside the table (15 to 80 mph, 20 to 130 km/h) is refused.\n"
    "\n"
    "  crest  L = A S^2 / C          when S < L\n"
    "         L = 2 S - C / A        when S > L\n"
    "         C = 2158 ft / 658 m (current eye and object heights) decides;\n"
    "         C = 1329 ft / 404 m (the older ones) is shown beside it\n"
    "  sag    L = A S^2 / (H + 3.5 S)     when S < L\n"
    "         L = 2 S - (H + 3.5 S) / A   when S > L,   H = 400 ft / 120 m\n"
    "\n"
    "A is the change of grade in percent. A length below zero means no curve is\n"
    "needed and is shown as 0.\n"
    "\n"
    "  --speed V    the design speed\n"
    "\n"
    "Exit status: 0 the curve is long enough; 4 it is too short (the last line says\n"
    "so); 1 the curve could not be solved (the message on stderr); 2 bad arguments,\n"
    "an unreadable file or an output that could not be written.\n";

namespace {

std::string CaseText(const MinimumLength& m) { return m.withinCurve ? "(S<L)" : "(S>L)"; }

}  // namespace

int RunCheck(const CurveSheet& solved, double speed, std::ostream& out, std::ostream& err) {
    const CurveGeometry curve = ReadCurveGeometry(solved);
    const bool metric = curve.metric;
    const std::string speedUnit = metric ? "km/h" : "mph";
    const std::string unit = metric ? "m" : "ft";
    const auto row = DesignStoppingSightDistance(speed, metric);
    if (!row) {
        err << "gradewise-cli: a design speed of " << ShortNumber(speed) << " " << speedUnit
            << " is outside the design table (" << ShortNumber(SlowestDesignSpeed(metric).speed) << " to "
            << ShortNumber(FastestDesignSpeed(metric).speed) << " " << speedUnit << ")\n";
        return kUsage;
    }

    const double A = curve.gradeChange();
    const std::string length = FormatNumber(curve.length) + " " + unit;
    if (A == 0) {
        out << "Equal grades: no vertical curve is needed at any speed.\n";
        return kDone;
    }
    out << (curve.isCrest() ? "Crest" : "Sag") << " curve: L = " << length << ", A = " << FormatNumber(A) << " %\n";
    out << "Design speed " << ShortNumber(speed) << " " << speedUnit;
    if (row->speed != speed) out << " (taken as " << ShortNumber(row->speed) << " " << speedUnit << ")";
    out << ": stopping sight distance " << ShortNumber(row->sightDistance) << " " << unit
        << " (AASHTO 2018, level roadway)\n";

    MinimumLength needed;
    if (curve.isCrest()) {
        const double current = CrestConstant(CrestConstants::Current, metric);
        const double older = CrestConstant(CrestConstants::Older, metric);
        needed = CrestMinimumLength(A, row->sightDistance, current);
        const MinimumLength old = CrestMinimumLength(A, row->sightDistance, older);
        out << "Minimum length, current eye and object heights (C = " << ShortNumber(current)
            << "): " << FormatNumber(needed.length) << " " << unit << " " << CaseText(needed) << "\n";
        out << "Minimum length, older eye and object heights (C = " << ShortNumber(older)
            << "): " << FormatNumber(old.length) << " " << unit << " " << CaseText(old) << "\n";
    } else {
        needed = SagMinimumLength(A, row->sightDistance, metric);
        out << "Minimum length, headlight sight distance (H = " << (metric ? "120" : "400")
            << ", beam 1 degree up): " << FormatNumber(needed.length) << " " << unit << " " << CaseText(needed)
            << "\n";
    }
    // Judged on the minimum as printed, so the verdict never contradicts the digits.
    const std::string minimum = FormatNumber(needed.length);
    const bool longEnough = curve.length >= ReadNumber(minimum);
    out << (longEnough ? "Long enough: L = " : "Too short: L = ") << length
        << (longEnough ? " is at least the " : " is less than the ") << minimum << " " << unit << " needed at "
        << ShortNumber(row->speed) << " " << speedUnit << ".\n";
    return longEnough ? kDone : kTooShort;
}

}  // namespace gw::cli
