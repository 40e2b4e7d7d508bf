#include "curve_layout.h"

namespace gw::curve_layout {

const std::array<TextFieldPlace, 16> kTextFields = {{
    {"txtPVISTA", "Enter PVI station", {280, 24, 33, 19}, "PVI station, whole stations"},
    {"txtPVISTAM", "Enter PVI station", {336, 24, 57, 19}, "PVI station, plus part"},
    {"txtPVIEval", "Enter PVI Elevation", {279, 56, 113, 19}, "PVI elevation"},
    {"txtG1", "Enter Grade (%)", {144, 128, 41, 19}, "Entering grade G1, percent"},
    {"txtG2", "Enter Grade (%)", {424, 128, 41, 19}, "Leaving grade G2, percent"},
    {"txtLC", "Enter Length of Curve", {281, 231, 65, 19}, "Length of curve"},
    {"txtPVCSTA", "Calculated PVC station", {57, 255, 33, 19}, "PVC station, whole stations"},
    {"txtPVCSTAM", "Calculated PVC station", {113, 255, 57, 19}, "PVC station, plus part"},
    {"txtPVCEval", "Calculated PVC Elevation", {57, 284, 113, 19}, "PVC elevation"},
    {"txtPVTSTA", "Calculated PVT station", {465, 255, 33, 19}, "PVT station, whole stations"},
    {"txtPVTSTAM", "Calculated PVT station", {521, 255, 57, 19}, "PVT station, plus part"},
    {"txtPVTEval", "Calculated PVT Elevation", {465, 284, 113, 19}, "PVT elevation"},
    {"txtMO", "Calculated Middle Ordinate", {462, 25, 113, 19}, "Middle ordinate"},
    {"txtSD", "Calculated Sight Distance", {462, 52, 113, 19}, "Sight distance"},
    {"txtTPSTA", "Calculated Turning Point station", {462, 79, 33, 19}, "Turning point station, whole stations"},
    {"txtTPSTAM", "Calculated Turning Point station", {518, 79, 57, 19}, "Turning point station, plus part"},
}};

const std::array<std::string_view, 6> kPVIInputs = {"txtPVISTA", "txtPVISTAM", "txtPVIEval",
                                                    "txtG1",     "txtG2",      "txtLC"};
const std::array<std::string_view, 7> kPVCPVTInputs = {"txtG1",     "txtPVCSTA",  "txtPVCSTAM", "txtPVCEval",
                                                       "txtPVTSTA", "txtPVTSTAM", "txtPVTEval"};

}  // namespace gw::curve_layout
