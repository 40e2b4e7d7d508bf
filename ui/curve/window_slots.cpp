#include "window_slots.h"

#include "curve_window.h"

namespace gw {

WindowSlots::WindowSlots() : m_curveWindows(1), m_elevations(1), m_states(1) {}

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
