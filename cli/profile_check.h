#pragma once
// The `check` report over a whole profile.

#include <ostream>

#include "core/curve_criteria.h"
#include "core/profile_sheet.h"

namespace gw::cli {

// Every curve and every bare grade break against every criterion at the design
// speed: its minimum length, the form used (S<L or S>L), whether it is met, which
// governs, the drainage flat zone, and the fastest design speed it supports. The
// last line is the verdict. The settings must be valid (CheckSettingsError).
// Returns 0 when every curve is long enough, 4 when one is not.
int ProfileCheckReport(const ProfileDocument& document, const Profile& profile, const CheckSettings& settings,
                       std::ostream& out);

}  // namespace gw::cli
