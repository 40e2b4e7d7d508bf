#include "shell/window_arrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

namespace gw {

std::vector<QRect> TileRects(TileDirection direction, int count, const QRect& area) {
    std::vector<QRect> tiles;
    if (count <= 0 || area.isEmpty()) return tiles;
    const bool bands = direction == TileDirection::Horizontal;
    const int length = bands ? area.height() : area.width();
    for (int i = 0; i < count; ++i) {
        // Integer splits that add up to the whole length.
        const int from = length * i / count;
        const int to = length * (i + 1) / count;
        tiles.push_back(bands ? QRect(area.left(), area.top() + from, area.width(), to - from)
                              : QRect(area.left() + from, area.top(), to - from, area.height()));
    }
    return tiles;
}

std::vector<QRect> IconRects(int count, const QSize& iconSize, const QRect& area) {
    std::vector<QRect> icons;
    if (count <= 0 || iconSize.isEmpty()) return icons;
    const int perRow = std::max(1, area.width() / iconSize.width());
    for (int i = 0; i < count; ++i) {
        const int row = i / perRow;
        const int column = i % perRow;
        icons.emplace_back(
            QPoint(area.left() + column * iconSize.width(), area.bottom() + 1 - (row + 1) * iconSize.height()),
            iconSize);
    }
    return icons;
}

void TileSubWindows(QMdiArea& area, TileDirection direction) {
    std::vector<QMdiSubWindow*> open;
    for (QMdiSubWindow* sub : area.subWindowList(QMdiArea::CreationOrder)) {
        if (sub->isVisible() && !sub->isMinimized()) open.push_back(sub);
    }
    const std::vector<QRect> tiles = TileRects(direction, int(open.size()), area.viewport()->rect());
    for (size_t i = 0; i < tiles.size(); ++i) {
        QMdiSubWindow* sub = open[i];
        if (sub->isMaximized()) sub->showNormal();
        const QSize size = tiles[i].size().expandedTo(sub->minimumSize()).boundedTo(sub->maximumSize());
        sub->setGeometry(QRect(tiles[i].topLeft(), size));
    }
}

void ArrangeIcons(QMdiArea& area) {
    std::vector<QMdiSubWindow*> icons;
    for (QMdiSubWindow* sub : area.subWindowList(QMdiArea::CreationOrder)) {
        if (sub->isMinimized()) icons.push_back(sub);
    }
    if (icons.empty()) return;
    const std::vector<QRect> places = IconRects(int(icons.size()), icons.front()->size(), area.viewport()->rect());
    for (size_t i = 0; i < places.size(); ++i) icons[i]->move(places[i].topLeft());
}

}  // namespace gw
