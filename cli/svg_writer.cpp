#include "cli/svg_writer.h"

#include <cmath>

#include "cli/text_output.h"

namespace gw::cli {

std::string EscapeXml(std::string_view text) {
    std::string out;
    for (char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

std::string SvgWriter::Num(double value) {
    const double rounded = std::round(value * 100) / 100;
    if (!std::isfinite(rounded)) m_allFinite = false;
    return ShortNumber(rounded);
}

SvgWriter::SvgWriter(double width, double height) {
    m_body = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + Num(width) + "\" height=\"" + Num(height) +
             "\" viewBox=\"0 0 " + Num(width) + " " + Num(height) +
             "\" font-family=\"Liberation Sans, Helvetica, Arial, sans-serif\">\n";
}

void SvgWriter::Line(double x1, double y1, double x2, double y2, std::string_view style) {
    m_body += "<line x1=\"" + Num(x1) + "\" y1=\"" + Num(y1) + "\" x2=\"" + Num(x2) + "\" y2=\"" + Num(y2) + "\" ";
    m_body.append(style);
    m_body += "/>\n";
}

void SvgWriter::Rect(double x, double y, double w, double h, std::string_view style) {
    m_body += "<rect x=\"" + Num(x) + "\" y=\"" + Num(y) + "\" width=\"" + Num(w) + "\" height=\"" + Num(h) + "\" ";
    m_body.append(style);
    m_body += "/>\n";
}

void SvgWriter::Circle(double cx, double cy, double r, std::string_view style) {
    m_body += "<circle cx=\"" + Num(cx) + "\" cy=\"" + Num(cy) + "\" r=\"" + Num(r) + "\" ";
    m_body.append(style);
    m_body += "/>\n";
}

void SvgWriter::Path(std::string_view d, std::string_view style) {
    m_body += "<path d=\"";
    m_body.append(d);
    m_body += "\" ";
    m_body.append(style);
    m_body += "/>\n";
}

void SvgWriter::Text(double x, double y, std::string_view text, std::string_view style, double rotate) {
    m_body += "<text x=\"" + Num(x) + "\" y=\"" + Num(y) + "\" ";
    if (rotate != 0) m_body += "transform=\"rotate(" + Num(rotate) + " " + Num(x) + " " + Num(y) + ")\" ";
    m_body.append(style);
    m_body += ">" + EscapeXml(text) + "</text>\n";
}

void SvgWriter::Raw(std::string_view markup) { m_body.append(markup); }

std::string SvgWriter::Finish() { return m_body + "</svg>\n"; }

}  // namespace gw::cli
