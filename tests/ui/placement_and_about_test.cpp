// The main window's place between runs, and the about box.

#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include "files/settings_store.h"
#include "shell/about_box.h"
#include "shell/placement.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

using PlacementTest = UiTest;

TEST_F(PlacementTest, FirstRunOpensAtTheDefaultTwips) {
    // 105, -108, 10065 and 7305 twips at 15 twips to the pixel.
    EXPECT_EQ(PlacementToPixels(ReadPlacement(m_platform.Settings())), QRect(7, -7, 671, 487));
    // The frame, border included, gets that size (a platform may keep its top on screen).
    EXPECT_EQ(Main().frameGeometry().size(), QSize(671, 487));
    EXPECT_EQ(Main().frameGeometry().x(), 7);
}

TEST(PlacementStoreTest, AFrameLeftWhereItOpenedKeepsTheTwipsItCameFrom) {
    const Placement defaults;  // -108 twips lies between two pixels
    const QRect opened = PlacementToPixels(defaults);
    const Placement kept = PlacementToStore(defaults, opened);
    EXPECT_EQ(std::vector<float>({kept.left, kept.top, kept.width, kept.height}),
              std::vector<float>({105, -108, 10065, 7305}));
    const Placement moved = PlacementToStore(defaults, opened.translated(0, 1));
    EXPECT_EQ(std::vector<float>({moved.left, moved.top, moved.width, moved.height}),
              std::vector<float>({105, -90, 10065, 7305}));
}

TEST_F(PlacementTest, AMovedAndResizedFrameReopensWhereItWasLeft) {
    Main().move(40, 50);
    Main().resize(800, 600);
    const QRect frame = Main().frameGeometry();
    Main().close();
    const std::vector<std::string> stored = m_platform.Settings().GetAllValues("Settings");
    EXPECT_EQ(stored, (std::vector<std::string>{"600", "750", std::to_string(frame.width() * 15),
                                                std::to_string(frame.height() * 15)}));
    EXPECT_EQ(RestartMain().frameGeometry(), frame);
}

TEST_F(PlacementTest, ClosingMinimisedKeepsThePreviousRunsPlace) {
    Main().move(30, 30);
    Main().close();
    frmMain& second = RestartMain();
    second.move(300, 300);
    second.showMinimized();
    second.close();
    EXPECT_EQ(RestartMain().pos(), QPoint(30, 30));
}

TEST_F(PlacementTest, AHandEditedValueThatIsNoNumberFallsBackToItsDefault) {
    m_platform.Settings().SaveSetting("Settings", "MainLeft", "left of centre");
    m_platform.Settings().SaveSetting("Settings", "MainWidth", "9000");
    EXPECT_EQ(Main().frameGeometry().x(), 7);
    EXPECT_EQ(Main().frameGeometry().width(), 600);
}

using AboutBoxTest = UiTest;

TEST_F(AboutBoxTest, ShowsTheBuildsVersionAndClosesOnEscape) {
    m_platform.AnswerDialog([](QDialog& d) {
        EXPECT_EQ(d.windowTitle(), "About Gradewise");
        EXPECT_EQ(d.findChild<QLabel*>("lblVersion")->text(), "Version 4.3.1");
        EXPECT_TRUE(d.findChild<QPlainTextEdit*>("txtDisclaimer")->isReadOnly());
        QTest::keyClick(&d, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
    Main().mnuHelpAbout_Click();
    Settle();
    EXPECT_TRUE(m_platform.ShownDialogs().contains("frmAbout"));
}

}  // namespace
}  // namespace gw::test
