#include "core/elevation_fields.h"

namespace gw {
namespace {

using T = ElevationTable;
using R = ElevationRow;
using K = ElevationFieldKind;
using G = ReportGroup;

constexpr FilePlace kNotStored{};
constexpr ReportPiece kNotReported{};
constexpr bool kSameLine = true;

}  // namespace

constexpr std::array<ElevationField, 10> kElevationFields = {{
    // name, value, kind, place (left, top, width, height), tooltip, limit, file place, report
    {"txtPVCSTA",
     &T::txtPVCSTA,
     K::StationCopy,
     {104, 16, 33, 19},
     "Calculated PVC station",
     5,
     kNotStored,
     kNotReported},
    {"txtPVCSTAM",
     &T::txtPVCSTAM,
     K::StationCopy,
     {160, 16, 49, 19},
     "Calculated PVC station",
     0,
     kNotStored,
     kNotReported},
    {"txtPVTSTA",
     &T::txtPVTSTA,
     K::StationCopy,
     {320, 16, 33, 19},
     "Calculated PVT station",
     5,
     kNotStored,
     kNotReported},
    {"txtPVTSTAM",
     &T::txtPVTSTAM,
     K::StationCopy,
     {376, 16, 49, 19},
     "Calculated PVT station",
     0,
     kNotStored,
     kNotReported},
    {"txtVOffset", &T::txtVOffset, K::Offset, {88, 56, 49, 19}, "", 0, {8, 0}, {G::Offsets, "V-Offset: "}},
    {"txtHOffset",
     &T::txtHOffset,
     K::Offset,
     {240, 56, 49, 19},
     "",
     0,
     {8, 1},
     {G::Offsets, "  H-Offset: ", "", kSameLine}},
    {"txtXSlope",
     &T::txtXSlope,
     K::Offset,
     {384, 56, 49, 19},
     "",
     0,
     {8, 2},
     {G::Offsets, "  X-Slope: ", "", kSameLine}},
    {"txtTOTSTA1",
     &R::txtTOTSTA1,
     K::RowStation,
     {16, 112, 41, 19},
     "",
     0,
     {5, 0},
     {G::Rows, "Elevation at Station: "}},
    {"txtTOTSTAM1", &R::txtTOTSTAM1, K::RowPlus, {80, 112, 49, 19}, "", 0, {6, 0}, {G::Rows, "+", "", kSameLine}},
    {"txtTotalTopSlab1",
     &R::txtTotalTopSlab1,
     K::RowElevation,
     {152, 112, 89, 19},
     "",
     0,
     {7, 0},
     {G::Rows, "  =  ", "", kSameLine}},
}};

bool IsColumn(const ElevationField& field) { return std::holds_alternative<std::string ElevationRow::*>(field.value); }

bool IsInput(const ElevationField& field) {
    return field.kind == K::Offset || field.kind == K::RowStation || field.kind == K::RowPlus;
}

Rect PlaceInRow(Rect r, int row) {
    r.left += row < kRowsPerColumn ? 0 : kColumnShift;
    r.top += kRowHeight * (row % kRowsPerColumn);
    return r;
}

Rect PlaceInRow(const ElevationField& field, int row) {
    return IsColumn(field) ? PlaceInRow(field.place, row) : field.place;
}

namespace {

template <class Table>
auto& TextIn(Table& table, const ElevationField& field, int row) {
    if (const auto* column = std::get_if<std::string ElevationRow::*>(&field.value))
        return table.rows.at(row).*(*column);
    return table.*std::get<std::string ElevationTable::*>(field.value);
}

}  // namespace

std::string& TextOf(ElevationTable& table, const ElevationField& field, int row) { return TextIn(table, field, row); }

const std::string& TextOf(const ElevationTable& table, const ElevationField& field, int row) {
    return TextIn(table, field, row);
}

}  // namespace gw
