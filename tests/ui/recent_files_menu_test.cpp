// The recent-files entries of the File menu: what opening and Save As put there,
// what a deleted file does, and what survives the program's end.

#include <QAction>

#include "core/curve_file.h"
#include "files/settings_store.h"
#include "file_fixture.h"

namespace gw::test {
namespace {

class RecentFilesMenuTest : public FileTest {
protected:
    // Curve files that exist, one per name.
    QString Made(const QString& name) {
        const QString path = FilePath(name);
        PutBytes(path, EmptyCurveBytes("Metric"));
        return path;
    }
    QString Stored(int n) {
        return QString::fromStdString(
            m_platform.Settings().GetSetting("Recent Files", "RecentFile" + std::to_string(n), "(missing)"));
    }
    void OpenAndClose(const QString& path) {
        frmCrestCurve* w = Open(path);
        ASSERT_NE(w, nullptr);
        Close(*w);
    }
};

TEST_F(RecentFilesMenuTest, AFirstRunShowsNoEntries) {
    for (QAction* a : Main().Menus().mnuRecentFile) EXPECT_FALSE(a->isVisible()) << a->objectName().toStdString();
}

TEST_F(RecentFilesMenuTest, OpenedFilesAreListedNewestFirstOnceEachUpToFour) {
    const QString a = Made("a.gwf"), b = Made("b.gwf"), c = Made("c.gwf");
    for (const QString& p : {a, b, c}) OpenAndClose(p);
    EXPECT_EQ(RecentShown(), QStringList({c, b, a}));
    EXPECT_EQ(Stored(1), c);
    EXPECT_EQ(Stored(2), b);
    EXPECT_EQ(Stored(3), a);
    EXPECT_EQ(Stored(4), "(missing)");

    // Opening a listed file again moves nothing, wherever it stands.
    OpenAndClose(b);
    OpenAndClose(c);
    EXPECT_EQ(RecentShown(), QStringList({c, b, a}));

    // Letter case makes a different path.
    const QString upperA = Made("A.gwf");
    OpenAndClose(upperA);
    EXPECT_EQ(RecentShown(), QStringList({upperA, c, b, a}));

    // A fifth drops the oldest; the entry that showed it keeps showing the shifted list.
    const QString e = Made("e.gwf");
    OpenAndClose(e);
    EXPECT_EQ(RecentShown(), QStringList({e, upperA, c, b}));
    EXPECT_EQ(Stored(4), b);
    EXPECT_FALSE(Main().Menus().mnuRecentFile[4]->isVisible());
}

TEST_F(RecentFilesMenuTest, ChoosingAnEntryOpensItsFile) {
    const QString a = Made("a.gwf"), b = Made("b.gwf");
    OpenAndClose(a);
    OpenAndClose(b);
    Main().Menus().mnuRecentFile[1]->trigger();
    Settle();
    frmCrestCurve* w = Main().ActiveCurveWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Vertical Curve - Metric: " + a);
    EXPECT_EQ(RecentShown(), QStringList({b, a}));
}

TEST_F(RecentFilesMenuTest, ADeletedFileIsReportedAndStaysListed) {
    const QString a = Made("a.gwf"), b = Made("b.gwf");
    OpenAndClose(a);
    OpenAndClose(b);
    ASSERT_TRUE(QFile::remove(a));
    for (int attempt = 0; attempt < 2; ++attempt) {
        m_platform.AnswerMessage(MessageButton::Ok);
        Main().Menus().mnuRecentFile[1]->trigger();
        Settle();
    }
    EXPECT_EQ(Messages(), QStringList({"This file does not exist.", "This file does not exist."}));
    EXPECT_TRUE(Main().MdiArea().subWindowList().isEmpty());
    EXPECT_EQ(RecentShown(), QStringList({b, a}));
    EXPECT_EQ(Stored(2), a);
}

TEST_F(RecentFilesMenuTest, SaveAsListsANewPathButSaveNever) {
    NewCurve();
    m_platform.AnswerSaveFile(FilePath("plain.gwf"));
    Save();
    EXPECT_TRUE(RecentShown().isEmpty());
    SaveAs(FilePath("named.gwf"));
    EXPECT_EQ(RecentShown(), QStringList{FilePath("named.gwf")});
}

TEST_F(RecentFilesMenuTest, TheListComesBackInTheNextRunButNotWithoutItsFirstKey) {
    const QString a = Made("a&b.gwf"), b = Made("b.gwf");
    OpenAndClose(a);
    OpenAndClose(b);
    RestartMain();
    EXPECT_EQ(RecentShown(), QStringList({b, QString(a).replace("&", "&&")}));
    Main().Menus().mnuRecentFile[1]->trigger();  // the ampersand is part of the path
    Settle();
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
        QTest::keyClicks(e.Field("txtVOffset"), "0.5");
        e.Field("txtHOffset")->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(e.Field("txtHOffset"), "12");
        e.Field("txtXSlope")->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(e.Field("txtXSlope"), "-2");
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
    ASSERT_EQ(before.lblSDL, "SSD");
    const QString path = FilePath("round.gwf");
    SaveAs(path);
    Close(w);  // saved: no question
    EXPECT_TRUE(Messages().isEmpty());

    RestartMain();
    ASSERT_EQ(RecentShown(), QStringList{path});
    Main().Menus().mnuRecentFile[0]->trigger();
    Settle();
    frmCrestCurve* back = Main().ActiveCurveWindow();
    ASSERT_NE(back, nullptr);
    const CurveSheet after = back->GatherSheet();
    for (std::string_view name : CurveSheet::CurveFieldNames()) EXPECT_EQ(*after.Field(name), *before.Field(name)) << name;
    EXPECT_EQ(after.lblSDL, before.lblSDL);
    EXPECT_EQ(after.lblMorF, "English");
    EXPECT_TRUE(after.optPVI);
    EXPECT_EQ(after.elevations.txtVOffset, "0.5");
    EXPECT_EQ(after.elevations.txtHOffset, "12");
    EXPECT_EQ(after.elevations.txtXSlope, "-2");
    for (int row = 0; row < kRowCount; ++row) {
        const ElevationRow& x = before.elevations.rows[size_t(row)];
        const ElevationRow& y = after.elevations.rows[size_t(row)];
        EXPECT_EQ(y.txtTOTSTA1, x.txtTOTSTA1) << row;
        EXPECT_EQ(y.txtTOTSTAM1, x.txtTOTSTAM1) << row;
        EXPECT_EQ(y.txtTotalTopSlab1, x.txtTotalTopSlab1) << row;
    }
    EXPECT_EQ(back->windowTitle(), "Vertical Curve - English: " + path);
    EXPECT_FALSE(Changed(*back));
    EXPECT_EQ(RecentShown(), QStringList{path});
}

}  // namespace
}  // namespace gw::test
