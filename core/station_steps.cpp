#include "core/station_steps.h"

#include <algorithm>
#include <cmath>

namespace gw {

double StationTolerance(double station) { return 1e-9 * std::max(1.0, std::fabs(station)); }

StationSteps::StationSteps(double first, double step, double last, std::size_t most) : m_first(first), m_step(step) {
    // A comparison with NaN is false, so a value that is not a number ends the count.
    while (m_count < most && At(m_count) <= last) {
        if (m_count > 0 && !(At(m_count) > At(m_count - 1))) m_increasing = false;
        ++m_count;
    }
    m_capped = m_count == most && At(m_count) <= last;
}

bool StationSteps::Resolved() const {
    if (!m_increasing) return false;
    const double reach = m_count > 0 ? std::max(std::fabs(m_first), std::fabs(At(m_count - 1))) : std::fabs(m_first);
    return std::isfinite(reach) && std::isfinite(m_step) && m_step > 4 * StationTolerance(reach);
}

}  // namespace gw
