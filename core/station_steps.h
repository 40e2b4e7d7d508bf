#pragma once
// The one way to step along stations (or any other values in even steps). The value of
// step i is first + i * step, worked out from i, so rounding never piles up, and no
// more than a given number of steps is ever taken, so every loop over stations ends
// for any input: a step too small to move a station of that size, or zero, or not a
// number at all, cannot make it run on.

#include <cstddef>

namespace gw {

// Two stations closer than this are one: a station is a sum of whole stations and a
// plus part, a few roundings away from its exact value.
double StationTolerance(double station);

class StationSteps {
public:
    // The values first, first + step, ... up to `last` (included), at most `most` of
    // them. A step of zero repeats `first`; values below `first` never pass `last`.
    StationSteps(double first, double step, double last, std::size_t most);

    std::size_t Count() const { return m_count; }
    double At(std::size_t i) const { return m_first + static_cast<double>(i) * m_step; }

    // More values lie up to `last` than the `most` that were allowed.
    bool Capped() const { return m_capped; }
    // Every value is larger than the one before: the step shows at these magnitudes.
    bool Increasing() const { return m_increasing; }
    // Increasing, and every step well above the tolerance of the values it reaches, so
    // that each value can be printed as a station of its own.
    bool Resolved() const;

private:
    double m_first, m_step;
    std::size_t m_count = 0;
    bool m_capped = false;
    bool m_increasing = true;
};

}  // namespace gw
