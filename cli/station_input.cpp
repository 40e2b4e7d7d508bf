#include "cli/station_input.h"

#include <cmath>

#include "core/numbers.h"
#include "core/stations.h"

namespace gw::cli {

std::optional<StationParts> SplitStationText(std::string_view text) {
    const size_t at = text.find('+', 1);
    if (text.empty() || at == std::string_view::npos || at + 1 == text.size()) return std::nullopt;
    return StationParts{std::string(text.substr(0, at)), std::string(text.substr(at + 1))};
}

StationReading ReadStation(std::string_view text, bool metric) {
    const std::string quoted = "'" + std::string(text) + "'";
    const std::optional<StationParts> parts = SplitStationText(text);
    const auto wholeNumber = [](const std::string& t) {
        return IsNumericText(t) && std::isfinite(ReadNumber(t)) && ReadNumber(t) == std::trunc(ReadNumber(t));
    };
    if (!parts || !wholeNumber(parts->whole) || !IsNumericText(parts->plus) || parts->plus[0] == '-' ||
        parts->plus[0] == '+') {
        return {std::nullopt, quoted + " is not a station as WHOLE+PLUS"};
    }
    const double k = StationLength(metric ? kMetric : kEnglish);
    if (!(ReadNumber(parts->plus) < k)) {
        return {std::nullopt, "the plus part of " + quoted + " must be less than " + FormatWholeNumber(k)};
    }
    const double magnitude = std::fabs(ReadNumber(parts->whole)) * k + ReadNumber(parts->plus);
    if (!std::isfinite(magnitude)) return {std::nullopt, quoted + " is not a station as WHOLE+PLUS"};
    return {parts->whole[0] == '-' ? -magnitude : magnitude, {}};
}

}  // namespace gw::cli
