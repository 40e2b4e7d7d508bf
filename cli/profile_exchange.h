#pragma once
// `export` and `import`: a profile to LandXML, one curve of a profile to a curve file.

#include <ostream>
#include <string>

#include "core/profile_sheet.h"

namespace gw::cli {

// The profile as LandXML 1.2, dated with the local date and time now.
std::string ExportLandXml(const ProfileDocument& document, const Profile& profile);

// The curve at PVI `number` (from 1) as the bytes of a curve file the program opens
// solved: solved as Calc solves it, its elevation rows computed as Calculate TOS
// computes them. The curve's own rows, offsets and mode come along when the
// profile carries them. Returns 0; 2 when there is no curve at that PVI; 1 when it
// is unsymmetrical (a curve file holds a symmetric curve); 3 when an elevation row
// lies off the curve (the bytes are still the curve, as far as it was computed).
int ImportCurve(const ProfileDocument& document, const Profile& profile, size_t number, std::string& bytes,
                std::ostream& err);

}  // namespace gw::cli
