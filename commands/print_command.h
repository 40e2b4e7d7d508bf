#pragma once
// File > Print: the active curve's report, in as many copies as the print dialog asks.

class QWidget;

namespace gw {

class Platform;
struct CurveSheet;

// `sheet` is the active curve with its elevation rows, or nullptr when no curve
// window is open (then nothing is shown or printed). A cancelled dialog prints
// nothing; the busy cursor is restored in every case.
void PrintCurveReport(Platform& platform, QWidget* owner, const CurveSheet* sheet);

}  // namespace gw
