#include "cli/curve_views.h"

#include <vector>

#include "cli/cli.h"
#include "cli/curve_plot.h"
#include "cli/table_output.h"
#include "cli/text_output.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/numbers.h"
#include "core/profile_rows.h"
#include "core/station_rows.h"
#include "core/stations.h"

namespace gw::cli {
namespace {

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

}  // namespace

int SolveForDrawing(CurveSheet& sheet, const char* command, std::ostream& err) {
    if (Outcome refused = Calculate(sheet)) {
        err << refused->message << "\n";
        return kRefused;
    }
    if (!(ReadNumber(sheet.txtLC) > 0)) {
        err << "gradewise-cli: " << command << " needs a length of curve greater than 0\n";
        return kRefused;
    }
    return kDone;
}

int CurveTable(const CurveSheet& sheet, double interval, bool csv, std::ostream& out, std::ostream& err) {
    const StationTable table = StationRows(sheet, interval, static_cast<std::size_t>(kMostProfileRows));
    if (!table.refused.empty()) {
        err << "gradewise-cli: " << table.refused << "\n";
        return kRefused;
    }
    const bool metric = sheet.IsMetric();
    out << (csv ? StationTableCsv(table.rows, metric) : StationTableText(table.rows, metric, OffsetCaption(sheet)));
    return kDone;
}

int CurvePlot(CurveSheet& sheet, const std::string& title, std::ostream& out, std::ostream& err) {
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
        points.push_back(
            {ReadNumber(row.txtTOTSTA1) * K + ReadNumber(row.txtTOTSTAM1), ReadNumber(row.txtTotalTopSlab1)});
    }
    const SvgDrawing drawing = CurvePlotSvg(sheet, points, title);
    if (!drawing.refused.empty()) {
        err << "gradewise-cli: " << drawing.refused << "\n";
        return kRefused;
    }
    out << drawing.svg;
    return status;
}

}  // namespace gw::cli
