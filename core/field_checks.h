#pragma once
// The checks that run when the focus leaves a field of the curve window.

#include <optional>
#include <string_view>

#include "core/curve_fields.h"
#include "core/curve_sheet.h"

namespace gw {

// The message to show when the user leaves `field` with its current text, or
// nothing. Fields without a check (the elevations and the results) never fail.
std::optional<std::string_view> CheckCurveFieldOnLeave(const CurveSheet& sheet, const CurveField& field);

// The plus-part range test shared by every station entry: the message for a plus
// part beyond the largest of its unit system, or nothing. Only "Metric" and
// "English" are range-checked.
std::optional<std::string_view> PlusPartTooLarge(double plus, std::string_view unitSystem);

}  // namespace gw
