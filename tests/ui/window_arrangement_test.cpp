// Tiling in both directions and lining up icons.

#include <QMdiArea>
#include <QMdiSubWindow>

#include "shell/window_arrangement.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

TEST(ArrangementRectsTest, TilesSplitTheAreaEvenlyAndIconsLineUpAlongTheBottom) {
    EXPECT_EQ(TileRects(TileDirection::Horizontal, 3, {0, 0, 300, 100}),
              (std::vector<QRect>{{0, 0, 300, 33}, {0, 33, 300, 33}, {0, 66, 300, 34}}));
    EXPECT_EQ(TileRects(TileDirection::Vertical, 2, {10, 20, 601, 50}),
              (std::vector<QRect>{{10, 20, 300, 50}, {310, 20, 301, 50}}));
    EXPECT_TRUE(TileRects(TileDirection::Horizontal, 2, {0, 0, 0, 0}).empty());
    EXPECT_EQ(IconRects(3, QSize(100, 30), QRect(0, 0, 250, 200)),
              (std::vector<QRect>{{0, 170, 100, 30}, {100, 170, 100, 30}, {0, 140, 100, 30}}));
}

class ArrangementTest : public UiTest {};

TEST_F(ArrangementTest, TilingPlacesFixedWindowsInsideTheAreaWithoutGrowingTheFrame) {
    Main().resize(900, 600);
    NewCurve();
    NewCurve(false);
    const QSize frameBefore = Main().size();
    const QSize curveSize = Main().MdiArea().subWindowList().front()->size();
    const QRect area = Main().MdiArea().viewport()->rect();

    Main().mnuWindowTileVertical_Click();
    auto windows = Main().MdiArea().subWindowList(QMdiArea::CreationOrder);
    EXPECT_EQ(windows[0]->pos(), area.topLeft());
    EXPECT_EQ(windows[1]->pos(), QPoint(area.width() / 2, area.top()));

    Main().mnuWindowTileHorizontal_Click();
    EXPECT_EQ(windows[0]->pos(), area.topLeft());
    EXPECT_EQ(windows[1]->pos(), QPoint(area.left(), area.height() / 2));

    Main().mnuWindowCascade_Click();
    EXPECT_NE(windows[0]->pos(), windows[1]->pos());
    for (QMdiSubWindow* w : windows) EXPECT_EQ(w->size(), curveSize);
    EXPECT_EQ(Main().size(), frameBefore);
}

TEST_F(ArrangementTest, ArrangeIconsMovesOnlyMinimisedWindows) {
    NewCurve();
    NewCurve();
    auto windows = Main().MdiArea().subWindowList(QMdiArea::CreationOrder);
    windows[1]->showMinimized();
    windows[0]->move(40, 30);
    Main().mnuWindowArrangeIcons_Click();
    EXPECT_EQ(windows[0]->pos(), QPoint(40, 30));
    const QRect area = Main().MdiArea().viewport()->rect();
    EXPECT_EQ(windows[1]->geometry().bottomLeft(), QPoint(area.left(), area.bottom()));
}

}  // namespace
}  // namespace gw::test
