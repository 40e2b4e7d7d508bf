#pragma once
// The auto-stationing dialog's rules and the row filling that follows its answer.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/curve_sheet.h"
#include "core/form.h"
#include "core/refusal.h"

namespace gw {

struct AutoStationField;

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
    std::vector<std::string_view> CheckOnLeave(const AutoStationField& field) const;

    // OK: empty when the dialog may hide; otherwise the message and the field to focus.
    Outcome Accept();
    void Cancel();

    // The fields by control name; any other name throws.
    std::string* Field(std::string_view name);
    const std::string* Field(std::string_view name) const;
};

enum class AutoStationFieldKind { Points, BeginStation, BeginPlus, IncrementStation, IncrementPlus };

// The fields of the dialog (dlgAuto), one row each.
struct AutoStationField {
    std::string_view name;  // the control's name
    std::string AutoStationing::*value;
    AutoStationFieldKind kind;
    Rect place;
    std::string_view tooltip;
    int limit;  // characters the user may type, 0 for no limit
};

// In tab order, which puts the number of points second in both modes.
extern const std::array<AutoStationField, 5> kAutoStationFields;

// The number of points is the Increments mode's input, the rest are the Spacing mode's.
bool IsInputIn(const AutoStationField& field, bool spacing);

inline const AutoStationField& AutoStationFieldNamed(std::string_view name) {
    return RowNamed(kAutoStationFields, name);
}

// A dialog reset for this curve, as every showing is.
AutoStationing NewAutoStationing(const CurveSheet& sheet);

// Fills the rows from the dialog's answer and runs Calculate TOS. Returns the
// refusal of Calculate TOS, if any; `filled` tells whether the rows were touched
// at all (a zero count or increment leaves them alone).
Outcome ApplyAutoStationing(CurveSheet& sheet, const AutoStationing& answer, bool* filled = nullptr);

}  // namespace gw
