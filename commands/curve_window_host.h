#pragma once
// What the file commands need of the frame: the curve window they act on, and a
// new curve window for a file being opened.

namespace gw {

class frmCrestCurve;
struct WindowSlot;

class CurveWindowHost {
public:
    virtual ~CurveWindowHost() = default;
    virtual frmCrestCurve* ActiveCurveWindow() const = 0;
    // Creates and shows the slot's curve window as New does: in the units the units
    // dialog holds, in the PVI mode, empty.
    virtual frmCrestCurve& OpenCurveWindow(WindowSlot& slot) = 0;
};

}  // namespace gw
