#pragma once
// The curve file: eight lines of comma-separated values, fixed by position.

#include <string>
#include <string_view>

#include "core/curve_sheet.h"

namespace gw {

// The bytes Save writes for the sheet and its elevation rows: texts in double
// quotes as they stand, the options as #TRUE#/#FALSE#, CRLF after every line.
std::string CurveFileBytes(const CurveSheet& sheet);

// The values of a curve file as stored, before they reach a window: both options
// exactly as read (a short file leaves them both false). Reading stops after the
// 86th value or at the end of the bytes; values not reached stay empty.
CurveSheet ParseCurveFile(std::string_view bytes);

// Opening a file: a new window in the units the units dialog holds, switched to
// the stored mode, then filled with the stored texts and states. Nothing is
// computed and the sheet starts unchanged.
CurveSheet LoadStoredCurve(const CurveSheet& stored, std::string_view dialogUnitSystem);

}  // namespace gw
