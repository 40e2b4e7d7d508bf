#pragma once
// The fields of the curve window (frmCrestCurve), one row each.

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "core/curve_sheet.h"
#include "core/form.h"

namespace gw {

enum class CurveFieldKind {
    WholeStation,  // whole stations: numeric on leaving
    PlusPart,      // follows its whole part: numeric, within the station, no station 0 on leaving
    Elevation,     // no check on leaving
    Grade,         // numeric on leaving
    Length,        // not 0 on leaving
    Result,        // a result in both modes: no check, and Enter there does not calculate
    Label,         // a caption the solver writes (the sight distance kind)
    Units,         // the unit system, fixed for the curve's life
    Option,        // one of the two modes
};

struct CurveField {
    std::string_view name;                                              // the control's name
    std::variant<std::string CurveSheet::*, bool CurveSheet::*> value;  // a text, or an option's state
    CurveFieldKind kind;
    Rect place;
    std::string_view text;            // the design text: a field's tooltip, an option's caption
    std::string_view accessibleName;  // what a screen reader says
    // The field's place among the inputs of each mode, in tab order from 1; 0 where
    // it is a result.
    int pviInput;
    int pvcpvtInput;
    int limit;  // characters the user may type, 0 for no limit
    FilePlace file;
    ReportPiece report;
};

// In the order Clear All empties the fields.
extern const std::array<CurveField, 20> kCurveFields;

// One of the sixteen text fields, the boxes a value is typed into or shown in; not a
// label or an option.
bool IsTextField(const CurveField& field);

// The field's text in the sheet; an option has none and throws.
std::string& TextOf(CurveSheet& sheet, const CurveField& field);
const std::string& TextOf(const CurveSheet& sheet, const CurveField& field);

// The whole-station field of a plus part, the row before it.
const CurveField& WholePartOf(const CurveField& plus);

inline const CurveField& CurveFieldNamed(std::string_view name) { return RowNamed(kCurveFields, name); }

}  // namespace gw
