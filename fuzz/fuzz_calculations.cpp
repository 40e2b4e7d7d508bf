// Arbitrary texts in every curve field, in both unit systems and both modes,
// through the field checks, Calc, Calculate TOS and auto-stationing: nothing may
// crash, and no field the program writes may show "nan", "inf", "-0" or an exponent.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "core/auto_stationing.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/field_checks.h"
#include "core/numbers.h"
#include "fuzz/fuzz_texts.h"

namespace {

bool Clean(const std::string& text) {
    if (text.find("nan") != std::string::npos || text.find("inf") != std::string::npos) return false;
    if (text.rfind("-0", 0) == 0 && gw::ReadNumber(text) == 0) return false;  // a negative zero
    if (text.find_first_of("eE") != std::string::npos) return false;
    return true;
}

void CheckWritten(const std::string& before, const std::string& after) {
    if (after != before && !Clean(after)) {
        std::fprintf(stderr, "unclean field text: \"%s\" (was \"%s\")\n", after.c_str(), before.c_str());
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const uint8_t flags = data[0];
    std::vector<std::string> texts = gw::fuzz::Texts(all.substr(1));
    size_t next = 0;
    auto text = [&] { return next < texts.size() ? texts[next++] : std::string(); };

    gw::CurveSheet sheet = gw::NewCurveSheet(gw::UnitSystemName(flags & 1));
    if (flags & 2) gw::SwitchToPVCPVTMode(sheet);
    for (const gw::CurveField& field : gw::kCurveFields) {
        if (!gw::IsTextField(field)) continue;
        gw::TextOf(sheet, field) = text();
        (void)gw::CheckCurveFieldOnLeave(sheet, field);
    }
    const gw::CurveSheet before = sheet;
    gw::Calculate(sheet);
    for (std::string_view name : gw::CurveSheet::CurveFieldNames())
        CheckWritten(*before.Field(name), *sheet.Field(name));

    sheet.elevations.txtVOffset = text();
    sheet.elevations.txtHOffset = text();
    sheet.elevations.txtXSlope = text();
    for (int i = 0; i < gw::kRowCount && next < texts.size(); ++i) {
        sheet.elevations.rows[i].txtTOTSTA1 = text();
        sheet.elevations.rows[i].txtTOTSTAM1 = text();
        (void)gw::CheckRowWholeStation(sheet, i);
        (void)gw::CheckRowPlus(sheet, i);
    }
    gw::ActivateElevations(sheet);
    for (const auto& row : sheet.elevations.rows) CheckWritten("", row.txtTotalTopSlab1);

    gw::AutoStationing dialog = gw::NewAutoStationing(sheet);
    if (flags & 4) {
        dialog.ChooseSpacing(sheet.elevations);
        dialog.txtBeginSTA = text();
        dialog.txtBeginSTAM = text();
        dialog.txtIncSTA = text();
        dialog.txtIncSTAM = text();
    } else {
        dialog.txtPoints = text();
    }
    for (const gw::AutoStationField& field : gw::kAutoStationFields) (void)dialog.CheckOnLeave(field);
    bool filled = false;
    if (!dialog.Accept()) gw::ApplyAutoStationing(sheet, dialog, &filled);
    if (filled) {
        for (const auto& row : sheet.elevations.rows) {
            CheckWritten("", row.txtTOTSTA1);
            CheckWritten("", row.txtTOTSTAM1);
            CheckWritten("", row.txtTotalTopSlab1);
        }
    }
    return 0;
}
