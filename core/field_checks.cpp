#include "field_checks.h"

#include <array>

#include "messages.h"
#include "numbers.h"
#include "stations.h"

namespace gw {
namespace {

struct StationPair {
    std::string_view whole;
    std::string_view plus;
};

constexpr std::array<StationPair, 3> kStations = {{
    {"txtPVISTA", "txtPVISTAM"},
    {"txtPVCSTA", "txtPVCSTAM"},
    {"txtPVTSTA", "txtPVTSTAM"},
}};

}  // namespace

std::optional<std::string_view> PlusPartTooLarge(double plus, std::string_view unitSystem) {
    if (unitSystem == kMetric && plus > 999.999) return msg::kPlusUnder1000;
    if (unitSystem == kEnglish && plus > 99.99) return msg::kPlusUnder100;
    return std::nullopt;
}

std::optional<std::string_view> CheckCurveFieldOnLeave(const CurveSheet& sheet, std::string_view field) {
    const std::string* text = sheet.Field(field);
    if (!text) return std::nullopt;

    if (field == "txtLC") {
        if (ReadNumber(*text) == 0) return msg::kLengthNotZero;
        return std::nullopt;
    }
    if (text->empty()) return std::nullopt;
    if (field == "txtG1" || field == "txtG2") {
        if (!IsNumericText(*text)) return msg::kMustBeNumeric;
        return std::nullopt;
    }
    for (const StationPair& station : kStations) {
        if (field == station.whole) {
            if (!IsNumericText(*text)) return msg::kMustBeNumeric;
            return std::nullopt;
        }
        if (field == station.plus) {
            if (!IsNumericText(*text)) return msg::kMustBeNumeric;
            const double plus = ReadNumber(*text);
            if (auto tooLarge = PlusPartTooLarge(plus, sheet.lblMorF)) return tooLarge;
            if (ReadNumber(*sheet.Field(station.whole)) == 0 && plus == 0) return msg::kZeroStation;
            return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace gw
