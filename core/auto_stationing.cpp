#include "core/auto_stationing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/elevations.h"
#include "core/field_checks.h"
#include "core/messages.h"
#include "core/numbers.h"
#include "core/station_steps.h"
#include "core/stations.h"

namespace gw {

constexpr std::array<AutoStationField, 5> kAutoStationFields = {{
    // name, value, kind, place (left, top, width, height), tooltip, limit
    {"txtBeginSTA",
     &AutoStationing::txtBeginSTA,
     AutoStationFieldKind::BeginStation,
     {104, 120, 33, 19},
     "Beginning station",
     5},
    {"txtPoints",
     &AutoStationing::txtPoints,
     AutoStationFieldKind::Points,
     {128, 80, 33, 19},
     "Number of points between PVC and PVT station",
     2},
    {"txtBeginSTAM",
     &AutoStationing::txtBeginSTAM,
     AutoStationFieldKind::BeginPlus,
     {160, 120, 49, 19},
     "Beginning station",
     0},
    {"txtIncSTA", &AutoStationing::txtIncSTA, AutoStationFieldKind::IncrementStation, {104, 152, 33, 19}, "", 5},
    {"txtIncSTAM", &AutoStationing::txtIncSTAM, AutoStationFieldKind::IncrementPlus, {160, 152, 49, 19}, "", 0},
}};

bool IsInputIn(const AutoStationField& field, bool spacing) {
    return (field.kind == AutoStationFieldKind::Points) != spacing;
}

namespace {

Refusal Refuse(std::string_view message, std::string AutoStationing::*field) {
    return Refusal{std::string(message), std::string(RowOf(kAutoStationFields, field).name)};
}

// One row per station, from the first row on.
void WriteRows(ElevationTable& table, const StationSteps& stations, std::string_view unitSystem) {
    for (std::size_t j = 0; j < stations.Count(); ++j) {
        const StationTexts t = SplitStation(stations.At(j), unitSystem);
        ElevationRow& row = table.rows[j];
        row.txtTOTSTA1 = t.whole;
        row.txtTOTSTAM1 = t.plus;
        row.txtTotalTopSlab1.clear();
    }
}

}  // namespace

void AutoStationing::ChooseIncrements() {
    optSpacing = false;
    txtPoints = "10";
    ipoints = 0;
    txtIncSTA = txtIncSTAM = txtBeginSTAM = txtBeginSTA = "0";
    incSTA = incSTAM = begSTA = begSTAM = 0;
}

void AutoStationing::ChooseSpacing(const ElevationTable& table) {
    optSpacing = true;
    txtBeginSTA = table.txtPVCSTA;
    txtBeginSTAM = table.txtPVCSTAM;
    txtIncSTA = txtIncSTAM = "0";
    incSTA = incSTAM = begSTA = begSTAM = 0;
    pvcSTA = table.txtPVCSTA;
    pvcSTAM = table.txtPVCSTAM;
    pvtSTA = table.txtPVTSTA;
    pvtSTAM = table.txtPVTSTAM;
    txtPoints = "0";
    ipoints = 0;
}

std::string* AutoStationing::Field(std::string_view name) { return &(this->*AutoStationFieldNamed(name).value); }

const std::string* AutoStationing::Field(std::string_view name) const {
    return &(this->*AutoStationFieldNamed(name).value);
}

std::vector<std::string_view> AutoStationing::CheckOnLeave(const AutoStationField& field) const {
    std::vector<std::string_view> out;
    const std::string& text = this->*field.value;
    if (text.empty() || !IsInputIn(field, optSpacing)) return out;
    const bool numeric = IsNumericText(text);
    const double value = ReadNumber(text);
    switch (field.kind) {
        case AutoStationFieldKind::Points:
            if (!numeric) out.push_back(msg::kMustBeNumeric);
            if (value > 20) out.push_back(msg::kPointsOver20);
            break;
        case AutoStationFieldKind::BeginStation:
            if (!numeric) out.push_back(msg::kMustBeNumeric);
            if (ReadNumber(pvcSTA) > value) out.push_back(msg::kAtLeastPVC);
            if (ReadNumber(pvtSTA) < value) out.push_back(msg::kAtMostPVT);
            break;
        case AutoStationFieldKind::BeginPlus: {
            if (!numeric) return {msg::kMustBeNumeric};
            if (auto tooLarge = PlusPartTooLarge(value, unitSystem)) return {*tooLarge};
            const double b = JoinStation(txtBeginSTA, txtBeginSTAM, unitSystem);
            if (b == 0) return out;
            double low = JoinStation(pvcSTA, pvcSTAM, unitSystem);
            double high = JoinStation(pvtSTA, pvtSTAM, unitSystem);
            if (low > high) std::swap(low, high);
            if (b < low || b > high) out.push_back(msg::kBeginOffCurveField);
            break;
        }
        case AutoStationFieldKind::IncrementStation:
            if (!numeric) out.push_back(msg::kMustBeNumeric);
            break;
        case AutoStationFieldKind::IncrementPlus:
            if (!numeric) return {msg::kMustBeNumeric};
            if (auto tooLarge = PlusPartTooLarge(value, unitSystem)) out.push_back(*tooLarge);
            break;
    }
    return out;
}

Outcome AutoStationing::Accept() {
    if (!optSpacing) {
        // A count that is not a number or above 20 is refused here rather than filling
        // rows from a guess: the user keeps the dialog and the rows. A negative count
        // is an answer: the rows are emptied and none is filled.
        if (!IsNumericText(txtPoints)) return Refuse(msg::kMustBeNumeric, &AutoStationing::txtPoints);
        const double value = ReadNumber(txtPoints);
        if (value > 20) return Refuse(msg::kPointsOver20, &AutoStationing::txtPoints);
        const double whole = std::nearbyint(value);  // halves to the even neighbour
        ipoints = static_cast<std::int16_t>(std::max(whole, double(INT16_MIN)));
        return std::nullopt;
    }
    for (const AutoStationField& field : kAutoStationFields) {
        if (IsInputIn(field, true) && !IsNumericText(this->*field.value))
            return Refuse(msg::kMustBeNumeric, field.value);
    }
    begSTA = ReadNumber(txtBeginSTA);
    begSTAM = ReadNumber(txtBeginSTAM);
    incSTA = ReadNumber(txtIncSTA);
    incSTAM = ReadNumber(txtIncSTAM);
    const double K = StationLength(unitSystem);
    const double b = begSTA * K + begSTAM;
    const double pvc = ReadNumber(pvcSTA) * K + ReadNumber(pvcSTAM);
    const double pvt = ReadNumber(pvtSTA) * K + ReadNumber(pvtSTAM);
    if (pvc <= b && b <= pvt) {
        if ((incSTA > 0 && incSTAM >= 0) || (incSTA == 0 && incSTAM > 0)) return std::nullopt;
        return Refuse(msg::kIncrementPositive, &AutoStationing::txtIncSTA);
    }
    return Refuse(msg::kBeginOffCurveOK, &AutoStationing::txtBeginSTA);
}

void AutoStationing::Cancel() {
    if (optSpacing) {
        incSTA = incSTAM = begSTA = begSTAM = 0;
    } else {
        ipoints = 0;
    }
}

AutoStationing NewAutoStationing(const CurveSheet& sheet) {
    AutoStationing dialog;
    dialog.unitSystem = sheet.lblMorF;
    dialog.ChooseIncrements();
    return dialog;
}

Outcome ApplyAutoStationing(CurveSheet& sheet, const AutoStationing& answer, bool* filled) {
    if (filled) *filled = false;
    ElevationTable& t = sheet.elevations;
    const std::string& units = sheet.lblMorF;
    if (!answer.optSpacing) {
        const int n = answer.ipoints;
        if (n == 0) return std::nullopt;
        sheet.changed = true;
        t.EmptyRows();
        const double pvc = JoinStation(t.txtPVCSTA, t.txtPVCSTAM, units);
        const double pvt = JoinStation(t.txtPVTSTA, t.txtPVTSTAM, units);
        // One point has no interval to divide: it is the PVC alone.
        const double d = n > 1 ? (pvt - pvc) / (n - 1) : 0;
        WriteRows(t, StationSteps(pvc, d, pvt, static_cast<std::size_t>(std::clamp(n, 0, kRowCount))), units);
    } else {
        if (answer.incSTA == 0 && answer.incSTAM == 0) return std::nullopt;
        sheet.changed = true;
        t.EmptyRows();
        const double K = StationLength(units);
        const double b = answer.begSTA * K + answer.begSTAM;
        const double inc = answer.incSTA * K + answer.incSTAM;
        const double pvt = JoinStation(t.txtPVTSTA, t.txtPVTSTAM, units);
        WriteRows(t, StationSteps(b, inc, pvt, kRowCount), units);
    }
    if (filled) *filled = true;
    return CalculateTOS(sheet);
}

}  // namespace gw
