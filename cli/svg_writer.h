#pragma once
// Just enough SVG for a drawing: shapes and text in a fixed style vocabulary.

#include <string>
#include <string_view>

namespace gw::cli {

class SvgWriter {
public:
    SvgWriter(double width, double height);

    // `style` is a raw attribute list, e.g. R"(stroke="#000" stroke-width="1")".
    void Line(double x1, double y1, double x2, double y2, std::string_view style);
    void Rect(double x, double y, double w, double h, std::string_view style);
    void Circle(double cx, double cy, double r, std::string_view style);
    void Path(std::string_view d, std::string_view style);
    // Text is escaped here; `rotate` turns it about its anchor point, in degrees.
    void Text(double x, double y, std::string_view text, std::string_view style, double rotate = 0);
    void Raw(std::string_view markup);

    std::string Finish();

    // A coordinate as attribute text: two decimals at most, locale-independent.
    std::string Num(double value);
    // False once a coordinate was not a finite number: the drawing is then no drawing.
    bool AllFinite() const { return m_allFinite; }

private:
    std::string m_body;
    bool m_allFinite = true;
};

// A finished drawing, or why there is none.
struct SvgDrawing {
    std::string svg;
    std::string refused;  // why it cannot be drawn to scale; then svg is empty
};

std::string EscapeXml(std::string_view text);

}  // namespace gw::cli
