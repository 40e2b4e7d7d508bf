#pragma once
// The profile of a solved curve as an SVG drawing for a design memo.

#include <string>
#include <string_view>
#include <vector>

#include "cli/svg_writer.h"
#include "core/curve_sheet.h"

namespace gw::cli {

struct ProfilePoint {
    double station;
    double elevation;
};

// Tangents and parabola to scale (with a stated vertical exaggeration), PVC, PVI, PVT
// and turning point labelled with station and elevation, `rows` as points, grades and
// length annotated. The curve must have a positive length.
SvgDrawing CurvePlotSvg(const CurveSheet& solved, const std::vector<ProfilePoint>& rows, std::string_view title);

}  // namespace gw::cli
