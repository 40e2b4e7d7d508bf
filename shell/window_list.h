#pragma once
// The window list at the foot of the Window menu: one entry per child, by its title,
// the active one checked; choosing an entry activates its window.

class QMdiArea;
class QMenu;

namespace gw {

void RefreshWindowList(QMenu& windowMenu, QMdiArea& area);

}  // namespace gw
