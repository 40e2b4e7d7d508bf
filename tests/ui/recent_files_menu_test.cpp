// The recent-files entries of the File menu: what opening puts there, what choosing
// an entry opens, what a deleted file does, and what survives the program's end.
// The list's own order rules are the files library's and tested there.

#include "core/curve_file.h"
#include "files/settings_store.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class RecentFilesMenuTest : public UiTest {
protected:
    // Curve files that exist, one per name, each opened and closed once.
    QString Opened(const QString& name) {
        const QString path = FilePath(name);
        PutBytes(path, EmptyCurveBytes("Metric"));
        frmCrestCurve* w = Open(path);
        if (w) Close(*w);
        return path;
    }
    void Choose(int entry) {
        Main().Menus().mnuRecentFile[entry]->trigger();
        Settle();
    }
};

TEST_F(RecentFilesMenuTest, OpenedFilesAreListedNewestFirstAndAnEntryOpensItsFile) {
    const QString a = Opened("a.gwf"), b = Opened("b.gwf"), c = Opened("c.gwf");
    Opened("b.gwf");  // listed already: nothing moves
    EXPECT_EQ(RecentShown(), QStringList({c, b, a}));
    const QString d = Opened("d.gwf"), e = Opened("e.gwf");
    EXPECT_EQ(RecentShown(), QStringList({e, d, c, b}));

    Choose(1);
    ASSERT_NE(Main().ActiveCurveWindow(), nullptr);
    EXPECT_EQ(Main().ActiveCurveWindow()->windowTitle(), "Vertical Curve - Metric: " + d);
    EXPECT_EQ(RecentShown(), QStringList({e, d, c, b}));
}

TEST_F(RecentFilesMenuTest, ADeletedFileIsReportedAndStaysListed) {
    const QString a = Opened("a.gwf"), b = Opened("b.gwf");
    ASSERT_TRUE(QFile::remove(a));
    for (int attempt = 0; attempt < 2; ++attempt) {
        m_platform.AnswerMessage(MessageButton::Ok);
        Choose(1);
    }
    EXPECT_EQ(Messages(), QStringList({"This file does not exist.", "This file does not exist."}));
    EXPECT_TRUE(Main().MdiArea().subWindowList().isEmpty());
    EXPECT_EQ(RecentShown(), QStringList({b, a}));
}

TEST_F(RecentFilesMenuTest, TheListComesBackInTheNextRunButNotWithoutItsFirstKey) {
    const QString a = Opened("a&b.gwf"), b = Opened("b.gwf");
    RestartMain();
    EXPECT_EQ(RecentShown(), QStringList({b, QString(a).replace("&", "&&")}));
    Choose(1);  // the ampersand is part of the path
    ASSERT_NE(Main().ActiveCurveWindow(), nullptr);
    Close(*Main().ActiveCurveWindow());

    ASSERT_TRUE(m_platform.Settings().SaveSetting("Recent Files", "RecentFile1", ""));
    RestartMain();
    EXPECT_TRUE(RecentShown().isEmpty());
}

// Save a solved curve with its elevations, end the run, start again, open it from
// the menu: every field and row comes back.
TEST_F(RecentFilesMenuTest, ASolvedCurveWithElevationsSurvivesTheRoundTrip) {
    frmCrestCurve& w = SolvedEnglishCurve();
    CalculateElevations(w, [](ElevationsWindow& e) {
        for (auto [name, text] : {std::pair{"txtVOffset", "0.5"}, {"txtHOffset", "12"}, {"txtXSlope", "-2"}}) {
            e.Field(name)->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(e.Field(name), text);
        }
        for (int row = 0; row < 3; ++row) {
            e.RowField("txtTOTSTA1", row)->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(e.RowField("txtTOTSTA1", row), QString::number(11 + row));
            e.RowField("txtTOTSTAM1", row)->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(e.RowField("txtTOTSTAM1", row), "50");
        }
        e.findChild<QPushButton*>("cmdOK")->click();
    });
    const CurveSheet before = w.GatherSheet();
    ASSERT_FALSE(before.elevations.rows[2].txtTotalTopSlab1.empty());
    const QString path = FilePath("round.gwf");
    SaveAs(path);
    Close(w);  // saved: no question

    RestartMain();
    Choose(0);
    frmCrestCurve* back = Main().ActiveCurveWindow();
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(CurveFileBytes(back->GatherSheet()), CurveFileBytes(before));  // every text, the mode and the rows
    EXPECT_EQ(back->windowTitle(), "Vertical Curve - English: " + path);
    EXPECT_FALSE(Changed(*back));
}

}  // namespace
}  // namespace gw::test
