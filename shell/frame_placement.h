#pragma once
// Puts a top-level window's frame, decorations included, on a stored rectangle.
// Under a window manager the decorations are known only after the window has been
// framed, which happens after it is shown: until then the frame is taken to be the
// window itself, and the size is corrected once the decorations are known.

#include <QRect>

class QWidget;

namespace gw {

// Call before the window is first shown.
void PlaceFrame(QWidget& window, const QRect& frame);

}  // namespace gw
