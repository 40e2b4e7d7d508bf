#pragma once
// The window slots: each curve window has a numbered slot, the one record of what
// belongs to its curve besides the window's own fields. Slots are never removed while
// the program runs; slot 0 exists from the start and is never handed out.

#include <QPointer>
#include <deque>
#include <memory>

namespace gw {

class AutoStationDialog;
class ElevationsWindow;
class Platform;
class frmCrestCurve;

struct WindowSlot {
    int number = 0;                       // the Tag of the slot's windows
    QPointer<frmCrestCurve> curveWindow;  // none while the slot is free
    // Made with the slot and kept, hidden or shown, for the whole run: the curve's
    // elevation rows and offsets are its fields.
    std::unique_ptr<ElevationsWindow> elevationsWindow;
    bool free = true;
    bool changed = false;  // edited since the curve was created, opened or saved
};

class WindowSlots {
public:
    // The elevations windows report through the platform.
    explicit WindowSlots(Platform& platform);
    ~WindowSlots();

    // AllocateWindowSlot: the lowest free slot from 1 up, else a new one at the end;
    // in use from now on.
    WindowSlot& AllocateWindowSlot();
    // True when some slot from 1 up is in use.
    bool AnyCurveWindowOpen() const;

    int Count() const { return int(m_slots.size()); }
    // The slot of that number; a number out of range throws.
    WindowSlot& operator[](int number) { return m_slots.at(size_t(number)); }

private:
    Platform& m_platform;
    // One dialog for every elevations window, made with the first; gone after them,
    // which are declared after it.
    std::unique_ptr<AutoStationDialog> m_autoStation;
    // A window keeps its slot's address: a deque does not move what it holds.
    std::deque<WindowSlot> m_slots;
};

}  // namespace gw
