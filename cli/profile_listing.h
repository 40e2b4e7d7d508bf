#pragma once
// The `profile` listing: every PVI with its curve, as text or as JSON.

#include <string>

#include "core/profile_sheet.h"

namespace gw::cli {

// Per PVI its station and elevation; per curve G1, G2, A, L (or L1 and L2), K, PVC
// and PVT with their elevations, crest or sag, the middle ordinate and the high or
// low point (or none on the curve); bare grade breaks flagged.
std::string ProfileListingText(const ProfileDocument& document, const Profile& profile);
std::string ProfileListingJson(const ProfileDocument& document, const Profile& profile);

// "+2.0 %", "-1.25 %", "0.0 %".
std::string GradeText(double percent);
// "ft" or "m".
std::string LengthUnit(const Profile& profile);

}  // namespace gw::cli
