#include "cli/profile_plot.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "cli/plot_scale.h"
#include "cli/svg_writer.h"
#include "cli/text_output.h"
#include "core/numbers.h"
#include "core/station_steps.h"

namespace gw::cli {
namespace {

constexpr double kLabelPitch = 15;  // px between neighbouring labels
constexpr double kLeft = 92, kRightMargin = 40;
constexpr double kLabelBottom = 320;         // labels stand on this line, reading upwards
constexpr double kTop = 345, kBottom = 655;  // the plot area

// Far more grid lines than the drawing can show: reaching it means the numbers are
// beyond drawing.
constexpr std::size_t kMostGridLines = 1000;

constexpr const char* kCurveColour = "#1f4e8c";
constexpr const char* kInk = "#222222";

std::string Point(SvgWriter& svg, double x, double y) { return svg.Num(x) + "," + svg.Num(y); }

struct Mark {
    double station, elevation;
    std::string label;
    double labelX = 0;
};

class Drawing {
public:
    explicit Drawing(const Profile& p) : m_p(p) {}
    SvgDrawing Draw(std::string_view title);

private:
    double X(double station) const { return kLeft + (station - m_p.begin()) * m_pxPerUnit; }
    double Y(double elevation) const { return kBottom - 20 - (elevation - m_low) * m_pxPerUnit * m_exaggeration; }
    // Empty when the profile can be drawn to scale, else why not.
    std::string Scale();
    void Axes(SvgWriter& svg) const;
    void Lines(SvgWriter& svg) const;
    void Marks(SvgWriter& svg);

