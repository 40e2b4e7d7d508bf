#pragma once
// A whole profile drawn as SVG: tangents and curves to scale, every PVC, PVI, PVT
// and high or low point marked and labelled.

#include <string>
#include <string_view>

#include "cli/svg_writer.h"
#include "core/profile.h"

namespace gw::cli {

// The drawing widens with the number of labels so that none overlaps another; each
// label stands above the plot on a leader line from its point. A profile whose
// stations or elevations are beyond drawing to scale is refused with the reason.
SvgDrawing ProfilePlotSvg(const Profile& profile, std::string_view title);

}  // namespace gw::cli
