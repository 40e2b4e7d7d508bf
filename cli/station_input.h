#pragma once
// Stations as a user types them, on the command line or in a CSV profile: WHOLE+PLUS,
// the way every table prints them ("10+50", "1+250.5", "-0+25"). A leading sign
// belongs to the whole station, so -1+50 is 150 before station zero, as printed.

#include <optional>
#include <string>
#include <string_view>

namespace gw::cli {

struct StationParts {
    std::string whole, plus;
};

// "10+50" -> "10" and "50": split at the first '+' after the first character; none
// unless both parts have text. The parts are not checked further.
std::optional<StationParts> SplitStationText(std::string_view text);

struct StationReading {
    std::optional<double> value;  // in ft (100 ft stations) or m (1000 m stations)
    std::string problem;          // why the text is not a station, quoting it
};

// The whole part a whole number, the plus part a number from 0 to less than one station.
StationReading ReadStation(std::string_view text, bool metric);

}  // namespace gw::cli
