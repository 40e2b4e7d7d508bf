#pragma once
// Ties an elevations window to its window slot: the slot's stored rows, the slot's
// curve window and the slot's changed flag.

#include "ui/elevations/elevations_slot.h"

namespace gw {

class WindowSlots;

class SlotElevations final : public ElevationsSlot {
public:
    SlotElevations(WindowSlots& windowSlots, int slot) : m_slots(windowSlots), m_slot(slot) {}

    ElevationTable& Table() override;
    CurveSheet CurveFields() const override;
    void MarkChanged() override;

private:
    WindowSlots& m_slots;
    const int m_slot;
};

}  // namespace gw
