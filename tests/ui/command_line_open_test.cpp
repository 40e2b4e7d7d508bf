// Curve files named when the program starts (a double-click in a file manager):
// each opens as Open opens a chosen file, and a missing one is reported.

#include <QMdiArea>

#include "shell/command_line.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

// A curve given by its PVI at 12+00.0 in English units, as the program saves one.
const QByteArray kEnglishCurve =
    "\"\",\"English\",,,,\"0\"\r\n\"104\",\"12\",\"-2\",\"2\",\"400\",\"\",\"\"\r\n"
    "\"\",\"\",\"\",\"\",\"\",\"\"\r\n#TRUE#,#FALSE#,\"\",\"\"\r\n";

class CommandLineOpenTest : public UiTest {
protected:
    int WindowCount() { return int(Main().MdiArea().subWindowList().size()); }
};

TEST_F(CommandLineOpenTest, TwoNamedFilesOneMissingOpenOneWindowAndOneMessage) {
    const QString curve = FilePath("crest.gwf");
    PutBytes(curve, kEnglishCurve);
    frmMain& main = RestartMain();
    m_platform.AnswerMessage(MessageButton::Ok);
    main.OpenFiles({FilePath("gone.gwf"), curve});
    Settle();

    EXPECT_EQ(Messages(), QStringList{"This file does not exist."});
    ASSERT_EQ(WindowCount(), 1);
    frmCrestCurve* opened = main.ActiveCurveWindow();
    EXPECT_EQ(Title(*opened), "Vertical Curve - English: " + curve);
    EXPECT_EQ(opened->Field("txtPVIEval")->text(), "104");
    // Listed as Open lists it; the missing one is not.
    EXPECT_EQ(RecentShown(), QStringList{curve});
}

TEST(CurveFileArguments, RelativeNamesAreTakenFromTheStartFolderNotTheCurrentOne) {
    // Start-up moves the current folder; the names must already be absolute by then.
    EXPECT_EQ(
        CurveFileArguments({"a.gwf", "sub/../b.gwf", "./c d.gwf", "/elsewhere/e.gwf"}, "/home/eng/road"),
        QStringList({"/home/eng/road/a.gwf", "/home/eng/road/b.gwf", "/home/eng/road/c d.gwf", "/elsewhere/e.gwf"}));
    EXPECT_TRUE(CurveFileArguments({}, "/home/eng").isEmpty());
}

TEST(CurveFileArguments, AFileUrlIsItsLocalPathButAPlainNameIsNeverDecoded) {
    EXPECT_EQ(CurveFileArguments({"file:///home/eng/my%20curve.gwf"}, "/tmp"), QStringList{"/home/eng/my curve.gwf"});
    // '%', '#' and ':' are ordinary characters in a file name.
    EXPECT_EQ(CurveFileArguments({"50%20#2.gwf", "/data/a:b.gwf"}, "/tmp"),
              QStringList({"/tmp/50%20#2.gwf", "/data/a:b.gwf"}));
}

}  // namespace
}  // namespace gw::test
