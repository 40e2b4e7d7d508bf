#include "window_slots.h"

#include "curve_window.h"
#include "slot_elevations.h"
#include "ui/elevations/auto_station_dialog.h"
#include "ui/elevations/elevations_window.h"

namespace gw {

WindowSlots::WindowSlots() : m_curveWindows(1), m_elevations(1), m_states(1) {}

WindowSlots::~WindowSlots() = default;

void WindowSlots::AttachElevations(Platform& platform) { m_platform = &platform; }

ElevationsWindow* WindowSlots::ElevationsWindowOf(int slot) {
    if (!m_platform || slot <= 0 || slot >= Count()) return nullptr;
    if (!m_autoStation) m_autoStation = std::make_unique<AutoStationDialog>(*m_platform);
    if (m_elevationsWindows.size() < size_t(Count())) {
        m_elevationsWindows.resize(size_t(Count()));
        m_links.resize(size_t(Count()));
    }
    auto& window = m_elevationsWindows[size_t(slot)];
    if (!window) {
        m_links[size_t(slot)] = std::make_unique<SlotElevations>(*this, slot);
        window = std::make_unique<ElevationsWindow>(*m_links[size_t(slot)], *m_platform, *m_autoStation);
    }
    return window.get();
}

int WindowSlots::AllocateWindowSlot() {
    for (int i = 1; i < Count(); ++i) {
        if (m_states[size_t(i)].free) {
            m_states[size_t(i)].free = false;
            return i;
        }
    }
    m_curveWindows.emplace_back();
    m_elevations.emplace_back();
    m_states.push_back(WindowState{false, false});
    return Count() - 1;
}

void WindowSlots::Release(int slot) {
    if (slot > 0 && slot < Count()) m_states[size_t(slot)].free = true;
}

bool WindowSlots::AnyCurveWindowOpen() const {
    for (int i = 1; i < Count(); ++i) {
        if (!m_states[size_t(i)].free) return true;
    }
    return false;
}

frmCrestCurve* WindowSlots::CurveWindow(int slot) const { return m_curveWindows.at(size_t(slot)); }

void WindowSlots::SetCurveWindow(int slot, frmCrestCurve* window) { m_curveWindows.at(size_t(slot)) = window; }

}  // namespace gw
