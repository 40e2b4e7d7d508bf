#include "core/curve_fields.h"

namespace gw {
namespace {

using S = CurveSheet;
using K = CurveFieldKind;
using G = ReportGroup;

constexpr ReportPiece kNotReported{};
constexpr bool kSameLine = true;

}  // namespace

// The sight-distance kind comes before the distance, as the report prints them; the
// file keeps its own order, and the inputs of each mode theirs.
constexpr std::array<CurveField, 20> kCurveFields = {{
    // name, value, kind, place (left, top, width, height), design text,
    //   accessible name, PVI input, PVC/PVT input, limit, file place, report
    {"txtPVISTA", &S::txtPVISTA, K::WholeStation, {280, 24, 33, 19}, "Enter PVI station",
     "PVI station, whole stations", 1, 0, 5, {2, 1}, {G::PVI, "Station: "}},
    {"txtPVISTAM", &S::txtPVISTAM, K::PlusPart, {336, 24, 57, 19}, "Enter PVI station",
     "PVI station, plus part", 2, 0, 7, {1, 5}, {G::PVI, "+", "", kSameLine}},
    {"txtPVIEval", &S::txtPVIEval, K::Elevation, {279, 56, 113, 19}, "Enter PVI Elevation",
     "PVI elevation", 3, 0, 0, {2, 0}, {G::PVI, "Elevation: "}},
    {"txtPVCSTA", &S::txtPVCSTA, K::WholeStation, {57, 255, 33, 19}, "Calculated PVC station",
     "PVC station, whole stations", 0, 2, 5, {3, 3}, {G::PVC, "Station: "}},
    {"txtPVCSTAM", &S::txtPVCSTAM, K::PlusPart, {113, 255, 57, 19}, "Calculated PVC station",
     "PVC station, plus part", 0, 3, 7, {3, 2}, {G::PVC, "+", "", kSameLine}},
    {"txtPVCEval", &S::txtPVCEval, K::Elevation, {57, 284, 113, 19}, "Calculated PVC Elevation",
     "PVC elevation", 0, 4, 0, {3, 1}, {G::PVC, "Elevation: "}},
    {"txtPVTSTA", &S::txtPVTSTA, K::WholeStation, {465, 255, 33, 19}, "Calculated PVT station",
     "PVT station, whole stations", 0, 5, 5, {3, 0}, {G::PVT, "Station: "}},
    {"txtPVTSTAM", &S::txtPVTSTAM, K::PlusPart, {521, 255, 57, 19}, "Calculated PVT station",
     "PVT station, plus part", 0, 6, 7, {2, 6}, {G::PVT, "+", "", kSameLine}},
    {"txtPVTEval", &S::txtPVTEval, K::Elevation, {465, 284, 113, 19}, "Calculated PVT Elevation",
     "PVT elevation", 0, 7, 0, {2, 5}, {G::PVT, "Elevation: "}},
    {"txtG1", &S::txtG1, K::Grade, {144, 128, 41, 19}, "Enter Grade (%)",
     "Entering grade G1, percent", 4, 1, 0, {2, 3}, {G::Grades, "G1: ", "%"}},
    {"txtG2", &S::txtG2, K::Grade, {424, 128, 41, 19}, "Enter Grade (%)",
     "Leaving grade G2, percent", 5, 0, 0, {2, 2}, {G::Grades, "G2: ", "%"}},
    {"txtLC", &S::txtLC, K::Length, {281, 231, 65, 19}, "Enter Length of Curve",
     "Length of curve", 6, 0, 0, {2, 4}, {G::Grades, "Length of Curve: "}},
    {"txtMO", &S::txtMO, K::Result, {462, 25, 113, 19}, "Calculated Middle Ordinate",
     "Middle ordinate", 0, 0, 0, {3, 5}, {G::Results, "Middle Ordinate:   "}},
    {"lblSDL", &S::lblSDL, K::Label, {423, 55, 33, 13}, "",
     "Sight distance kind", 0, 0, 0, {1, 0}, {G::Results, "Sight Distance:  "}},
    {"txtSD", &S::txtSD, K::Result, {462, 52, 113, 19}, "Calculated Sight Distance",
     "Sight distance", 0, 0, 0, {3, 4}, {G::Results, " ", "", kSameLine}},
    {"txtTPSTA", &S::txtTPSTA, K::Result, {462, 79, 33, 19}, "Calculated Turning Point station",
     "Turning point station, whole stations", 0, 0, 0, {4, 2}, {G::Results, "Turning Point Station:   "}},
    {"txtTPSTAM", &S::txtTPSTAM, K::Result, {518, 79, 57, 19}, "Calculated Turning Point station",
     "Turning point station, plus part", 0, 0, 0, {4, 3}, {G::Results, "+", "", kSameLine}},
    {"lblMorF", &S::lblMorF, K::Units, {104, 328, 9, 9}, "",
     "", 0, 0, 0, {1, 1}, kNotReported},
    {"optPVI", &S::optPVI, K::Option, {33, 23, 41, 17}, "PVI",
     "Known data: PVI", 0, 0, 0, {4, 0}, kNotReported},
    {"optPVCPVT", &S::optPVCPVT, K::Option, {33, 47, 73, 17}, "PVC/PVT",
     "Known data: PVC and PVT", 0, 0, 0, {4, 1}, kNotReported},
}};

bool IsTextField(const CurveField& field) {
    return field.kind != K::Label && field.kind != K::Units && field.kind != K::Option;
}

const CurveField& WholePartOf(const CurveField& plus) {
    for (size_t i = 1; i < kCurveFields.size(); ++i) {
        if (&kCurveFields[i] == &plus && kCurveFields[i - 1].kind == K::WholeStation) return kCurveFields[i - 1];
    }
    throw std::invalid_argument("no whole-station field before " + std::string(plus.name));
}

std::string& TextOf(CurveSheet& sheet, const CurveField& field) { return sheet.*std::get<std::string S::*>(field.value); }

const std::string& TextOf(const CurveSheet& sheet, const CurveField& field) {
    return sheet.*std::get<std::string S::*>(field.value);
}

}  // namespace gw
