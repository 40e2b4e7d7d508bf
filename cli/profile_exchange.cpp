#include "cli/profile_exchange.h"

#include <ctime>

#include "cli/cli.h"
#include "cli/profile_landxml.h"
#include "cli/text_output.h"
#include "core/curve_file.h"
#include "core/curve_solver.h"
#include "core/elevations.h"
#include "core/numbers.h"

namespace gw::cli {
namespace {

std::string Now(const char* format) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    return std::string(text, std::strftime(text, sizeof text, format, &local));
}

std::string CurveList(const Profile& profile) {
    std::string list;
    for (size_t i = 0; i < profile.pvis().size(); ++i) {
        if (profile.pvis()[i].curve) list += (list.empty() ? "PVI " : ", PVI ") + std::to_string(i + 1);
    }
    return list.empty() ? "the profile has no curve" : "curves are at " + list;
}

}  // namespace

std::string ExportLandXml(const ProfileDocument& document, const Profile& profile) {
    // The schema's xs:date and xs:time, in the C locale's digits whatever the user's.
    return LandXmlText(document, profile, Now("%Y-%m-%d"), Now("%H:%M:%S"));
}

int ImportCurve(const ProfileDocument& document, const Profile& profile, size_t number, std::string& bytes,
                std::ostream& err) {
    const auto& pvis = profile.pvis();
    if (number < 1 || number > pvis.size() || !pvis[number - 1].curve) {
        err << "gradewise-cli: "
            << (number >= 1 && number <= pvis.size() ? ToUtf8(profile.PviName(number - 1)) + " has no vertical curve"
                                                     : "the profile has PVI 1 to PVI " + std::to_string(pvis.size()))
            << "; " << CurveList(profile) << "\n";
        return kUsage;
    }
    const size_t i = number - 1;
    const VerticalCurve& c = *pvis[i].curve;
    if (!c.symmetric()) {
        err << "gradewise-cli: the curve at " << ToUtf8(profile.PviName(i)) << " is unsymmetrical (L1 "
            << FormatNumber(c.lengthIn()) << ", L2 " << FormatNumber(c.lengthOut())
            << "); a curve file holds a symmetric curve\n";
        return kRefused;
    }
    const auto extras = document.extras.find(i);
    const bool stored = extras != document.extras.end();
    CurveSheet sheet = SheetFromProfileCurve(profile, i, stored && extras->second.endsMode);
    if (Outcome refused = Calculate(sheet)) {
        err << refused->message << "\n";
        return kRefused;
    }
    // As the user would: solve first, then fill the elevations window.
    if (stored) PutRowsAndOffsets(extras->second, sheet);
    int status = kDone;
    if (Outcome stopped = ActivateElevations(sheet)) {
        err << stopped->message << "\n";
        status = kStationOffCurve;
    }
    bytes = CurveFileBytes(sheet);
    return status;
}

}  // namespace gw::cli
