#include "cli/curve_plot.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "cli/plot_scale.h"
#include "cli/svg_writer.h"
#include "cli/text_output.h"
#include "core/curve_geometry.h"
#include "core/numbers.h"
#include "core/station_rows.h"
#include "core/station_steps.h"

namespace gw::cli {
namespace {

constexpr double kWidth = 960, kHeight = 620;
constexpr double kLeft = 92, kRight = 930, kTop = 78, kBottom = 510;  // the plot area
// Room kept beyond the PVI for its label and the length dimension, and inside the
// curve for the PVC, PVT and turning-point labels.
constexpr double kRoomOut = 96, kRoomIn = 70;
constexpr double kFont = 12, kLineHeight = 14;
constexpr double kPi = 3.14159265358979323846;
// Far more grid lines than a drawing of this size can show: reaching it means the
// numbers are beyond drawing, not that the drawing needs them.
constexpr std::size_t kMostGridLines = 100;

constexpr const char* kCurveColour = "#1f4e8c";
constexpr const char* kRowColour = "#d9661f";
constexpr const char* kInk = "#222222";
constexpr const char* kGridColour = "#e4e4e4";

std::string Signed(double percent) { return (percent > 0 ? "+" : "") + FormatNumber(percent) + " %"; }

double TextWidth(std::string_view text, double size) {
    double chars = 0;
    for (unsigned char c : text) chars += (c & 0xC0) == 0x80 ? 0 : 1;  // UTF-8 continuation bytes
    return chars * size * 0.56;
}

struct Box {
    double x0, y0, x1, y1;
    bool Overlaps(const Box& o) const { return x0 < o.x1 && o.x0 < x1 && y0 < o.y1 && o.y0 < y1; }
};

enum class Align { Start, Middle, End };

struct Label {
    std::vector<std::string> lines;
    double px, py;  // the point labelled
    Align align;
    double direction;  // +1 below the point, -1 above
};

class CurveDrawing {
public:
    CurveDrawing(const CurveSheet& sheet, const std::vector<ProfilePoint>& rows)
        : m_sheet(sheet), m_curve(ReadCurveGeometry(sheet)), m_rows(rows), m_svg(kWidth, kHeight) {}

    SvgDrawing Draw(std::string_view title);

private:
    double X(double station) const { return kLeft + (station - m_stationMin) * m_pxPerUnit; }
    double Y(double elevation) const { return m_yOfTop - (elevation - m_elevationTop) * m_pxPerUnit * m_exaggeration; }
    // Elevation of the grade line at any station: tangents outside the curve.
    double Road(double station) const {
        if (station <= m_curve.pvc) return m_curve.pvcElevation + m_curve.g1 / 100 * (station - m_curve.pvc);
        if (station >= m_curve.pvt()) return m_pvtElevation + m_curve.g2 / 100 * (station - m_curve.pvt());
        return m_curve.ElevationAt(station - m_curve.pvc);
    }
    // Crest: the PVI lies above the curve, so "out" (away from the curve) is up.
    double Out() const { return m_curve.isCrest() ? -1 : 1; }
    std::string Unit() const { return m_curve.metric ? "m" : "ft"; }

    // Empty when the scale can be drawn, else why not.
    std::string Scale();
    std::string P(double x, double y) { return m_svg.Num(x) + "," + m_svg.Num(y); }
    void Grid();
    void GradeLine();
    void Points();
    void Labels();
    void LengthDimension();
    void GradeNotes();
    void Headings(std::string_view title);
    void Legend();

    std::optional<Box> Place(const Label& label);
    void Obstacle(double x, double y, double half) { m_taken.push_back({x - half, y - half, x + half, y + half}); }

