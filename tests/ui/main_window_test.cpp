// The frame: its menus, the window list, Close All, closing and Exit.

#include <QAction>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include "shell/status_bar.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class MainWindowTest : public UiTest {
protected:
    // Makes a window say no when asked to close, as a cancelled close question would;
    // counts the times it was asked.
    struct Refuser : QObject {
        using QObject::QObject;
        int asked = 0;
        bool eventFilter(QObject*, QEvent* e) override {
            if (e->type() != QEvent::Close) return false;
            ++asked;
            e->ignore();
            return true;
        }
    };
    static Refuser* RefuseToClose(QWidget* window) {
        auto* refuser = new Refuser(window);
        window->installEventFilter(refuser);
        return refuser;
    }

    QStringList EntryTexts(QMenu* menu) {
        QStringList texts;
        for (QAction* a : menu->actions()) {
            if (a->isVisible()) texts << (a->isSeparator() ? QStringLiteral("-") : a->text());
        }
        return texts;
    }
};

TEST_F(MainWindowTest, MenusReadAsDesignedWithSpiralAndHorizontalGreyed) {
    const MainMenus& m = Main().Menus();
    EXPECT_EQ(Main().windowTitle(), QStringLiteral("Gradewise"));
    // A first run has no recent files: the File menu ends with the separator after Exit,
    // drawn even though nothing follows it.
    EXPECT_EQ(EntryTexts(m.mnuFile), (QStringList{"&Open", "&Save", "Save&As", "&Print", "E&xit", "-"}));
    m.mnuFile->popup(QPoint(0, 0));
    Settle();
    EXPECT_GT(m.mnuFile->actionGeometry(m.mnuSeparator).height(), 0);
    m.mnuFile->close();
    EXPECT_EQ(EntryTexts(m.mnuCurves), (QStringList{"&Vertical", "&Spiral", "&Horizontal"}));
    EXPECT_EQ(EntryTexts(m.mnuWindow),
              (QStringList{"&Cascade", "Tile &Horizontal", "Tile &Vertical", "&Arrange Icons", "-", "Close All"}));
    EXPECT_EQ(EntryTexts(m.mnuHelp), (QStringList{"&About Gradewise...", "&Gradewise on the Web "}));
    EXPECT_FALSE(m.mnuSpiral->isEnabled());
    EXPECT_FALSE(m.mnuHorizontalCurve->isEnabled());
    QStringList top;
    for (QAction* a : Main().menuBar()->actions()) top << a->text();
    EXPECT_EQ(top, (QStringList{"&File", "&Options", "&Window", "&Help"}));
}

TEST_F(MainWindowTest, StatusBarReadsStatusAndShowsThePlatformClock) {
    m_platform.SetNow(QDateTime(QDate(2031, 12, 24), QTime(9, 8, 7)));
    MainStatusBar& bar = Main().StatusBar();
    bar.Refresh();
    EXPECT_EQ(bar.StatusText(), QStringLiteral("Status"));
    EXPECT_TRUE(bar.DateText().contains(QStringLiteral("24"))) << bar.DateText().toStdString();
    EXPECT_EQ(bar.TimeText(), QStringLiteral("09:08:07"));  // the time of day only, no time zone
}

TEST_F(MainWindowTest, WindowMenuListsEachCurveByTitleAndMarksTheActiveOne) {
    NewCurve(true);
    frmCrestCurve& english = NewCurve(false);
    QMenu* menu = Main().Menus().mnuWindow;
    emit menu->aboutToShow();

    QStringList titles;
    QList<QAction*> entries;
    for (QAction* a : menu->actions()) {
        if (a->objectName().startsWith(QStringLiteral("mnuWindowList_"))) {
            titles << a->text();
            entries << a;
        }
    }
    ASSERT_EQ(titles, (QStringList{"Vertical Curve - Metric: Untitled", "Vertical Curve - English: Untitled"}));
    EXPECT_EQ(entries[1]->isChecked(), Main().ActiveCurveWindow() == &english);
    EXPECT_FALSE(entries[0]->isChecked());

    entries[0]->trigger();
    EXPECT_EQ(Main().ActiveCurveWindow()->UnitSystem(), QStringLiteral("Metric"));
    emit menu->aboutToShow();  // rebuilt, not appended to
    int listed = 0;
    for (QAction* a : menu->actions()) listed += a->objectName().startsWith(QStringLiteral("mnuWindowList_"));
    EXPECT_EQ(listed, 2);
}

TEST_F(MainWindowTest, CloseAllStopsAtAWindowThatRefusesToClose) {
    NewCurve();
    NewCurve();
    frmCrestCurve& stubborn = NewCurve();  // the active one: asked first
    Refuser* refuser = RefuseToClose(&stubborn);
    Main().mnuCloseAll_Click();  // must come back instead of asking forever
    Settle();
    EXPECT_EQ(refuser->asked, 1);
    EXPECT_EQ(Main().MdiArea().subWindowList().size(), 3);
    EXPECT_FALSE(Main().Slots()[3].free);
}

struct Ending {
    const char* name;
    void (*act)(frmMain&);
};

void PrintTo(const Ending& c, std::ostream* os) { *os << c.name; }

class EndingTest : public MainWindowTest, public ::testing::WithParamInterface<Ending> {};

TEST_P(EndingTest, ClosesEveryCurveThenEndsTheProgram) {
    NewCurve();
    NewCurve(false);
    QSignalSpy ended(&Main(), &frmMain::programEnded);
    GetParam().act(Main());
    Settle();
    EXPECT_FALSE(Main().isVisible());
    EXPECT_FALSE(Main().Slots().AnyCurveWindowOpen());
    EXPECT_EQ(ended.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(Frame, EndingTest,
                         ::testing::Values(Ending{"CloseBox", [](frmMain& m) { m.close(); }},
                                           Ending{"Exit", [](frmMain& m) { m.Menus().mnuFileExit->trigger(); }}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(MainWindowTest, StartUpMakesTheProgramFolderCurrent) {
    QDir::setCurrent(QDir::tempPath());
    Main();
    EXPECT_EQ(QDir::currentPath(), QDir(QCoreApplication::applicationDirPath()).canonicalPath());
}

TEST_F(MainWindowTest, HomePageEntryAsksTheShellToOpenAWebAddress) {
    Main().Menus().mnuGradewise_web->trigger();
    ASSERT_EQ(m_platform.OpenedUrls().size(), 1);
    EXPECT_TRUE(m_platform.OpenedUrls().front().startsWith(QStringLiteral("https://")));
}

}  // namespace
}  // namespace gw::test
