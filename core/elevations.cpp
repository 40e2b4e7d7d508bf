#include "core/elevations.h"

#include <cmath>

#include "core/curve_fields.h"
#include "core/elevation_fields.h"
#include "core/field_checks.h"
#include "core/messages.h"
#include "core/numbers.h"
#include "core/stations.h"

namespace gw {

Offsets ReadOffsets(const ElevationTable& t) {
    return {IsNumericText(t.txtVOffset), ReadNumber(t.txtVOffset),
            IsNumericText(t.txtHOffset) && IsNumericText(t.txtXSlope),
            (ReadNumber(t.txtXSlope) / 100) * ReadNumber(t.txtHOffset)};
}

bool AddOffsets(std::string& text, const Offsets& o) {
    bool computed = true;
    for (const auto& [with, add] : {std::pair{o.withV, o.V}, std::pair{o.withCross, o.cross}}) {
        if (!with) continue;
        const double value = ReadNumber(text) + add;
        computed = computed && std::isfinite(value);
        text = FormatNumber(value);
    }
    return computed;
}

Outcome CalculateTOS(CurveSheet& sheet) {
    ElevationTable& t = sheet.elevations;
    t.bCalcOK = false;
    // Nothing the run reads changes while it runs, so the curve and the offsets are
    // read once.
    const double K = StationLength(sheet.lblMorF);
    const double pvc = ReadNumber(t.txtPVCSTA) * K + ReadNumber(t.txtPVCSTAM);
    const double pvt = ReadNumber(t.txtPVTSTA) * K + ReadNumber(t.txtPVTSTAM);
    const double g1 = ReadNumber(sheet.txtG1) / 100;
    const double g2 = ReadNumber(sheet.txtG2) / 100;
    const double L = ReadNumber(sheet.txtLC);
    const double E0 = ReadNumber(sheet.txtPVCEval);
    const double a = (g2 - g1) / L / 2;
    const Offsets offsets = ReadOffsets(t);

    for (int i = 0; i < kRowCount; ++i) {
        ElevationRow& row = t.rows[i];
        row.txtTotalTopSlab1.clear();
        const double T = ReadNumber(row.txtTOTSTA1) * K + ReadNumber(row.txtTOTSTAM1);
        if (T == 0) continue;
        if (pvc < pvt && (T < pvc || T > pvt)) {
            return Refusal{std::string(msg::kStationOffCurve),
                           std::string(RowOf(kElevationFields, &ElevationRow::txtTOTSTAM1).name), i};
        }
        const double x = T - pvc;
        const double E = E0 + g1 * x + a * (x * x);
        // A length of curve of zero (emptied after a Calc) has no parabola: the row
        // keeps an empty elevation instead of a number made up from a division by zero.
        if (!std::isfinite(E)) continue;
        // A 15-digit text reads back to a double whose 15 digits are the same, so the
        // number format of the value is the text the field ends with.
        row.txtTotalTopSlab1 = FormatNumber(E);
        AddOffsets(row.txtTotalTopSlab1, offsets);
    }
    t.bCalcOK = true;
    return std::nullopt;
}

bool CopyCurveStations(CurveSheet& sheet) {
    bool differed = false;
    for (const ElevationField& field : kElevationFields) {
        if (field.kind != ElevationFieldKind::StationCopy) continue;
        // Each copy bears the name of the curve's field it copies.
        std::string& copy = TextOf(sheet.elevations, field, 0);
        const std::string& curve = TextOf(sheet, CurveFieldNamed(field.name));
        differed = differed || copy != curve;
        copy = curve;
    }
    return differed;
}

Outcome ActivateElevations(CurveSheet& sheet) {
    if (CopyCurveStations(sheet)) return CalculateTOS(sheet);
    return std::nullopt;
}

Outcome ConfirmElevations(CurveSheet& sheet) { return CalculateTOS(sheet); }

void ClearElevations(CurveSheet& sheet) {
    sheet.changed = true;
    sheet.elevations.ClearRowsAndOffsets();
}

std::vector<std::string_view> CheckRowWholeStation(const CurveSheet& sheet, int row) {
    std::vector<std::string_view> messages;
    const std::string& text = sheet.elevations.rows.at(row).txtTOTSTA1;
    if (text.empty()) return messages;
    const double value = ReadNumber(text);
    if (!IsNumericText(text)) messages.push_back(msg::kMustBeNumeric);
    if (ReadNumber(sheet.elevations.txtPVCSTA) > value) messages.push_back(msg::kAtLeastPVC);
    if (ReadNumber(sheet.elevations.txtPVTSTA) < value) messages.push_back(msg::kAtMostPVT);
    return messages;
}

std::vector<std::string_view> CheckRowPlus(const CurveSheet& sheet, int row) {
    std::vector<std::string_view> messages;
    const std::string& text = sheet.elevations.rows.at(row).txtTOTSTAM1;
    if (text.empty()) return messages;
    if (!IsNumericText(text)) messages.push_back(msg::kMustBeNumeric);
    if (auto tooLarge = PlusPartTooLarge(ReadNumber(text), sheet.lblMorF)) messages.push_back(*tooLarge);
    return messages;
}

}  // namespace gw
