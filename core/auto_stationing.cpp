#include "auto_stationing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "elevations.h"
#include "field_checks.h"
#include "messages.h"
#include "numbers.h"
#include "station_steps.h"
#include "stations.h"

namespace gw {
namespace {

Refusal Refuse(std::string_view message, std::string_view field) {
    return Refusal{std::string(message), std::string(field)};
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

std::string* AutoStationing::Field(std::string_view name) {
    if (name == "txtPoints") return &txtPoints;
    if (name == "txtBeginSTA") return &txtBeginSTA;
    if (name == "txtBeginSTAM") return &txtBeginSTAM;
    if (name == "txtIncSTA") return &txtIncSTA;
    if (name == "txtIncSTAM") return &txtIncSTAM;
    return nullptr;
}

const std::string* AutoStationing::Field(std::string_view name) const {
    return const_cast<AutoStationing*>(this)->Field(name);
}

std::vector<std::string_view> AutoStationing::CheckOnLeave(std::string_view field) const {
    std::vector<std::string_view> out;
    const std::string* text = Field(field);
    if (!text || text->empty()) return out;
    const bool numeric = IsNumericText(*text);
    const double value = ReadNumber(*text);

    if (field == "txtPoints") {
        if (optSpacing) return out;
        if (!numeric) out.push_back(msg::kMustBeNumeric);
        if (value > 20) out.push_back(msg::kPointsOver20);
        return out;
    }
    if (!optSpacing) return out;
    if (field == "txtBeginSTA") {
        if (!numeric) out.push_back(msg::kMustBeNumeric);
        if (ReadNumber(pvcSTA) > value) out.push_back(msg::kAtLeastPVC);
        if (ReadNumber(pvtSTA) < value) out.push_back(msg::kAtMostPVT);
    } else if (field == "txtBeginSTAM") {
        if (!numeric) return {msg::kMustBeNumeric};
        if (auto tooLarge = PlusPartTooLarge(value, unitSystem)) return {*tooLarge};
        const double b = JoinStation(txtBeginSTA, txtBeginSTAM, unitSystem);
        if (b == 0) return out;
        double low = JoinStation(pvcSTA, pvcSTAM, unitSystem);
        double high = JoinStation(pvtSTA, pvtSTAM, unitSystem);
        if (low > high) std::swap(low, high);
        if (b < low || b > high) out.push_back(msg::kBeginOffCurveField);
    } else if (field == "txtIncSTA") {
        if (!numeric) out.push_back(msg::kMustBeNumeric);
    } else if (field == "txtIncSTAM") {
        if (!numeric) return {msg::kMustBeNumeric};
        if (auto tooLarge = PlusPartTooLarge(value, unitSystem)) out.push_back(*tooLarge);
    }
    return out;
}

Outcome AutoStationing::Accept() {
    if (!optSpacing) {
        // A count that is not a number or above 20 is refused here rather than filling
        // rows from a guess: the user keeps the dialog and the rows. A negative count
        // is an answer: the rows are emptied and none is filled.
        if (!IsNumericText(txtPoints)) return Refuse(msg::kMustBeNumeric, "txtPoints");
        const double value = ReadNumber(txtPoints);
        if (value > 20) return Refuse(msg::kPointsOver20, "txtPoints");
        const double whole = std::nearbyint(value);  // halves to the even neighbour
        ipoints = static_cast<std::int16_t>(std::max(whole, double(INT16_MIN)));
        return std::nullopt;
    }
    for (std::string_view name : {"txtBeginSTA", "txtBeginSTAM", "txtIncSTA", "txtIncSTAM"}) {
        if (!IsNumericText(*Field(name))) return Refuse(msg::kMustBeNumeric, name);
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
        return Refuse(msg::kIncrementPositive, "txtIncSTA");
    }
    return Refuse(msg::kBeginOffCurveOK, "txtBeginSTA");
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
