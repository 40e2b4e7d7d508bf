#pragma once
// The window slots: each curve window has a numbered slot that ties it to its
// elevations data and its WindowState. The three tables grow together and never
// shrink during a run; slot 0 exists from the start and is never handed out.

#include <QPointer>
#include <memory>
#include <vector>

#include "core/curve_sheet.h"

namespace gw {

class AutoStationDialog;
class CurveSaver;
class ElevationsWindow;
class Platform;
class SlotElevations;
class frmCrestCurve;

struct WindowState {
    bool free = true;
    bool changed = false;
};

class WindowSlots {
public:
    WindowSlots();
    ~WindowSlots();

    // The lowest free slot from 1 up, else a new one at the end; marks it in use.
    int AllocateWindowSlot();
    // Form_Unload of the slot's curve window.
    void Release(int slot);
    // True when some slot from 1 up is in use.
    bool AnyCurveWindowOpen() const;

    int Count() const { return int(m_states.size()); }
    WindowState& State(int slot) { return m_states.at(size_t(slot)); }
    const WindowState& State(int slot) const { return m_states.at(size_t(slot)); }

    // The slot's open curve window, or nullptr.
    frmCrestCurve* CurveWindow(int slot) const;
    void SetCurveWindow(int slot, frmCrestCurve* window);

    // What the slot's elevations window holds; kept for the whole run.
    ElevationTable& Elevations(int slot) { return m_elevations.at(size_t(slot)); }

    // The elevations windows share one auto-stationing dialog and report through
    // the platform; the frame hands it over once.
    void AttachElevations(Platform& platform);
    // The slot's elevations window, created on first use and kept; nullptr until
    // AttachElevations.
    ElevationsWindow* ElevationsWindowOf(int slot);

    // The file commands, through which a curve window's close question saves; the
    // frame hands them over once. nullptr until then.
    void AttachSaver(CurveSaver& saver) { m_saver = &saver; }
    CurveSaver* Saver() const { return m_saver; }

private:
    // Windows of their own rather than children of the frame, so that showing one
    // activates it and its first row takes the focus; owned here, and gone before
    // the links and the dialog they use.
    Platform* m_platform = nullptr;
    CurveSaver* m_saver = nullptr;
    std::unique_ptr<AutoStationDialog> m_autoStation;
    std::vector<std::unique_ptr<SlotElevations>> m_links;
    std::vector<std::unique_ptr<ElevationsWindow>> m_elevationsWindows;

    std::vector<QPointer<frmCrestCurve>> m_curveWindows;
    std::vector<ElevationTable> m_elevations;
    std::vector<WindowState> m_states;
};

}  // namespace gw
