#pragma once
// Small builders for the sheets the tests solve.

#include "core/curve_sheet.h"

namespace gw::test {

inline CurveSheet PviSheet(const char* units, const char* sta, const char* stam, const char* elev, const char* g1,
                           const char* g2, const char* lc) {
    CurveSheet s = NewCurveSheet(units);
    s.txtPVISTA = sta;
    s.txtPVISTAM = stam;
    s.txtPVIEval = elev;
    s.txtG1 = g1;
    s.txtG2 = g2;
    s.txtLC = lc;
    return s;
}

inline CurveSheet EndsSheet(const char* units, const char* pvcSta, const char* pvcStam, const char* pvcElev,
                            const char* pvtSta, const char* pvtStam, const char* pvtElev, const char* g1) {
    CurveSheet s = NewCurveSheet(units);
    SwitchToPVCPVTMode(s);
    s.txtPVCSTA = pvcSta;
    s.txtPVCSTAM = pvcStam;
    s.txtPVCEval = pvcElev;
    s.txtPVTSTA = pvtSta;
    s.txtPVTSTAM = pvtStam;
    s.txtPVTEval = pvtElev;
    s.txtG1 = g1;
    return s;
}

inline void FillRows(CurveSheet& s) {
    for (int i = 0; i < kRowCount; ++i) {
        s.elevations.rows[i] = {"1", "2", "3"};
    }
}

}  // namespace gw::test
