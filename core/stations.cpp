#include "core/stations.h"

#include <cmath>

#include "core/numbers.h"

namespace gw {

double StationLength(std::string_view unitSystem) { return IsMetric(unitSystem) ? 1000.0 : 100.0; }

double JoinStation(std::string_view wholeText, std::string_view plusText, std::string_view unitSystem) {
    return ReadNumber(wholeText) * StationLength(unitSystem) + ReadNumber(plusText);
}

StationTexts SplitStation(double value, std::string_view unitSystem) {
    if (!std::isfinite(value)) return {};
    const double k = StationLength(unitSystem);
    StationTexts out;
    out.whole = FormatWholeNumber(std::trunc(value / k));
    out.plus = FormatNumber(value - ReadNumber(out.whole) * k);
    return out;
}

}  // namespace gw
