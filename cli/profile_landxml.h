#pragma once
// Profiles in LandXML 1.2: the proposed vertical alignment (ProfAlign) with its PVI,
// ParaCurve and UnsymParaCurve elements.

#include <optional>
#include <string>
#include <string_view>

#include "core/profile_sheet.h"

namespace gw::cli {

struct LandXmlRead {
    std::optional<ProfileDocument> document;
    std::string error;  // names the line or the element at fault
};

// The ProfAlign called `profileName`, or the only one in the file. Feet (foot or
// US survey foot) or metres; circular curves and station equations are refused.
LandXmlRead ReadLandXml(std::string_view bytes, const std::optional<std::string>& profileName);

// The profile as a LandXML 1.2 document, valid against its schema: units stated in
// full, dated `date` (YYYY-MM-DD) at `time` (hh:mm:ss), one alignment with one
// profile. Any curve-file extras travel in a Feature of the ProfAlign.
std::string LandXmlText(const ProfileDocument& document, const Profile& profile, const std::string& date,
                        const std::string& time);

}  // namespace gw::cli
