#pragma once
// Tiling in both directions and lining up minimised windows. Qt's MDI area has only
// one tiling, and it resizes the children (growing the frame when they are fixed).

#include <QRect>
#include <vector>

class QMdiArea;

namespace gw {

enum class TileDirection {
    Horizontal,  // one band per window, stacked top to bottom
    Vertical,    // one column per window, side by side
};

// The area split into `count` bands or columns that together cover it exactly.
std::vector<QRect> TileRects(TileDirection direction, int count, const QRect& area);

// Slots for `count` minimised windows of `iconSize`: along the bottom edge from the
// left, a new row above when a row is full.
std::vector<QRect> IconRects(int count, const QSize& iconSize, const QRect& area);

// Each open (not minimised) child gets its tile's top left corner and as much of the
// tile as its size limits allow; the frame is never resized.
void TileSubWindows(QMdiArea& area, TileDirection direction);
void ArrangeIcons(QMdiArea& area);

}  // namespace gw
