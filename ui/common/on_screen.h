#pragma once
// Runs something once a window is on the screen: a message about a window that is
// being shown must come over it, not before it.

#include <functional>

class QWidget;

namespace gw {

// Runs `then` from the event loop once `window` is exposed, or once it is hidden
// again without ever having been, so that it is never lost.
void WhenOnScreen(QWidget& window, std::function<void()> then);

}  // namespace gw
