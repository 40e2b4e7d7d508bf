#pragma once
// The auto-stationing dialog's rules and the row filling that follows its answer.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "curve_sheet.h"
#include "refusal.h"

namespace gw {

// The dialog's fields, its private copies of the curve's ends and its answer.
struct AutoStationing {
    bool optSpacing = false;  // Increments when off
    std::string txtPoints = "10";
    std::string txtBeginSTA = "0", txtBeginSTAM = "0";
    std::string txtIncSTA = "0", txtIncSTAM = "0";

    std::string pvcSTA, pvcSTAM, pvtSTA, pvtSTAM;
    std::string unitSystem;  // the curve's lblMorF

    // The answer the elevations window reads.
    double incSTA = 0, incSTAM = 0, begSTA = 0, begSTAM = 0;
    std::int16_t ipoints = 0;

    // Every showing starts here: Increments with "10" points.
    void ChooseIncrements();
    // Proposes the PVC as beginning station and keeps the ends for the checks.
    void ChooseSpacing(const ElevationTable& table);

    // Messages on leaving a field, in the order shown; only for a non-empty field
    // that is an input of the current mode.
    std::vector<std::string_view> CheckOnLeave(std::string_view field) const;

    // OK: empty when the dialog may hide; otherwise the message and the field to focus.
    Outcome Accept();
    void Cancel();

    std::string* Field(std::string_view name);
    const std::string* Field(std::string_view name) const;
};

// A dialog reset for this curve, as every showing is.
AutoStationing NewAutoStationing(const CurveSheet& sheet);

// Fills the rows from the dialog's answer and runs Calculate TOS. Returns the
// refusal of Calculate TOS, if any; `filled` tells whether the rows were touched
// at all (a zero count or increment leaves them alone).
Outcome ApplyAutoStationing(CurveSheet& sheet, const AutoStationing& answer, bool* filled = nullptr);

}  // namespace gw
