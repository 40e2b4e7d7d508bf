#pragma once
// Stations and the two unit systems.

#include <cstddef>
#include <string>
#include <string_view>

namespace gw {

inline constexpr std::string_view kMetric = "Metric";
inline constexpr std::string_view kEnglish = "English";

// Any unit-system text other than "Metric" is treated as English.
inline bool IsMetric(std::string_view unitSystem) { return unitSystem == kMetric; }
inline std::string_view UnitSystemName(bool metric) { return metric ? kMetric : kEnglish; }

// Digits before the point of the largest plus part: 999.999 m or 99.99 ft.
inline std::size_t PlusPartWidth(bool metric) { return metric ? 3 : 2; }

// 1000 for a metric sheet, 100 otherwise.
double StationLength(std::string_view unitSystem);

// Whole-station text times the station length plus the plus text.
double JoinStation(std::string_view wholeText, std::string_view plusText, std::string_view unitSystem);

struct StationTexts {
    std::string whole;
    std::string plus;
};

// The whole part truncated toward zero as a plain whole number; the plus part worked
// out from the whole text as written, in the number format. A value that is not
// finite gives two empty texts.
StationTexts SplitStation(double value, std::string_view unitSystem);

}  // namespace gw