    const CurveSheet& m_sheet;
    CurveGeometry m_curve;
    const std::vector<ProfilePoint>& m_rows;
    SvgWriter m_svg;
    double m_pvtElevation = 0;
    double m_stationMin = 0, m_stationMax = 0, m_stationStep = 0;
    double m_pxPerUnit = 0, m_exaggeration = 1;
    double m_elevationTop = 0, m_yOfTop = 0;
    std::optional<StationSteps> m_stationTicks, m_elevationTicks;
    std::vector<Box> m_taken;
    Box m_pviLabel{};
};

std::string CurveDrawing::Scale() {
    const double L = m_curve.length;
    m_pvtElevation = m_curve.ElevationAt(L);
    const double span = L * 1.6;
    m_stationStep = NiceStep(span, 7);
    m_stationMin = std::floor((m_curve.pvc - 0.3 * L) / m_stationStep) * m_stationStep;
    m_stationMax = std::ceil((m_curve.pvt() + 0.3 * L) / m_stationStep) * m_stationStep;
    m_pxPerUnit = (kRight - kLeft) / (m_stationMax - m_stationMin);

    std::vector<double> elevations = {Road(m_stationMin), Road(m_stationMax), m_curve.pvcElevation,
                                      m_curve.pviElevation(), m_pvtElevation};
    for (const ProfilePoint& p : m_rows) elevations.push_back(p.elevation);
    const auto [lo, hi] = std::minmax_element(elevations.begin(), elevations.end());
    const double room = kBottom - kTop - kRoomOut - kRoomIn;
    m_exaggeration = Exaggeration(*hi - *lo, m_pxPerUnit, room);
    const double spare = room - (*hi - *lo) * m_pxPerUnit * m_exaggeration;
    m_elevationTop = *hi;
    m_yOfTop = kTop + (m_curve.isCrest() ? kRoomOut : kRoomIn) + spare / 2;

    // Grid lines step through the shared bounded stepping: values too large for their
    // step stop here with a reason instead of running on.
    m_stationTicks.emplace(m_stationMin, m_stationStep, m_stationMax + m_stationStep / 1000, kMostGridLines);
    const double top = m_elevationTop + (m_yOfTop - kTop) / (m_pxPerUnit * m_exaggeration);
    const double bottom = m_elevationTop - (kBottom - m_yOfTop) / (m_pxPerUnit * m_exaggeration);
    const double step = NiceStep(top - bottom, 8);
    m_elevationTicks.emplace(std::ceil(bottom / step) * step, step, top, kMostGridLines);
    const auto drawable = [](const StationSteps& ticks) {
        return ticks.Count() > 0 && !ticks.Capped() && ticks.Resolved();
    };
    if (!drawable(*m_stationTicks) || !(m_pxPerUnit > 0) || !std::isfinite(m_pxPerUnit)) {
        return "at stations near " + StationText(m_curve.pvc, m_curve.metric) + " a length of curve of " +
               m_sheet.txtLC + " cannot be drawn to scale";
    }
    if (!drawable(*m_elevationTicks)) {
        return "at elevations near " + FormatNumber(m_curve.pvcElevation) +
               " the rise and fall of this curve cannot be drawn to scale";
    }
    return {};
}

void CurveDrawing::Grid() {
    m_svg.Rect(0, 0, kWidth, kHeight, R"(fill="#ffffff")");
    const std::string grid = std::string("stroke=\"") + kGridColour + "\" stroke-width=\"1\"";
    const std::string tickText = R"(font-size="12" fill="#333333")";
    for (std::size_t i = 0; i < m_stationTicks->Count(); ++i) {
        const double s = m_stationTicks->At(i);
        const double x = X(s);
        m_svg.Line(x, kTop, x, kBottom, grid);
        m_svg.Line(x, kBottom, x, kBottom + 5, R"(stroke="#777777")");
        m_svg.Text(x, kBottom + 19, TickStation(s, m_curve.metric), tickText + R"( text-anchor="middle")");
    }
    for (std::size_t i = 0; i < m_elevationTicks->Count(); ++i) {
        const double e = m_elevationTicks->At(i);
        const double y = Y(e);
        m_svg.Line(kLeft, y, kRight, y, grid);
        m_svg.Line(kLeft - 5, y, kLeft, y, R"(stroke="#777777")");
        m_svg.Text(kLeft - 9, y + 4, ShortNumber(e), tickText + R"( text-anchor="end")");
    }
    m_svg.Rect(kLeft, kTop, kRight - kLeft, kBottom - kTop, R"(fill="none" stroke="#777777" stroke-width="1")");
    const std::string axisTitle = R"(font-size="13" fill="#222222" text-anchor="middle")";
    m_svg.Text((kLeft + kRight) / 2, kBottom + 42, "Station (" + Unit() + ")", axisTitle);
    m_svg.Text(kLeft - 62, (kTop + kBottom) / 2, "Elevation (" + Unit() + ")", axisTitle, -90);
}

void CurveDrawing::GradeLine() {
    const double x0 = X(m_curve.pvc), y0 = Y(m_curve.pvcElevation);
    const double xi = X(m_curve.pvi()), yi = Y(m_curve.pviElevation());
    const double x1 = X(m_curve.pvt()), y1 = Y(m_pvtElevation);
    m_svg.Path("M" + P(x0, y0) + " L" + P(xi, yi) + " L" + P(x1, y1),
               R"(fill="none" stroke="#777777" stroke-width="1.2" stroke-dasharray="7 5")");
    const std::string tangent = std::string("stroke=\"") + kInk + "\" stroke-width=\"2\" stroke-linecap=\"round\"";
    m_svg.Line(X(m_stationMin), Y(Road(m_stationMin)), x0, y0, tangent);
    m_svg.Line(x1, y1, X(m_stationMax), Y(Road(m_stationMax)), tangent);
    // A parabola is exactly the quadratic Bezier whose control point is where its
    // tangents meet, and the drawing's scaling keeps that true.
    m_svg.Path("M" + P(x0, y0) + " Q" + P(xi, yi) + " " + P(x1, y1),
               std::string("fill=\"none\" stroke=\"") + kCurveColour + "\" stroke-width=\"2.6\"");

    // Labels keep clear of every line drawn.
    for (int i = 0; i <= 120; ++i) {
        const double s = m_stationMin + (m_stationMax - m_stationMin) * i / 120;
        Obstacle(X(s), Y(Road(s)), 2);
    }
    for (int i = 0; i <= 40; ++i) {
        const double t = i / 40.0;
        Obstacle(x0 + (xi - x0) * t, y0 + (yi - y0) * t, 1);
        Obstacle(xi + (x1 - xi) * t, yi + (y1 - yi) * t, 1);
    }
}

void CurveDrawing::Points() {
    const std::string row = std::string("fill=\"") + kRowColour + "\" stroke=\"#ffffff\" stroke-width=\"1\"";
    for (const ProfilePoint& p : m_rows) {
        m_svg.Circle(X(p.station), Y(p.elevation), 3.8, row);
        Obstacle(X(p.station), Y(p.elevation), 4);
    }
    const std::string open = std::string("fill=\"#ffffff\" stroke=\"") + kInk + "\" stroke-width=\"2\"";
    m_svg.Circle(X(m_curve.pvc), Y(m_curve.pvcElevation), 5, open);
    m_svg.Circle(X(m_curve.pvt()), Y(m_pvtElevation), 5, open);
    m_svg.Circle(X(m_curve.pvi()), Y(m_curve.pviElevation()), 4.5,
                 R"(fill="#ffffff" stroke="#555555" stroke-width="1.5")");
    Obstacle(X(m_curve.pvc), Y(m_curve.pvcElevation), 7);
    Obstacle(X(m_curve.pvt()), Y(m_pvtElevation), 7);
    Obstacle(X(m_curve.pvi()), Y(m_curve.pviElevation()), 6);
    if (auto tp = m_curve.TurningPoint()) {
        const double x = X(m_curve.pvc + *tp), y = Y(m_curve.ElevationAt(*tp));
        Obstacle(x, y, 7);
        m_svg.Path("M" + P(x, y - 6) + " L" + P(x + 6, y) + " L" + P(x, y + 6) + " L" + P(x - 6, y) + " Z",
                   R"(fill="#b3261e" stroke="#ffffff" stroke-width="1")");
    }
}

std::optional<Box> CurveDrawing::Place(const Label& label) {
    double width = 0;
    for (const std::string& line : label.lines) width = std::max(width, TextWidth(line, kFont));
    const double height = kLineHeight * label.lines.size() + 2;
    const double left = label.align == Align::Start ? label.px + 7
                        : label.align == Align::End ? label.px - 7 - width
                                                    : label.px - width / 2;
    const Box plot{kLeft + 2, kTop + 2, kRight - 2, kBottom - 2};
    Box box{};
    double gap = 10;
    for (int attempt = 0; attempt < 80; ++attempt, gap += 4) {
        const double top = label.direction > 0 ? label.py + gap : label.py - gap - height;
        box = {left, top, left + width, top + height};
        const bool inside = box.x0 >= plot.x0 && box.x1 <= plot.x1 && box.y0 >= plot.y0 && box.y1 <= plot.y1;
        const bool clear = std::none_of(m_taken.begin(), m_taken.end(), [&](const Box& b) { return b.Overlaps(box); });
        if (inside && clear) break;
    }
    if (gap > 14) {
        // Moved away from its point: a leader line says which point it belongs to.
        const double ly = label.direction > 0 ? box.y0 - 2 : box.y1 + 2;
        m_svg.Line(label.px, label.py + 6 * label.direction, label.px, ly, R"(stroke="#999999" stroke-width="0.8")");
    }
    const double x = label.align == Align::Start ? box.x0 : label.align == Align::End ? box.x1 : (box.x0 + box.x1) / 2;
    const char* anchor = label.align == Align::Start ? "start" : label.align == Align::End ? "end" : "middle";
    for (size_t i = 0; i < label.lines.size(); ++i) {
        const std::string style = std::string("font-size=\"12\" fill=\"") + kInk + "\" text-anchor=\"" + anchor + "\"" +
                                  (i == 0 ? " font-weight=\"bold\"" : "");
        m_svg.Text(x, box.y0 + kLineHeight * (i + 1) - 3, label.lines[i], style);
    }
    m_taken.push_back({box.x0 - 3, box.y0 - 3, box.x1 + 3, box.y1 + 3});
    return box;
}

void CurveDrawing::Labels() {
    const bool metric = m_curve.metric;
    const auto elevation = [](const std::string& field) { return "El. " + FormatNumber(ReadNumber(field)); };
    const double in = -Out();
    m_pviLabel = *Place({{"PVI " + StationText(m_curve.pvi(), metric), elevation(m_sheet.txtPVIEval)},
                         X(m_curve.pvi()),
                         Y(m_curve.pviElevation()),
                         Align::Middle,
                         Out()});

    std::string pvcName = "PVC", pvtName = "PVT";
    const auto tp = m_curve.TurningPoint();
    const std::string tpName = m_curve.isCrest() ? "High point" : "Low point";
    // A turning point at an end of the curve is named with that end.
    const bool tpAtPvc = tp && *tp == 0, tpAtPvt = tp && *tp == m_curve.length;
    if (tpAtPvc) pvcName += " = " + tpName;
    if (tpAtPvt) pvtName += " = " + tpName;
    Place({{pvcName + " " + StationText(m_curve.pvc, metric), elevation(m_sheet.txtPVCEval)},
           X(m_curve.pvc),
           Y(m_curve.pvcElevation),
           Align::Start,
           in});
    Place({{pvtName + " " + StationText(m_curve.pvt(), metric), elevation(m_sheet.txtPVTEval)},
           X(m_curve.pvt()),
           Y(m_pvtElevation),
           Align::End,
           in});
    if (tp && !tpAtPvc && !tpAtPvt) {
        Place({{tpName + " " + StationText(m_curve.pvc + *tp, metric), "El. " + FormatNumber(m_curve.ElevationAt(*tp))},
               X(m_curve.pvc + *tp),
               Y(m_curve.ElevationAt(*tp)),
               Align::Middle,
               in});
    }
}

void CurveDrawing::LengthDimension() {
    const double x0 = X(m_curve.pvc), x1 = X(m_curve.pvt());
    const double y = Out() < 0 ? m_pviLabel.y0 - 14 : m_pviLabel.y1 + 14;
    const std::string thin = R"(stroke="#999999" stroke-width="0.8" stroke-dasharray="2 3")";
    m_svg.Line(x0, Y(m_curve.pvcElevation) + 7 * Out(), x0, y, thin);
    m_svg.Line(x1, Y(m_pvtElevation) + 7 * Out(), x1, y, thin);
    m_svg.Line(x0, y, x1, y, R"(stroke="#444444" stroke-width="1")");
    m_svg.Path("M" + P(x0, y) + " L" + P(x0 + 9, y - 3.5) + " L" + P(x0 + 9, y + 3.5) + " Z", R"(fill="#444444")");
    m_svg.Path("M" + P(x1, y) + " L" + P(x1 - 9, y - 3.5) + " L" + P(x1 - 9, y + 3.5) + " Z", R"(fill="#444444")");
    const double ty = Out() < 0 ? y - 6 : y + 15;
    m_svg.Text((x0 + x1) / 2, ty, "L = " + FormatNumber(m_curve.length) + " " + Unit(),
               R"(font-size="12.5" fill="#222222" text-anchor="middle" font-weight="bold")");
}

void CurveDrawing::GradeNotes() {
    struct Tangent {
        double s0, s1, grade;
    };
    for (const Tangent& t :
         {Tangent{m_stationMin, m_curve.pvc, m_curve.g1}, Tangent{m_curve.pvt(), m_stationMax, m_curve.g2}}) {
        const double xa = X(t.s0), ya = Y(Road(t.s0)), xb = X(t.s1), yb = Y(Road(t.s1));
        const double length = std::hypot(xb - xa, yb - ya);
        if (length < 50) continue;
        // Unit normal pointing down the page, then to the side away from the curve.
        double nx = -(yb - ya) / length, ny = (xb - xa) / length;
        const double side = Out();
        const double offset = side < 0 ? 7 : 7 + kFont;
        const double x = (xa + xb) / 2 + nx * offset * side, y = (ya + yb) / 2 + ny * offset * side;
        const double angle = std::atan2(yb - ya, xb - xa) * 180 / kPi;
        m_svg.Text(x, y, Signed(t.grade), R"(font-size="12.5" fill="#222222" text-anchor="middle" font-style="italic")",
                   angle);
    }
}

void CurveDrawing::Headings(std::string_view title) {
    m_svg.Text(kLeft, 30, std::string(title), R"(font-size="17" font-weight="bold" fill="#111111")");
    const SightDistance sight = m_curve.Sight();
    const char* kind = m_curve.isCrest()         ? "Crest vertical curve"
                       : m_curve.g2 > m_curve.g1 ? "Sag vertical curve"
                                                 : "No change of grade";
    std::string facts = std::string(kind) + "  \u00b7  L = " + FormatNumber(m_curve.length) + " " + Unit() +
                        "  \u00b7  A = " + FormatNumber(m_curve.gradeChange()) + " %";
    if (auto K = m_curve.RateOfCurvature()) facts += "  \u00b7  K = " + FormatNumber(*K);
    if (!sight.kind.empty()) {
        facts += "  \u00b7  " + std::string(sight.kind) + " = " +
                 (std::isfinite(sight.distance) ? FormatNumber(sight.distance) + " " + Unit() : "unlimited");
    }
    m_svg.Text(kLeft, 52, facts, R"(font-size="13" fill="#333333")");
    m_svg.Text(kRight, 52, "Vertical exaggeration " + ShortNumber(m_exaggeration) + ":1",
               R"(font-size="13" fill="#333333" text-anchor="end")");
}

void CurveDrawing::Legend() {
    double x = kLeft;
    const double y = kBottom + 72;
    const auto item = [&](std::string_view text) {
        m_svg.Text(x + 34, y + 4, text, R"(font-size="12" fill="#333333")");
        x += 34 + TextWidth(text, 12) + 26;
    };
    m_svg.Line(x, y, x + 26, y, std::string("stroke=\"") + kCurveColour + "\" stroke-width=\"2.6\"");
    item("Vertical curve");
    m_svg.Line(x, y, x + 26, y, std::string("stroke=\"") + kInk + "\" stroke-width=\"2\"");
    item("Tangent grade");
    m_svg.Line(x, y, x + 26, y, R"(stroke="#777777" stroke-width="1.2" stroke-dasharray="7 5")");
    item("Tangents to the PVI");
    if (!m_rows.empty()) {
        m_svg.Circle(x + 13, y, 3.8, std::string("fill=\"") + kRowColour + "\"");
        const ElevationTable& t = m_sheet.elevations;
        const bool offset = IsNumericText(t.txtVOffset) || (IsNumericText(t.txtHOffset) && IsNumericText(t.txtXSlope));
        item(offset ? "Elevation rows (with offsets)" : "Elevation rows");
    }
}

SvgDrawing CurveDrawing::Draw(std::string_view title) {
    if (std::string why = WhyNoElevations(m_sheet); !why.empty()) return {{}, why};
    if (std::string why = Scale(); !why.empty()) return {{}, "the curve cannot be drawn: " + why};
    Grid();
    GradeLine();
    Points();
    Labels();
    LengthDimension();
    GradeNotes();
    Headings(title);
    Legend();
    if (!m_svg.AllFinite()) return {{}, "the curve cannot be drawn: its numbers lie beyond the range of drawing"};
    return {m_svg.Finish(), {}};
}

}  // namespace

SvgDrawing CurvePlotSvg(const CurveSheet& solved, const std::vector<ProfilePoint>& rows, std::string_view title) {
    return CurveDrawing(solved, rows).Draw(title);
}

}  // namespace gw::cli
