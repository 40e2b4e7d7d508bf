#pragma once
// The record of one curve: its named fields as text, its unit system and mode, and
// the elevation rows that its elevations window holds.

#include <array>
#include <string>
#include <string_view>

#include "core/stations.h"

namespace gw {

inline constexpr int kRowCount = 20;

struct ElevationRow {
    std::string txtTOTSTA1;        // whole stations
    std::string txtTOTSTAM1;       // plus part
    std::string txtTotalTopSlab1;  // computed elevation
};

// What the elevations window of a curve holds.
struct ElevationTable {
    // The window's own copies of the curve's PVC and PVT stations.
    std::string txtPVCSTA, txtPVCSTAM, txtPVTSTA, txtPVTSTAM;
    std::string txtVOffset, txtHOffset, txtXSlope;
    std::array<ElevationRow, kRowCount> rows;
    bool bCalcOK = false;

    void EmptyRows();
    // Rows and offsets; the station copies stay.
    void ClearRowsAndOffsets();

    // The seven fields of their own by control name; any other name throws.
    std::string* Field(std::string_view name);
    const std::string* Field(std::string_view name) const;
};

struct CurveSheet {
    std::string lblMorF = std::string(kMetric);
    std::string lblSDL;
    bool optPVI = true;
    bool optPVCPVT = false;

    std::string txtPVISTA, txtPVISTAM, txtPVIEval;
    std::string txtG1, txtG2, txtLC;
    std::string txtPVCSTA, txtPVCSTAM, txtPVCEval;
    std::string txtPVTSTA, txtPVTSTAM, txtPVTEval;
    std::string txtMO, txtSD, txtTPSTA, txtTPSTAM;

    ElevationTable elevations;
    bool changed = false;

    // The sixteen text fields of the curve window, in the order Clear All empties them.
    static const std::array<std::string_view, 16>& CurveFieldNames();

    // The text fields and the two labels by control name; any other name throws.
    std::string* Field(std::string_view name);
    const std::string* Field(std::string_view name) const;

    bool IsMetric() const;
};

// A new sheet: every field empty, PVI mode, the given unit system.
CurveSheet NewCurveSheet(std::string_view unitSystem);

// Clear All of the curve window: empties the curve fields and the sight-distance kind,
// then the rows and offsets of the elevations; mode, units and changed stay.
void ClearAll(CurveSheet& sheet);

// A mode switch: sets both options and ends with Clear All.
void SwitchToPVIMode(CurveSheet& sheet);
void SwitchToPVCPVTMode(CurveSheet& sheet);

}  // namespace gw
