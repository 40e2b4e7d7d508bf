#include "ui/curve/window_slots.h"

#include "ui/curve/curve_window.h"
#include "ui/elevations/auto_station_dialog.h"
#include "ui/elevations/elevations_window.h"

namespace gw {

WindowSlots::WindowSlots(Platform& platform) : m_platform(platform), m_slots(1) {}

WindowSlots::~WindowSlots() = default;

WindowSlot& WindowSlots::AllocateWindowSlot() {
    for (int i = 1; i < Count(); ++i) {
        if (m_slots[size_t(i)].free) {
            m_slots[size_t(i)].free = false;
            return m_slots[size_t(i)];
        }
    }
    if (!m_autoStation) m_autoStation = std::make_unique<AutoStationDialog>(m_platform);
    WindowSlot& slot = m_slots.emplace_back();
    slot.number = Count() - 1;
    slot.free = false;
    slot.elevationsWindow =
        std::make_unique<ElevationsWindow>(m_platform, *m_autoStation, [&slot] { slot.changed = true; });
    return slot;
}

bool WindowSlots::AnyCurveWindowOpen() const {
    for (int i = 1; i < Count(); ++i) {
        if (!m_slots[size_t(i)].free) return true;
    }
    return false;
}

}  // namespace gw
