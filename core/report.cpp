#include "report.h"

#include "numbers.h"
#include "stations.h"

namespace gw {
namespace {

const std::string kDashes(64, '-');

std::string UnitsMark(std::string_view units) {
    if (units != kMetric && units != kEnglish) return {};
    return "(" + std::string(units) + ")";
}

class Lines {
public:
    void Add(std::string line) { lines_.push_back(std::move(line)); }
    void Empty() { lines_.emplace_back(); }
    void Station(const char* heading, const std::string& whole, const std::string& plus,
                 const std::string& elevation) {
        Add(heading);
        Add("Station: " + whole + "+" + plus);
        Add("Elevation: " + elevation);
        Empty();
    }
    std::vector<std::string> Take() { return std::move(lines_); }

private:
    std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> ReportLines(const CurveSheet& s, std::string_view date, std::string_view time) {
    Lines out;
    const std::string mark = UnitsMark(s.lblMorF);
    auto pvi = [&] { out.Station("PVI Values", s.txtPVISTA, s.txtPVISTAM, s.txtPVIEval); };
    auto pvc = [&] { out.Station("PVC Values", s.txtPVCSTA, s.txtPVCSTAM, s.txtPVCEval); };
    auto pvt = [&] { out.Station("PVT Values", s.txtPVTSTA, s.txtPVTSTAM, s.txtPVTEval); };
    auto grades = [&] {
        out.Add("G1: " + s.txtG1 + "%");
        out.Add("G2: " + s.txtG2 + "%");
        out.Add("Length of Curve: " + s.txtLC);
        out.Empty();
    };

    out.Add("Gradewise " + std::string(10, ' ') + std::string(date) + "  " + std::string(time));
    out.Empty();
    out.Add(kDashes);
    out.Add("Input:   " + mark);
    out.Empty();
    if (s.optPVI) {
        pvi();
        grades();
    } else {
        pvc();
        pvt();
        grades();
    }
    out.Add(kDashes);
    out.Add("Output:   " + mark);
    out.Empty();
    if (s.optPVI) {
        pvc();
        pvt();
    } else {
        pvi();
    }
    out.Add("Middle Ordinate:   " + s.txtMO);
    out.Add("Sight Distance:  " + s.lblSDL + " " + s.txtSD);
    out.Add("Turning Point Station:   " + s.txtTPSTA + "+" + s.txtTPSTAM);
    out.Empty();
    const ElevationTable& t = s.elevations;
    out.Add("V-Offset: " + t.txtVOffset + "  H-Offset: " + t.txtHOffset + "  X-Slope: " + t.txtXSlope);
    out.Empty();
    for (const ElevationRow& row : t.rows) {
        if (ReadNumber(row.txtTOTSTA1) > 0) {
            out.Add("Elevation at Station: " + row.txtTOTSTA1 + "+" + row.txtTOTSTAM1 + "  =  " +
                    row.txtTotalTopSlab1);
        }
    }
    out.Add(kDashes);
    return out.Take();
}

}  // namespace gw
