#include "core/curve_sheet.h"

#include "core/curve_fields.h"
#include "core/elevation_fields.h"

namespace gw {

void ElevationTable::EmptyRows() {
    for (auto& row : rows) row = ElevationRow{};
}

void ElevationTable::ClearRowsAndOffsets() {
    EmptyRows();
    for (const ElevationField& field : kElevationFields) {
        if (field.kind == ElevationFieldKind::Offset) TextOf(*this, field, 0).clear();
    }
}

std::string* ElevationTable::Field(std::string_view name) {
    return &(this->*std::get<std::string ElevationTable::*>(ElevationFieldNamed(name).value));
}
const std::string* ElevationTable::Field(std::string_view name) const {
    return &(this->*std::get<std::string ElevationTable::*>(ElevationFieldNamed(name).value));
}

const std::array<std::string_view, 16>& CurveSheet::CurveFieldNames() {
    static const std::array<std::string_view, 16> names = [] {
        std::array<std::string_view, 16> out{};
        size_t n = 0;
        for (const CurveField& field : kCurveFields) {
            if (IsTextField(field)) out.at(n++) = field.name;
        }
        return out;
    }();
    return names;
}

std::string* CurveSheet::Field(std::string_view name) { return &TextOf(*this, CurveFieldNamed(name)); }
const std::string* CurveSheet::Field(std::string_view name) const { return &TextOf(*this, CurveFieldNamed(name)); }

bool CurveSheet::IsMetric() const { return gw::IsMetric(lblMorF); }

CurveSheet NewCurveSheet(std::string_view unitSystem) {
    CurveSheet sheet;
    sheet.lblMorF = std::string(unitSystem);
    return sheet;
}

void ClearAll(CurveSheet& sheet) {
    for (const CurveField& field : kCurveFields) {
        if (IsTextField(field) || field.kind == CurveFieldKind::Label) TextOf(sheet, field).clear();
    }
    sheet.elevations.ClearRowsAndOffsets();
}

void SwitchToPVIMode(CurveSheet& sheet) {
    sheet.optPVI = true;
    sheet.optPVCPVT = false;
    ClearAll(sheet);
}

void SwitchToPVCPVTMode(CurveSheet& sheet) {
    sheet.optPVI = false;
    sheet.optPVCPVT = true;
    ClearAll(sheet);
}

}  // namespace gw
