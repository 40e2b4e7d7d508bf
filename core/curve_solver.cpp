#include "core/curve_solver.h"

#include <array>
#include <cmath>

#include "core/curve_fields.h"
#include "core/curve_geometry.h"
#include "core/messages.h"
#include "core/numbers.h"
#include "core/sight_distance.h"
#include "core/stations.h"

namespace gw {
namespace {

using StationSnapshot = std::array<double, 6>;

// The six station fields: the PVI, PVC and PVT stations.
StationSnapshot TakeSnapshot(const CurveSheet& s) {
    StationSnapshot values{};
    size_t n = 0;
    for (const CurveField& field : kCurveFields) {
        if (field.kind == CurveFieldKind::WholeStation || field.kind == CurveFieldKind::PlusPart) {
            values.at(n++) = ReadNumber(TextOf(s, field));
        }
    }
    return values;
}

void ApplyChangeTest(CurveSheet& s, const StationSnapshot& before) {
    if (TakeSnapshot(s) != before) {
        s.elevations.EmptyRows();
        s.changed = true;
    }
}

Refusal Refuse(std::string_view message, std::string CurveSheet::*field) {
    return Refusal{std::string(message), std::string(RowOf(kCurveFields, field).name)};
}

// The solver's inputs in the order it checks them, each with its message.
struct Check {
    std::string CurveSheet::*field;
    std::string_view message;
};

template <size_t N>
Outcome FirstMissing(const CurveSheet& s, const std::array<Check, N>& checks) {
    for (const Check& c : checks) {
        if (!IsNumericText(s.*c.field)) return Refuse(c.message, c.field);
    }
    return std::nullopt;
}

void WriteStation(CurveSheet& s, std::string CurveSheet::*whole, std::string CurveSheet::*plus, double value) {
    StationTexts t = SplitStation(value, s.lblMorF);
    s.*whole = t.whole;
    s.*plus = t.plus;
}

// Where the grade of the parabola is zero, or "N/A" when the grades share a sign.
// With a zero length of curve r has no value; the turning point then comes out not
// finite and its fields are left empty.
void WriteTurningPoint(CurveSheet& s, double pvcValue, double L) {
    const double G1 = ReadNumber(s.txtG1);
    const double G2 = ReadNumber(s.txtG2);
    const double g1 = G1 / 100;
    const double g2 = G2 / 100;
    const double r = (g2 - g1) / L;
    const double tp = r == 0 ? 0 : pvcValue - g1 / r;
    if (GradesShareSign(G1, G2)) {
        s.txtTPSTA.clear();
        s.txtTPSTAM = "N/A";
    } else {
        WriteStation(s, &CurveSheet::txtTPSTA, &CurveSheet::txtTPSTAM, tp);
    }
}

void WriteMiddleOrdinate(CurveSheet& s, double L) {
    const double g1 = ReadNumber(s.txtG1) / 100;
    const double g2 = ReadNumber(s.txtG2) / 100;
    s.txtMO = FormatNumber(std::fabs(g1 - g2) * L / 8);
}

}  // namespace

Outcome SolveFromPVI(CurveSheet& s) {
    const StationSnapshot before = TakeSnapshot(s);
    static const std::array<Check, 6> checks = {{
        {&CurveSheet::txtPVISTA, msg::kPVIStation},
        {&CurveSheet::txtPVISTAM, msg::kPVIStation},
        {&CurveSheet::txtPVIEval, msg::kPVIElevation},
        {&CurveSheet::txtG1, msg::kG1},
        {&CurveSheet::txtG2, msg::kG2},
        {&CurveSheet::txtLC, msg::kLength},
    }};
    if (Outcome refusal = FirstMissing(s, checks)) return refusal;

    const double P = JoinStation(s.txtPVISTA, s.txtPVISTAM, s.lblMorF);
    const double L = ReadNumber(s.txtLC);
    WriteStation(s, &CurveSheet::txtPVCSTA, &CurveSheet::txtPVCSTAM, P - L / 2);
    WriteStation(s, &CurveSheet::txtPVTSTA, &CurveSheet::txtPVTSTAM, P + L / 2);

    const double E = ReadNumber(s.txtPVIEval);
    const double g1 = ReadNumber(s.txtG1) / 100;
    const double g2 = ReadNumber(s.txtG2) / 100;
    s.txtPVCEval = FormatNumber(E - g1 * L / 2);
    s.txtPVTEval = FormatNumber(E + g2 * L / 2);
    WriteMiddleOrdinate(s, L);
    WriteTurningPoint(s, JoinStation(s.txtPVCSTA, s.txtPVCSTAM, s.lblMorF), L);
    ApplySightDistance(s);
    ApplyChangeTest(s, before);
    return std::nullopt;
}

Outcome SolveFromPVCPVT(CurveSheet& s) {
    const StationSnapshot before = TakeSnapshot(s);
    static const std::array<Check, 7> checks = {{
        {&CurveSheet::txtPVCSTA, msg::kPVCStation},
        {&CurveSheet::txtPVCSTAM, msg::kPVCStation},
        {&CurveSheet::txtPVCEval, msg::kPVCElevation},
        {&CurveSheet::txtPVTSTA, msg::kPVTStation},
        {&CurveSheet::txtPVTSTAM, msg::kPVTStation},
        {&CurveSheet::txtPVTEval, msg::kPVTElevation},
        {&CurveSheet::txtG1, msg::kG1},
    }};
    if (Outcome refusal = FirstMissing(s, checks)) return refusal;

    const double pvc = JoinStation(s.txtPVCSTA, s.txtPVCSTAM, s.lblMorF);
    const double pvt = JoinStation(s.txtPVTSTA, s.txtPVTSTAM, s.lblMorF);
    double L = pvt - pvc;
    if (L <= 0) return Refuse(msg::kPVCBeforePVT, &CurveSheet::txtPVCSTA);

    s.txtLC = FormatNumber(L);
    L = ReadNumber(s.txtLC);
    WriteStation(s, &CurveSheet::txtPVISTA, &CurveSheet::txtPVISTAM, pvc + L / 2);

    const double g1 = ReadNumber(s.txtG1) / 100;
    s.txtPVIEval = FormatNumber(ReadNumber(s.txtPVCEval) + g1 * L / 2);

    // The leaving grade goes through the field twice, as a fraction and then in
    // percent, so its rounding is the one the user sees.
    const double x = (ReadNumber(s.txtPVTEval) - ReadNumber(s.txtPVIEval)) / (L / 2);
    s.txtG2 = PlainNumberText(x);
    s.txtG2 = PlainNumberText(100 * ReadNumber(s.txtG2));
    s.txtG2 = FormatNumber(ReadNumber(s.txtG2));
    if (!std::isfinite(x)) s.txtG2.clear();

    WriteMiddleOrdinate(s, L);
    WriteTurningPoint(s, pvc, L);
    ApplySightDistance(s);
    ApplyChangeTest(s, before);
    return std::nullopt;
}

Outcome Calculate(CurveSheet& sheet) { return sheet.optPVI ? SolveFromPVI(sheet) : SolveFromPVCPVT(sheet); }

}  // namespace gw
