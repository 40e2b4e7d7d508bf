#include "shell/display_check.h"

#include <QScreen>
#include <cmath>

namespace gw {

double LogicalPixelsPerInch(const QScreen& screen) { return screen.logicalDotsPerInchX() * screen.devicePixelRatio(); }

bool IsSmallFontDisplay(double logicalPixelsPerInch) { return std::lround(logicalPixelsPerInch) == 96; }

}  // namespace gw
