#include "station_rows.h"

#include <algorithm>
#include <cmath>

#include "numbers.h"

namespace gw {
namespace {

// Stations closer than this are one station: the sums of plus parts are not exact.
double Tolerance(const CurveGeometry& c) { return 1e-9 * std::max(1.0, std::fabs(c.pvt())); }

// First multiple of the interval strictly past the PVC.
double FirstEvenIndex(const CurveGeometry& c, double interval) {
    double k = std::ceil(c.pvc / interval);
    if (k * interval <= c.pvc + Tolerance(c)) k += 1;
    return k;
}

struct Point {
    double x;
    std::string name;
};

std::vector<Point> Points(const CurveGeometry& c, double interval) {
    std::vector<Point> points = {{0, "PVC"}};
    const double eps = Tolerance(c);
    for (double k = FirstEvenIndex(c, interval); k * interval < c.pvt() - eps; k += 1) {
        points.push_back({k * interval - c.pvc, ""});
    }
    points.push_back({c.length, "PVT"});
    if (auto tp = c.TurningPoint()) {
        auto at = std::lower_bound(points.begin(), points.end(), *tp - eps,
                                   [](const Point& p, double x) { return p.x < x; });
        if (at != points.end() && std::fabs(at->x - *tp) <= eps) {
            at->name += at->name.empty() ? "TP" : "/TP";
        } else {
            points.insert(at, {*tp, "TP"});
        }
    }
    return points;
}

}  // namespace

std::vector<StationRow> StationRows(const CurveSheet& solved, double interval) {
    const CurveGeometry c = ReadCurveGeometry(solved);
    const ElevationTable& t = solved.elevations;
    const bool withV = IsNumericText(t.txtVOffset);
    const double V = ReadNumber(t.txtVOffset);
    const bool withCross = IsNumericText(t.txtHOffset) && IsNumericText(t.txtXSlope);
    const double cross = (ReadNumber(t.txtXSlope) / 100) * ReadNumber(t.txtHOffset);

    std::vector<StationRow> rows;
    for (const Point& p : Points(c, interval)) {
        StationRow row;
        row.station = c.pvc + p.x;
        row.distance = p.x;
        row.grade = c.GradeAt(p.x);
        // Each offset goes through the elevation's text, as in the elevations window.
        row.elevation = FormatNumber(c.ElevationAt(p.x));
        if (withV) row.elevation = FormatNumber(ReadNumber(row.elevation) + V);
        if (withCross) row.elevation = FormatNumber(ReadNumber(row.elevation) + cross);
        row.point = p.name;
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace gw
