#include "curve_sheet.h"

#include "stations.h"

namespace gw {
namespace {

template <class Owner>
struct NamedMember {
    std::string_view name;
    std::string Owner::*member;
};

const std::array<NamedMember<CurveSheet>, 18> kCurveMembers = {{
    {"txtPVISTA", &CurveSheet::txtPVISTA},   {"txtPVISTAM", &CurveSheet::txtPVISTAM},
    {"txtPVIEval", &CurveSheet::txtPVIEval}, {"txtPVCSTA", &CurveSheet::txtPVCSTA},
    {"txtPVCSTAM", &CurveSheet::txtPVCSTAM}, {"txtPVCEval", &CurveSheet::txtPVCEval},
    {"txtPVTSTA", &CurveSheet::txtPVTSTA},   {"txtPVTSTAM", &CurveSheet::txtPVTSTAM},
    {"txtPVTEval", &CurveSheet::txtPVTEval}, {"txtG1", &CurveSheet::txtG1},
    {"txtG2", &CurveSheet::txtG2},           {"txtLC", &CurveSheet::txtLC},
    {"txtMO", &CurveSheet::txtMO},           {"txtSD", &CurveSheet::txtSD},
    {"txtTPSTA", &CurveSheet::txtTPSTA},     {"txtTPSTAM", &CurveSheet::txtTPSTAM},
    {"lblSDL", &CurveSheet::lblSDL},         {"lblMorF", &CurveSheet::lblMorF},
}};

const std::array<NamedMember<ElevationTable>, 7> kTableMembers = {{
    {"txtPVCSTA", &ElevationTable::txtPVCSTA},   {"txtPVCSTAM", &ElevationTable::txtPVCSTAM},
    {"txtPVTSTA", &ElevationTable::txtPVTSTA},   {"txtPVTSTAM", &ElevationTable::txtPVTSTAM},
    {"txtVOffset", &ElevationTable::txtVOffset}, {"txtHOffset", &ElevationTable::txtHOffset},
    {"txtXSlope", &ElevationTable::txtXSlope},
}};

template <class Owner, size_t N, class Target>
auto Find(const std::array<NamedMember<Owner>, N>& table, Target& owner, std::string_view name)
    -> decltype(&(owner.*table[0].member)) {
    for (const auto& m : table) {
        if (m.name == name) return &(owner.*m.member);
    }
    return nullptr;
}

}  // namespace

void ElevationTable::EmptyRows() {
    for (auto& row : rows) row = ElevationRow{};
}

void ElevationTable::ClearRowsAndOffsets() {
    EmptyRows();
    txtVOffset.clear();
    txtHOffset.clear();
    txtXSlope.clear();
}

std::string* ElevationTable::Field(std::string_view name) { return Find(kTableMembers, *this, name); }
const std::string* ElevationTable::Field(std::string_view name) const {
    return Find(kTableMembers, *this, name);
}

const std::array<std::string_view, 16>& CurveSheet::CurveFieldNames() {
    static const std::array<std::string_view, 16> names = {
        "txtPVISTA", "txtPVISTAM", "txtPVIEval", "txtPVCSTA", "txtPVCSTAM", "txtPVCEval",
        "txtPVTSTA", "txtPVTSTAM", "txtPVTEval", "txtG1",     "txtG2",      "txtLC",
        "txtMO",     "txtSD",      "txtTPSTA",   "txtTPSTAM"};
    return names;
}

std::string* CurveSheet::Field(std::string_view name) { return Find(kCurveMembers, *this, name); }
const std::string* CurveSheet::Field(std::string_view name) const {
    return Find(kCurveMembers, *this, name);
}

bool CurveSheet::IsMetric() const { return gw::IsMetric(lblMorF); }

CurveSheet NewCurveSheet(std::string_view unitSystem) {
    CurveSheet sheet;
    sheet.lblMorF = std::string(unitSystem);
    return sheet;
}

void ClearAll(CurveSheet& sheet) {
    for (std::string_view name : CurveSheet::CurveFieldNames()) sheet.Field(name)->clear();
    sheet.lblSDL.clear();
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
