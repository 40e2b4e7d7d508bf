#include "core/station_rows.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/elevations.h"
#include "core/numbers.h"
#include "core/station_steps.h"

namespace gw {
namespace {

double Tolerance(const CurveGeometry& c) { return StationTolerance(c.pvt()); }

struct Point {
    double x;
    std::string name;
};

// The even stations strictly between the ends, or why they cannot be listed.
std::string EvenPoints(const CurveGeometry& c, double interval, std::size_t most, std::vector<Point>& points) {
    const double eps = Tolerance(c);
    // First multiple of the interval strictly past the PVC.
    double k = std::ceil(c.pvc / interval);
    if (k * interval <= c.pvc + eps) k += 1;
    const StationSteps steps(k * interval, interval, std::nextafter(c.pvt() - eps, -HUGE_VAL), most);
    if (steps.Capped()) return "the interval gives more than " + std::to_string(most) + " rows";
    // Within the tolerance two stations are one: an interval not well above it would
    // merge or drop rows.
    if (!steps.Resolved() || !(interval > 4 * eps)) {
        return "at stations near " + StationText(c.pvc, c.metric) + " an interval of " + FormatNumber(interval) +
               " is too small to tell the stations apart";
    }
    for (std::size_t i = 0; i < steps.Count(); ++i) points.push_back({steps.At(i) - c.pvc, ""});
    return {};
}

// The elevation's text, offsets included; nothing when a stage cannot be computed.
std::optional<std::string> ElevationText(const CurveGeometry& c, double x, const Offsets& o) {
    const double value = c.ElevationAt(x);
    if (!std::isfinite(value)) return std::nullopt;
    std::string text = FormatNumber(value);
    if (!AddOffsets(text, o)) return std::nullopt;
    return text;
}

}  // namespace

std::string WhyNoElevations(const CurveSheet& solved) {
    const CurveGeometry c = ReadCurveGeometry(solved);
    if (std::isfinite(c.HalfRateOfChange())) return {};
    return "the elevations of this curve cannot be computed: a length of curve of " + solved.txtLC +
           " is too short for a change of grade of " + FormatNumber(c.gradeChange()) + " %";
}

StationTable StationRows(const CurveSheet& solved, double interval, std::size_t mostRows) {
    StationTable table;
    if (table.refused = WhyNoElevations(solved); !table.refused.empty()) return table;
    const CurveGeometry c = ReadCurveGeometry(solved);
    std::vector<Point> points = {{0, "PVC"}};
    if (table.refused = EvenPoints(c, interval, mostRows, points); !table.refused.empty()) return table;
    points.push_back({c.length, "PVT"});
    const double eps = Tolerance(c);
    if (auto tp = c.TurningPoint()) {
        auto at =
            std::lower_bound(points.begin(), points.end(), *tp - eps, [](const Point& p, double x) { return p.x < x; });
        if (at != points.end() && std::fabs(at->x - *tp) <= eps) {
            at->name += at->name.empty() ? "TP" : "/TP";
        } else {
            points.insert(at, {*tp, "TP"});
        }
    }

    const Offsets offsets = ReadOffsets(solved.elevations);
    for (const Point& p : points) {
        StationRow row;
        row.station = c.pvc + p.x;
        row.distance = p.x;
        row.grade = c.GradeAt(p.x);
        const std::optional<std::string> elevation = ElevationText(c, p.x, offsets);
        if (!elevation || !std::isfinite(row.station) || !std::isfinite(row.grade)) {
            table.rows.clear();
            table.refused = std::isfinite(row.station)
                                ? "the elevation at station " + StationText(row.station, c.metric) +
                                      " cannot be computed: it lies beyond the range of numbers"
                                : std::string("the stations of this curve lie beyond the range of numbers");
            return table;
        }
        row.elevation = *elevation;
        row.point = p.name;
        table.rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace gw