    const Profile& m_p;
    std::vector<Mark> m_marks;
    double m_width = 0, m_pxPerUnit = 0, m_exaggeration = 1, m_low = 0;
    std::optional<StationSteps> m_stationTicks, m_elevationTicks;
};

std::string Drawing::Scale() {
    // A curve's PVI stands off the road: it is marked at its own elevation.
    const bool metric = m_p.metric();
    std::vector<Mark> marks;
    for (size_t i = 0; i < m_p.pvis().size(); ++i) {
        const ProfilePvi& v = m_p.pvis()[i];
        const std::string n = " " + std::to_string(i + 1);
        marks.push_back({v.station, v.elevation, "PVI" + n});
        if (!v.curve) continue;
        const VerticalCurve& c = *v.curve;
        marks.push_back({c.pvc(), c.pvcElevation(), "PVC" + n});
        marks.push_back({c.pvt(), c.pvtElevation(), "PVT" + n});
        if (auto tp = c.TurningPoint()) {
            marks.push_back({*tp, c.ElevationAt(*tp), (c.isCrest() ? "High point" : "Low point") + n});
        }
    }
    std::stable_sort(marks.begin(), marks.end(), [](const Mark& a, const Mark& b) { return a.station < b.station; });
    for (Mark& m : marks) {
        const double tolerance = StationTolerance(m.station);
        if (!m_marks.empty() && m.station - m_marks.back().station <= tolerance &&
            std::fabs(m.elevation - m_marks.back().elevation) <= tolerance) {
            m_marks.back().label += "/" + m.label;
        } else {
            m_marks.push_back(m);
        }
    }
    for (Mark& m : m_marks) m.label += "  " + StationText(m.station, metric) + "  El. " + FormatNumber(m.elevation);
    m_width = std::max(1000.0, kLeft + kRightMargin + kLabelPitch * static_cast<double>(m_marks.size() + 1));
    m_pxPerUnit = (m_width - kLeft - kRightMargin) / (m_p.end() - m_p.begin());
    double low = m_marks.front().elevation, high = low;
    for (const Mark& m : m_marks) {
        low = std::min(low, m.elevation);
        high = std::max(high, m.elevation);
    }
    m_low = low;
    m_exaggeration = Exaggeration(high - low, m_pxPerUnit, kBottom - kTop - 40);
    // Labels at their points where there is room, pushed right where there is not,
    // then back left from the right edge.
    double next = kLeft;
    for (Mark& m : m_marks) {
        m.labelX = std::max(X(m.station), next);
        next = m.labelX + kLabelPitch;
    }
    double limit = m_width - kRightMargin;
    for (auto it = m_marks.rbegin(); it != m_marks.rend(); ++it) {
        it->labelX = std::min(it->labelX, limit);
        limit = it->labelX - kLabelPitch;
    }

    // Grid lines through the bounded stepping: stations or elevations too large for
    // their step end here with a reason instead of a drawing of noise.
    const double step = NiceStep(m_p.end() - m_p.begin(), static_cast<int>((m_width - kLeft - kRightMargin) / 110));
    m_stationTicks.emplace(std::ceil(m_p.begin() / step) * step, step, m_p.end(), kMostGridLines);
    const double top = m_low + (kBottom - 20 - kTop) / (m_pxPerUnit * m_exaggeration);
    const double bottom = m_low - 20 / (m_pxPerUnit * m_exaggeration);
    const double rise = NiceStep(top - bottom, 6);
    m_elevationTicks.emplace(std::ceil(bottom / rise) * rise, rise, top, kMostGridLines);
    const auto drawable = [](const StationSteps& ticks) { return !ticks.Capped() && ticks.Resolved(); };
    if (!(m_pxPerUnit > 0) || !std::isfinite(m_pxPerUnit) || !drawable(*m_stationTicks)) {
        return "at stations near " + StationText(m_p.begin(), metric) + " a profile of " +
               FormatNumber(m_p.end() - m_p.begin()) + " cannot be drawn to scale";
    }
    if (!drawable(*m_elevationTicks)) {
        return "at elevations near " + FormatNumber(m_low) +
               " the rise and fall of this profile cannot be drawn to scale";
    }
    return {};
}

void Drawing::Axes(SvgWriter& svg) const {
    const std::string grid = R"(stroke="#e4e4e4" stroke-width="1")";
    const std::string tick = R"(font-size="11" fill="#333333")";
    for (std::size_t i = 0; i < m_stationTicks->Count(); ++i) {
        const double s = m_stationTicks->At(i);
        svg.Line(X(s), kTop, X(s), kBottom, grid);
        svg.Text(X(s), kBottom + 16, TickStation(s, m_p.metric()), tick + R"( text-anchor="middle")");
    }
    for (std::size_t i = 0; i < m_elevationTicks->Count(); ++i) {
        const double e = m_elevationTicks->At(i);
        svg.Line(kLeft, Y(e), m_width - kRightMargin, Y(e), grid);
        svg.Text(kLeft - 8, Y(e) + 4, ShortNumber(e), tick + R"( text-anchor="end")");
    }
    svg.Rect(kLeft, kTop, m_width - kLeft - kRightMargin, kBottom - kTop,
             R"(fill="none" stroke="#777777" stroke-width="1")");
    const std::string unit = m_p.metric() ? "m" : "ft";
    const std::string axis = R"(font-size="13" fill="#222222" text-anchor="middle")";
    svg.Text((kLeft + m_width - kRightMargin) / 2, kBottom + 38, "Station (" + unit + ")", axis);
    svg.Text(kLeft - 62, (kTop + kBottom) / 2, "Elevation (" + unit + ")", axis, -90);
}

void Drawing::Lines(SvgWriter& svg) const {
    // The tangents produced to each PVI, dashed, then the grade line over them.
    for (const ProfilePvi& v : m_p.pvis()) {
        if (!v.curve) continue;
        const VerticalCurve& c = *v.curve;
        svg.Path("M" + Point(svg, X(c.pvc()), Y(c.pvcElevation())) + " L" + Point(svg, X(v.station), Y(v.elevation)) +
                     " L" + Point(svg, X(c.pvt()), Y(c.pvtElevation())),
                 R"(fill="none" stroke="#888888" stroke-width="1" stroke-dasharray="6 4")");
    }
    for (const ProfilePiece& piece : m_p.pieces()) {
        const CurveGeometry& g = piece.geometry;
        const double x0 = X(g.pvc), y0 = Y(g.pvcElevation);
        const double x1 = X(g.pvt()), y1 = Y(g.ElevationAt(g.length));
        if (piece.pvi < 0) {
            svg.Line(x0, y0, x1, y1, std::string("stroke=\"") + kInk + "\" stroke-width=\"2\"");
            continue;
        }
        // A parabola is the quadratic Bezier whose control point is where its end
        // tangents meet, and scaling keeps that true.
        const double control = Y(g.pvcElevation + g.g1 / 100 * g.length / 2);
        svg.Path(
            "M" + Point(svg, x0, y0) + " Q" + Point(svg, X(g.pvc + g.length / 2), control) + " " + Point(svg, x1, y1),
            std::string("fill=\"none\" stroke=\"") + kCurveColour + "\" stroke-width=\"2.6\"");
    }
}

void Drawing::Marks(SvgWriter& svg) {
    for (const Mark& m : m_marks) {
        const double x = X(m.station), y = Y(m.elevation);
        const bool turning = m.label.find(" point ") != std::string::npos;
        const bool offRoad = std::fabs(m.elevation - m_p.ElevationAt(m.station)) > StationTolerance(m.elevation);
        if (offRoad) {
            svg.Circle(x, y, 3.5, R"(fill="#ffffff" stroke="#555555" stroke-width="1.2")");
        } else if (turning) {
            svg.Path("M" + Point(svg, x, y - 5) + " L" + Point(svg, x + 5, y) + " L" + Point(svg, x, y + 5) + " L" +
                         Point(svg, x - 5, y) + " Z",
                     R"(fill="#b3261e" stroke="#ffffff" stroke-width="1")");
        } else {
            svg.Circle(x, y, 4, std::string("fill=\"#ffffff\" stroke=\"") + kInk + "\" stroke-width=\"1.8\"");
        }
        svg.Path(
            "M" + Point(svg, x, y - 6) + " L" + Point(svg, x, kTop) + " L" + Point(svg, m.labelX, kLabelBottom + 6),
            R"(fill="none" stroke="#aaaaaa" stroke-width="0.7")");
        svg.Text(m.labelX + 4, kLabelBottom, m.label, R"(font-size="11" fill="#222222")", -90);
    }
}

SvgDrawing Drawing::Draw(std::string_view title) {
    if (std::string why = Scale(); !why.empty()) return {{}, "the profile cannot be drawn: " + why};
    SvgWriter svg(m_width, kBottom + 60);
    svg.Rect(0, 0, m_width, kBottom + 60, R"(fill="#ffffff")");
    svg.Text(kLeft, 30, title, R"(font-size="17" font-weight="bold" fill="#111111")");
    const std::string facts = std::to_string(m_p.pvis().size()) + " PVIs from " +
                              StationText(m_p.begin(), m_p.metric()) + " to " + StationText(m_p.end(), m_p.metric()) +
                              (m_p.metric() ? ", metres" : ", feet") + "  \u00b7  vertical exaggeration " +
                              ShortNumber(m_exaggeration) + ":1";
    svg.Text(kLeft, 52, facts, R"(font-size="13" fill="#333333")");
    Axes(svg);
    Lines(svg);
    Marks(svg);
    if (!svg.AllFinite()) return {{}, "the profile cannot be drawn: its numbers lie beyond the range of drawing"};
    return {svg.Finish(), {}};
}

}  // namespace

SvgDrawing ProfilePlotSvg(const Profile& profile, std::string_view title) { return Drawing(profile).Draw(title); }

}  // namespace gw::cli
