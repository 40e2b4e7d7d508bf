#include "core/report.h"

#include "core/curve_fields.h"
#include "core/elevation_fields.h"
#include "core/messages.h"
#include "core/numbers.h"
#include "core/stations.h"

namespace gw {
namespace {

const std::string kDashes(64, '-');

std::string UnitsMark(std::string_view units) {
    if (units != kMetric && units != kEnglish) return {};
    return "(" + std::string(units) + ")";
}

class Lines {
public:
    void Add(std::string line) { m_lines.push_back(std::move(line)); }
    void Empty() { m_lines.emplace_back(); }
    // A field's value between its leading and trailing texts.
    void Piece(const ReportPiece& piece, const std::string& value) {
        if (!piece.sameLine || m_lines.empty()) m_lines.emplace_back();
        m_lines.back().append(piece.before).append(value).append(piece.after);
    }
    std::vector<std::string> Take() { return std::move(m_lines); }

private:
    std::vector<std::string> m_lines;
};

// The curve's values of one group, then an empty line.
void Group(Lines& out, const CurveSheet& s, ReportGroup group) {
    for (const CurveField& field : kCurveFields) {
        if (field.report.group == group) out.Piece(field.report, TextOf(s, field));
    }
    out.Empty();
}

void Station(Lines& out, const CurveSheet& s, ReportGroup group, const char* heading) {
    out.Add(heading);
    Group(out, s, group);
}

// The elevations window's values of one group, from one row for the columns.
void ElevationGroup(Lines& out, const ElevationTable& t, ReportGroup group, int row) {
    for (const ElevationField& field : kElevationFields) {
        if (field.report.group == group) out.Piece(field.report, TextOf(t, field, row));
    }
}

}  // namespace

std::vector<std::string> ReportLines(const CurveSheet& s, std::string_view date, std::string_view time) {
    Lines out;
    const std::string mark = UnitsMark(s.lblMorF);
    out.Add(std::string(msg::kAppTitle) + " " + std::string(10, ' ') + std::string(date) + "  " + std::string(time));
    out.Empty();
    out.Add(kDashes);
    out.Add("Input:   " + mark);
    out.Empty();
    if (s.optPVI) {
        Station(out, s, ReportGroup::PVI, "PVI Values");
    } else {
        Station(out, s, ReportGroup::PVC, "PVC Values");
        Station(out, s, ReportGroup::PVT, "PVT Values");
    }
    Group(out, s, ReportGroup::Grades);
    out.Add(kDashes);
    out.Add("Output:   " + mark);
    out.Empty();
    if (s.optPVI) {
        Station(out, s, ReportGroup::PVC, "PVC Values");
        Station(out, s, ReportGroup::PVT, "PVT Values");
    } else {
        Station(out, s, ReportGroup::PVI, "PVI Values");
    }
    Group(out, s, ReportGroup::Results);
    ElevationGroup(out, s.elevations, ReportGroup::Offsets, 0);
    out.Empty();
    // Only the rows that hold a station past station 0.
    for (int row = 0; row < kRowCount; ++row) {
        if (ReadNumber(s.elevations.rows[row].txtTOTSTA1) > 0)
            ElevationGroup(out, s.elevations, ReportGroup::Rows, row);
    }
    out.Add(kDashes);
    return out.Take();
}

}  // namespace gw
