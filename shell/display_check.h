#pragma once
// The windows are laid out in pixels for a screen of 96 logical pixels per inch;
// on any other the program refuses to start.

class QScreen;

namespace gw {

// The screen's effective logical resolution: Qt reports a scaled screen as 96 dpi
// with a device pixel ratio, so the two are multiplied.
double LogicalPixelsPerInch(const QScreen& screen);

bool IsSmallFontDisplay(double logicalPixelsPerInch);

}  // namespace gw
