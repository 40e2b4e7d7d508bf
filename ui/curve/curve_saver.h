#pragma once
// What the close question needs of the file commands, which sit above the curve
// windows and are handed to each curve window as it is made.

namespace gw {

class frmCrestCurve;

class CurveSaver {
public:
    virtual ~CurveSaver() = default;
    // Yes in the close question: the curve saved as Save saves it, with "untitled"
    // proposed as the name of an untitled curve.
    virtual void SaveBeforeClosing(frmCrestCurve& curve) = 0;
};

}  // namespace gw
