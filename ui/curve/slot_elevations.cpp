#include "slot_elevations.h"

#include "curve_window.h"
#include "window_slots.h"

namespace gw {

ElevationTable& SlotElevations::Table() { return m_slots.Elevations(m_slot); }

CurveSheet SlotElevations::CurveFields() const {
    if (frmCrestCurve* curve = m_slots.CurveWindow(m_slot)) return curve->GatherSheet();
    return NewCurveSheet("Metric");
}

void SlotElevations::MarkChanged() { m_slots.State(m_slot).changed = true; }

}  // namespace gw
